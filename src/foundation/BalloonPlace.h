#pragma once

#include <QPainterPath>
#include <QPoint>
#include <QRect>

/// On which side of its tool a balloon's body stands.
enum class BalloonSide { Above, Below, Left, Right };

/// Where a balloon stands: a rounded body with a small pointer that touches the tool it speaks of.
struct BalloonPlace {
    QRect Window;  ///< body and pointer, on the screen
    QRect Body;    ///< within the window
    QPoint Tip;    ///< where the pointer ends, within the window
    BalloonSide Side = BalloonSide::Above;

    bool operator==(const BalloonPlace&) const = default;
};

/// Finds the place for a body of @p size beside @p tool, both in pixels of the screen. The body
/// hangs below the tool, or stands above it where the screen ends too soon, and is moved sideways
/// until @p screen holds it. The pointer ends in the middle of the tool's edge. Where neither side
/// has room it is put on the larger one, and cut to it.
///
/// A body of 200 x 60 for the point (100, 100) on a wide screen begins at (76, 112) with its
/// pointer 24 pixels inside; with @p centred it begins at (0, 112).
BalloonPlace PlaceBalloon(const QSize& size, const QRect& tool, const QRect& screen, bool centred);

/// The same for a tool of a column, whose neighbours above and below stay uncovered: the body
/// stands to the right of the tool, or to its left where the screen ends too soon, and the pointer
/// ends in the middle of the tool's side.
BalloonPlace PlaceBalloonBeside(const QSize& size, const QRect& tool, const QRect& screen);

/// The outline of body and pointer, within the window.
QPainterPath BalloonOutline(const BalloonPlace& place);

/// The same for a plain tip: a rectangle without a pointer.
QPainterPath PlainTipOutline(const BalloonPlace& place);
