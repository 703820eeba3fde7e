#pragma once

#include <QRegion>
#include <QSizeF>

#include "drawing/Surface.h"

namespace drawing {

/// The window that a face is drawn for: where it draws, and how what it drew comes to be seen.
class Canvas {
public:
    virtual ~Canvas() = default;

    virtual drawing::Surface& Surface() = 0;
    /// Shows a part of the surface that has changed.
    virtual void Present(const QRegion& changed) = 0;
    /// Whether anyone can see the surface. What can't be seen is not painted.
    virtual bool CanBeSeen() const = 0;

    /// What stands still under the hands (background, numbers, spots, captions) is to be painted
    /// anew with the next pass.
    virtual void StillChanged() = 0;
    /// Paints and shows what has changed since the last pass, without moving the hands: controls
    /// that moved, a still layer that changed.
    virtual void ShowChanges() = 0;

    virtual int BackColor() const = 0;
    virtual void SetBackColor(int colour) = 0;
    /// The background colour of the shell behind the clock; white without a shell.
    virtual int ParentBackColor() const = 0;

    /// The window's `FillStyle`: true (1) while its background colour is "Transparent".
    virtual bool IsTransparent() const = 0;
    virtual void SetTransparent(bool transparent) = 0;
    /// Whether pure white pixels are see-through, where the window stands alone on the screen.
    virtual void SetColourKey(bool on) = 0;

    /// The outer size of the window, in twips.
    virtual QSizeF OuterSize() const = 0;
    /// Where the surface begins within the outer window, in device pixels: borders and title bar.
    virtual QPoint SurfaceOffset() const = 0;
    virtual int WindowState() const = 0;  ///< 0 normal, 1 minimised, 2 maximised
    /// Gives the outer window an outline, in device pixels of the outer window; an empty region
    /// takes the outline away.
    virtual void SetWindowRgn(const QRegion& outline) = 0;
    /// The window's icon; a null picture means the stored one.
    virtual void SetIcon(const QImage& picture) = 0;

    /// Tells the user, in the status bar.
    virtual void ShowStatus(const QString& text) = 0;
};

}  // namespace drawing
