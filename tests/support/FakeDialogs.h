#pragma once

#include <QStringList>
#include <functional>
#include <vector>

#include "platform/Dialogs.h"

/// Message boxes and pickers with answers laid out beforehand; one that was not expected fails the
/// test.
class FakeDialogs final : public platform::Dialogs {
public:
    struct Box {
        QString Text;
        int Flags = 0;
        QString Title;
    };
    std::vector<Box> Boxes;             ///< the boxes shown
    std::vector<int> BoxAnswers;        ///< taken from the front
    std::function<void()> WhileAsking;  ///< what happens, once, while a box stands
    QStringList FileAnswers;            ///< taken from the front, by both file pickers
    QStringList PickerFolders;          ///< the folders the pickers began in
    QStringList PickerTitles;
    std::vector<int> ColourAnswers;          ///< taken from the front
    std::function<void()> OnPicker = [] {};  ///< while a picker stands open

    int MessageBox(const QString& text, int flags, const QString& title) override;
    QString OpenFile(const QString& title, const QString& folder, const QString& filter) override;
    QString SaveFile(const QString& title, const QString& folder, const QString& filter) override;
    int PickColour(int present) override;
};
