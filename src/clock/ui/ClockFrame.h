#pragma once

#include <QMdiArea>
#include <QMdiSubWindow>

#include "clock/ui/FramePlace.h"
#include "clock/ui/WindowOutline.h"
#include "foundation/WindowBorder.h"

class QWindowStateChangeEvent;

namespace clockcore {

using mduUILib::WindowBorder;

/// What frames a clock's window, as the properties want it; a minimised clock shows another.
struct FrameLook {
    WindowBorder Border = WindowBorder::Raised;
    bool TitleBar = true;
    bool operator==(const FrameLook&) const = default;
};

/// The frame of a clock in the shell: with or without a title bar, with three kinds of borders, and
/// with an outline of its own. Changing the look keeps place, size, state and visibility. A
/// minimised clock is its title bar, whatever its look is.
class ClockFrame final : public QMdiSubWindow {
    Q_OBJECT

public:
    /// @param area where the frame will stand. The caller adds it there and sets the clock as its
    /// widget.
    explicit ClockFrame(QMdiArea* area);

    const FrameLook& Look() const { return look_; }
    /// Shows another look at once; the same look again costs nothing.
    void SetLook(const FrameLook& look);

    /// The figure of the window and how much of it is revealed.
    WindowOutline& Outline() { return outline_; }
    /// Where the frame stands while it is neither minimised nor maximised.
    FramePlace& Place() { return place_; }
    const FramePlace& Place() const { return place_; }

    /// Whether the title bar is there at this moment.
    bool ShowsTitleBar() const { return look_.TitleBar || isMinimized(); }
    /// The border at this moment; a minimised clock has the raised one.
    WindowBorder ShownBorder() const { return isMinimized() ? FrameLook().Border : look_.Border; }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Keeps the place from before a clock is minimised or maximised, and brings it back.
    void ChangeState(QWindowStateChangeEvent* event);
    /// A minimised clock has other buttons.
    void ApplyFlags();
    /// Lets the toolkit make the mask of a frame that has no figure.
    void RestoreMask();

    FrameLook look_;
    WindowOutline outline_{*this, [this] { RestoreMask(); }};
    QWidget* ground_;  ///< of the area, which may be half gone when its last events come
    FramePlace place_;
};

}  // namespace clockcore
