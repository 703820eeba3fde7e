#pragma once

#include "drawing/Surface.h"

namespace clockcore {

/// Where a clock draws, and how what it drew comes to be seen.
class Canvas {
public:
    virtual ~Canvas() = default;

    virtual drawing::Surface& Surface() = 0;
    /// Shows a part of the surface that has changed.
    virtual void Present(const QRegion& changed) = 0;
    /// Whether anyone can see the surface. What can't be seen is not painted.
    virtual bool CanBeSeen() const = 0;

    virtual int BackColor() const = 0;
    virtual void SetBackColor(int colour) = 0;
    /// The background colour of the shell behind the clock; white without a shell.
    virtual int ParentBackColor() const = 0;
    /// The window's own mark that it shows the shell behind itself.
    virtual void SetTransparent(bool transparent) = 0;
};

}  // namespace clockcore
