#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/Machine.h"

namespace platform {

/// Boxes and pickers of the desktop.
class DesktopDialogs final : public Dialogs {
public:
    /// The window that owns the boxes from now on.
    void SetOwner(QWidget* owner) { owner_ = owner; }

    int MessageBox(const QString& text, int flags, const QString& title) override;
    QString OpenFile(const QString& title, const QString& folder, const QString& filter) override;
    QString SaveFile(const QString& title, const QString& folder, const QString& filter) override;
    int PickColour(int present) override;

private:
    QPointer<QWidget> owner_;
};

}  // namespace platform
