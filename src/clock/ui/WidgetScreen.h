#pragma once

#include <QMdiArea>
#include <QWidget>

#include "clock/ClockScreen.h"
#include "foundation/Forms.h"

namespace clockcore {

/// A widget as the screen of a clock, in the frame of a shell or by itself.
class WidgetScreen final : public ClockScreen {
public:
    /// @param area the shell's frame for its children; null for a clock that stands alone
    /// @param shell null for a clock without one
    WidgetScreen(QWidget& widget, const QMdiArea* area, IShell* shell)
        : widget_(widget), area_(area), shell_(shell) {}

    void SetShell(IShell* shell) { shell_ = shell; }
    IShell* Shell() const { return shell_; }

    QSize Size() const override { return widget_.size(); }
    double DevicePixelRatio() const override { return widget_.devicePixelRatioF(); }
    void Update(const QRegion& part) override { widget_.update(part); }
    bool IsMDIChild() const override { return area_ != nullptr; }
    bool IsInSight() const override;
    int ShellBackColor() const override;
    void ShowStatus(const QString& text) override;

private:
    QWidget& widget_;
    const QMdiArea* area_;
    IShell* shell_;
};

}  // namespace clockcore
