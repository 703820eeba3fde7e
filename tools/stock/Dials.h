#pragma once

#include <QPainter>

#include "Shade.h"

/// Dials with a printed minute track, made for a clock without spots. Radii are shares of half the
/// picture's side, so 1 touches its edge.
namespace stock {

/// A rounded metal ring between two radii, lit from the upper left.
struct BezelShape {
    double Inner, Outer;
    Colour Dark, Light;
};

/// The colour of a place: @p ground outside, the ring, and inside it @p dial with the ring's
/// shadow.
Colour Framed(double x, double y, const BezelShape& bezel, const Colour& ground,
              const Colour& dial);

/// 60 strokes from one radius to another, each fifth of them of its own.
struct Strokes {
    double From, To, Width;
};
void PrintTrack(QPainter& painter, const Colour& ink, const Strokes& minutes, const Strokes& hours);

/// A printed circle line.
void PrintCircle(QPainter& painter, const Colour& ink, double radius, double width);

/// 60 round dots, each fifth of the second size.
void PrintDots(QPainter& painter, const Colour& ink, double radius, double minuteSize,
               double hourSize);

/// Antialiased, with the origin in the middle and 1 as half the side.
void PreparePrinting(QPainter& painter);

QImage BrushedSteelDial();
QImage BlackEnamelDial();
QImage IvoryEnamelDial();
QImage GuillocheDial();
QImage StationDial();
QImage WalnutCase();
QImage SlateDial();

}  // namespace stock
