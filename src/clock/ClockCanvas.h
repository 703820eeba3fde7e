#pragma once

#include <memory>

#include "clock/ClockData.h"
#include "clock/ClockScreen.h"
#include "clock/ClockWindow.h"
#include "drawing/Canvas.h"

namespace clockcore {

/// The surface of a clock, and how what is drawn on it comes to the screen: with an outline, with a
/// see-through colour, held back while it is locked.
///
/// Drawing goes to `Surface`, in device pixels. `Present` says which part has changed; the window
/// is then painted from `ShownPicture` when the event loop runs next.
class ClockCanvas final : public drawing::Canvas {
public:
    /// All that it is given outlives it. The surface has one pixel until `TakeSurface`.
    ClockCanvas(const WatchedState& state, ClockScreen& screen, ClockPlacement& placement)
        : state_(state), screen_(screen), placement_(placement) {}

    /// The face that is told of changes from now on. Nothing may be drawn once it is gone.
    void SetFace(ClockFace& face) { face_ = &face; }

    /// A new surface of the screen's size in the background colour; the face is painted anew. For a
    /// window that has another size or has come to another screen.
    void TakeSurface();
    /// False when the window has come to a screen with other pixels.
    bool FitsTheScreen() const;
    /// Clears the surface to the background colour.
    void Cls();
    /// While locked, nothing that is drawn shows; then all of it does, at once. Locks do not nest.
    void LockWindowUpdate(bool locked);
    /// A clock that nobody looks at lays its face out and never paints it.
    void SetLookedAt(bool lookedAt) { lookedAt_ = lookedAt; }

    /// Takes note that a part of the window, in logical pixels, has been painted. @return what of
    /// it had not been changed here: it has come to light
    QRegion Exposed(const QRegion& painted);
    /// What the window shows, in device pixels: white is see-through where the colour key is on and
    /// the clock stands alone.
    QImage ShownPicture() const;
    /// The surface as it is seen: `ShownPicture`, transparent outside the window's outline.
    QImage SeenPicture() const;

    const drawing::Surface& Painted() const { return *surface_; }
    /// Of the outer window, in device pixels; empty for a plain rectangle.
    const QRegion& Outline() const { return outline_; }

    drawing::Surface& Surface() override { return *surface_; }
    void Present(const QRegion& changed) override;
    bool CanBeSeen() const override;
    void StillChanged() override;
    /// Until the first tick has laid the face out there is nothing to show.
    void ShowChanges() override;
    int BackColor() const override { return backColour_; }
    void SetBackColor(int colour) override;
    int ParentBackColor() const override { return screen_.ShellBackColor(); }
    bool IsTransparent() const override { return isTransparent_; }
    void SetTransparent(bool transparent) override { isTransparent_ = transparent; }
    void SetColourKey(bool on) override;
    QSizeF OuterSize() const override { return placement_.OuterRect().size(); }
    QPoint SurfaceOffset() const override { return placement_.SurfaceOffset(); }
    int WindowState() const override { return placement_.WindowState(); }
    void SetWindowRgn(const QRegion& outline) override;
    void SetIcon(const QImage& picture) override;
    void ShowStatus(const QString& text) override { screen_.ShowStatus(text); }

private:
    const WatchedState& state_;
    ClockScreen& screen_;
    ClockPlacement& placement_;
    ClockFace* face_ = nullptr;  ///< null until the clock has one
    std::unique_ptr<drawing::Surface> surface_ = std::make_unique<drawing::Surface>(1, 1, 1.0);
    int backColour_ = 0xFFFFFF;
    bool isTransparent_ = false;
    bool colourKey_ = false;
    bool lookedAt_ = true;
    bool locked_ = false;
    QRegion lockedChanges_;  ///< those held back, in device pixels
    QRegion presented_;      ///< changes of our own that wait to be painted, in logical pixels
    QRegion outline_;
};

}  // namespace clockcore
