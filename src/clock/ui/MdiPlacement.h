#pragma once

#include <QMdiArea>
#include <QPointer>
#include <QWidget>
#include <optional>

#include "clock/ClockData.h"
#include "clock/ClockWindow.h"
#include "clock/ui/ClockFrame.h"
#include "clock/ui/WindowReveal.h"
#include "drawing/Shapes.h"

namespace clockcore {

/// Where a clock's window stands and how it is framed: in the shell, or by itself on the screen.
/// Measures are twips of the outer window, 15 to a logical pixel, relative to the inner area of the
/// shell or to the screen.
///
/// A window that has a figure ("Window Shape") or is a wrapper has neither border nor title bar.
class MdiPlacement final : public ClockPlacement {
public:
    /// @param clock the clock's form
    /// @param area the shell's frame for its children; null for a clock that stands alone
    /// @param time runs the animation of opening and closing; without it there is none
    MdiPlacement(QWidget& clock, QMdiArea* area, ClockData& data,
                 platform::WallClock* time = nullptr);

    /// Makes the frame around the clock; invisible and, until the first tick, of no size. Nothing
    /// for a clock that stands alone, whose form is its window.
    void MakeFrame();

    /// A quarter of the shell's size, in the middle of its inner area; or where the file says.
    /// Nothing for a clock that stands alone.
    void PlaceInTheMiddle();

    /// A wrapper goes to its whole container, without a frame, and is shown.
    void ApplyWindowState() override;
    /// What the file leaves open is found by itself: a child in the shell takes a free place, a
    /// window of the screen the middle. A minimised or maximised child takes the place later.
    void ApplyWindowRect() override;
    /// By "Window Border"; an unknown word leaves the border as it was.
    void ApplyWindowBorder() override;
    void ApplyTitleBar() override;
    void SetClockCaption() override;
    /// A clock that opens grows from its centre and is in its place from the first step on. One
    /// that closes is gone at once; in the shell its image shrinks to the centre.
    void ShowClockWindow(bool show) override;

    /// An entry of the position menu: each word of its caption acts by itself. "Centre" and
    /// "Auto Size" store -1 in the clock's properties.
    void MoveTo(const QString& caption) override;

    void SetWindowRgn(const QRegion& outline) override;
    QPoint SurfaceOffset() const override;
    /// A clock in the shell takes no notice.
    void SetColourKey(bool on) override;
    void SetIcon(const QImage& picture) override;

    QString Caption() const override { return Outer().windowTitle(); }
    int WindowState() const override;
    void SetWindowState(int state) override;
    bool IsShown() const override { return Outer().isVisible(); }
    void Show();

    QRectF OuterRect() const override;
    /// In twips of the whole area: the place that the window has while it is normal. Nothing for a
    /// minimised or maximised one that still has the place of its file.
    std::optional<QRectF> PlaceToStore() const override;
    /// Rounded to logical pixels.
    void SetOuterRect(const QRectF& twips);
    void SetOuterSize(const QSizeF& twips) override;

    /// Null for a clock that stands alone, and once the toolkit has deleted the frame.
    ClockFrame* Frame() const { return frame_; }
    /// The frame, or the form of a clock that stands alone or has no frame yet.
    QWidget& Outer() const;

private:
    QString Property(const QString& key) const;
    drawing::Shape WindowShape() const;
    QSizeF ContainerSize() const;
    void StandInShell(const StoredPlace& stored);
    void StandOnScreen(const StoredPlace& stored);
    WindowOutline& Outline();
    /// "Window Open/Close Animation Rate" within its bounds; 0 for no animation.
    int AnimationRate() const;
    void Open();
    void MaximiseWrapper();
    void ApplyLook();
    void ApplyFlags(Qt::WindowFlags flags);
    void MakeWindowAnew(Qt::WindowFlags flags);

    QWidget& clock_;
    QMdiArea* area_;
    ClockData& data_;
    platform::WallClock* time_;
    QPointer<ClockFrame> frame_;
    WindowOutline ownOutline_;  ///< of a clock that stands alone
    std::optional<WindowReveal> opening_;
    FrameLook look_;  ///< as the properties have it
    /// "Window State", as it was read last; taken when the window opens.
    int stateWhenShown_ = 0;
};

}  // namespace clockcore
