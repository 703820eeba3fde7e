#pragma once

#include <QRegion>
#include <QWidget>
#include <functional>
#include <utility>

namespace clockcore {

/// What of a window is there: a figure cut out of it, and for as long as it opens only the middle
/// of that. Measures are logical pixels of the window.
class WindowOutline {
public:
    /// @param restore gives the window the mask that it has without an outline; by default none
    explicit WindowOutline(QWidget& window, std::function<void()> restore = {})
        : window_(window), restore_(std::move(restore)) {}

    /// An empty region takes the outline away.
    void SetFigure(const QRegion& figure);
    /// The part of width and height, around the centre, that shows; 1 is all of it.
    void SetRevealed(double part);

    /// Sets the mask again, for a window that has lost it or has another size.
    void Apply();

private:
    QWidget& window_;
    void UpdateChildren();

    std::function<void()> restore_;
    QRegion figure_;
    double revealed_ = 1;
    bool masked_ = false;
};

/// The rectangle in the middle of @p whole that has @p part of its width and height, and is never
/// empty.
QRect CentredPart(const QRect& whole, double part);

/// A region of device pixels in logical ones; edges that fall between two are rounded.
QRegion ToLogicalPixels(const QRegion& devicePixels, double ratio);

}  // namespace clockcore
