#pragma once

#include <QColor>
#include <QPainterPath>
#include <QPoint>

#include "drawing/Surface.h"

class QPainter;

/// The plate of a clock that has a "Clock Shape" and no dial picture to cut: the figure in the
/// window's colour, raised a little above a ground that is shaded.
namespace drawing {

/// What lies around a plate.
enum class PlateGround {
    Colour,     ///< the window's colour: it is shaded
    Picture,    ///< the window's picture: it is shaded
    SeeThrough  ///< what is behind a transparent window: it stays, and the plate is a faint tone
};

/// The box of a plate: the largest around the centre of the clock that keeps within the surface.
/// Where the centre lies near an edge it is 100 logical pixels wide or high, and reaches beyond.
QRect PlateBox(const QPoint& centre, const Surface& surface);

/// A tone that stands out from a colour: darker, or lighter where the colour itself is dark.
QColor ShadeOf(const QColor& colour);

/// Paints ground and plate over all that the painter may paint on. @p figure is the plate's
/// outline; @p colour is the window's.
void PaintPlate(QPainter& painter, const QPainterPath& figure, const QColor& colour,
                PlateGround ground, double devicePixelRatio);

}  // namespace drawing
