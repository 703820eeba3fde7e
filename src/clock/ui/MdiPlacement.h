#pragma once

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QWidget>

#include "clock/ClockData.h"
#include "clock/ClockWindow.h"

namespace clockcore {

/// Where a clock's window stands: in a frame of the shell, or by itself on the screen. Measures are
/// twips of the outer window, 15 to a logical pixel, relative to the inner area of the shell or to
/// the screen.
class MdiPlacement final : public ClockPlacement {
public:
    MdiPlacement(QWidget& clock, QMdiArea* area, const ClockData& data);

    /// Makes the frame around the clock; invisible and, until the first tick, of no size.
    void MakeFrame();

    /// A quarter of the shell's size, in the middle of its inner area.
    void PlaceInTheMiddle();

    void ApplyWindowState() override;
    void ApplyWindowRect() override;
    void SetClockCaption() override;
    void ShowClockWindow(bool show) override;

    int WindowState() const;  ///< 0 normal, 1 minimised, 2 maximised
    void SetWindowState(int state);
    void Show();

    QRectF OuterRect() const;  ///< in twips
    void SetOuterRect(const QRectF& twips);
    void SetOuterSize(const QSizeF& twips);

    /// Gives the outer window an outline, in its device pixels; an empty one takes it away.
    void SetWindowRgn(const QRegion& outline);
    /// Whether a stand-alone window lets the desktop through; a child takes no notice.
    void SetColourKey(bool on);

    QMdiSubWindow* Frame() const { return frame_; }
    QWidget& Outer() const;

private:
    QSizeF ContainerSize() const;

    QWidget& clock_;
    QMdiArea* area_;
    const ClockData& data_;
    QPointer<QMdiSubWindow> frame_;
    int stateWhenShown_ = 0;
};

}  // namespace clockcore
