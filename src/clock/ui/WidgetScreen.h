#pragma once

#include <QMdiArea>
#include <QWidget>

#include "clock/ClockScreen.h"
#include "foundation/Forms.h"

namespace clockcore {

/// A widget as the screen of a clock, in the frame of a shell or by itself.
///
/// The clock's window owns it and is its widget.
class WidgetScreen final : public ClockScreen {
public:
    /// @param widget the clock's form, whose size and pixels are those of the surface
    /// @param area the shell's frame for its children; null for a clock that stands alone
    /// @param shell null for a clock without one; it outlives this, or is taken away by `SetShell`
    WidgetScreen(QWidget& widget, const QMdiArea* area, IShell* shell)
        : widget_(widget), area_(area), shell_(shell) {}

    void SetShell(IShell* shell) { shell_ = shell; }
    IShell* Shell() const override { return shell_; }

    QSize Size() const override { return widget_.size(); }
    double DevicePixelRatio() const override { return widget_.devicePixelRatioF(); }
    /// An empty region asks for nothing.
    void Update(const QRegion& part) override { widget_.update(part); }
    bool IsMDIChild() const override { return area_ != nullptr; }
    /// False for a window that is hidden, minimised (itself or with its shell), or covered by other
    /// children of the shell. What lies in front of the shell itself is not known.
    bool IsInSight() const override;
    int ShellBackColor() const override;
    void ShowStatus(const QString& text) override;

private:
    QWidget& widget_;
    const QMdiArea* area_;
    IShell* shell_;
};

}  // namespace clockcore
