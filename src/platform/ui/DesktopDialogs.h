#pragma once

#include <QList>
#include <QMessageBox>
#include <QPointer>

#include "platform/Dialogs.h"

namespace platform {

/// Boxes and pickers of the desktop.
class DesktopDialogs final : public Dialogs {
public:
    /// The window that owns the boxes from now on.
    void SetOwner(QWidget* owner) { owner_ = owner; }

    int MessageBox(const QString& text, int flags, const QString& title) override;
    /// The windows stay usable beside the box; it goes with its owner.
    void PostMessageBox(const QString& text, int flags, const QString& title) override;
    QString OpenFile(const QString& title, const QString& folder, const QString& filter) override;
    QString SaveFile(const QString& title, const QString& folder, const QString& filter) override;
    int PickColour(int present) override;

private:
    struct Post {
        QString Text;
        int Flags = 0;
        QString Title;
        bool operator==(const Post&) const = default;
    };
    void ShowNextPost();

    QPointer<QWidget> owner_;
    QList<Post> posts_;  ///< the first one stands while `standing_` does
    QPointer<QMessageBox> standing_;
};

}  // namespace platform
