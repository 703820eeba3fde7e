#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>

#include "drawing/ClockSpecial.h"
#include "drawing/DialStyles.h"
#include "drawing/FontText.h"
#include "foundation/Controls.h"

/// Where everything on a dial stands, worked out from plain values. Indexes (1 to 60) and hours
/// (1 to 12) count as in `DialStyles.h`.
namespace drawing {

/// The angle of an index, as in `Angles.h`. A special face folds or mirrors the dial as it does
/// with the hands; which hour then stands where is not corrected.
double DialAngle(int index, ClockSpecial special);

/// The size of a caption in points. @p scaleHeight is the surface's height in logical pixels, which
/// worked-out sizes follow, in whole points, 4 at least; @p hourNumberSize is used as it stands
/// unless it is -1 or a special face has a size of its own.
int CaptionSize(int index, ClockSpecial special, double scaleHeight, int hourNumberSize);

/// A spot's side in device pixels: @p minuteSpotSize in logical pixels, or by itself when that is
/// -1. No spot has a size below 0.
int SpotSize(int minuteSpotSize, int scaleHeight, double devicePixelRatio);

/// The time a spot stands for: "1:12" at index 6.
QString SpotTime(int index);

/// A number that is painted as text.
struct PaintedNumber {
    QString Text;
    double X = 0, Y = 0;  ///< where printing starts
    LogFont Font;
    int Colour = 0;
};

/// Whether a label of the dial stands behind a painted number, be it shown or hidden: its caption
/// is two blanks.
bool IsBehindPaintedNumber(const mduUILib::Control& label);

/// Places painted numbers. Their size follows the window's outer height, not the properties.
class NumberPlacing {
public:
    /// @param height the window's outer height in twips
    /// @param isBackward whether the dial is mirrored, which moves two numbers
    NumberPlacing(const NumberStyle& style, double height, double devicePixelRatio,
                  bool isBackward);

    int Height() const { return height_; }  ///< of the font, in device pixels
    int Width() const { return width_; }    ///< of the font, in device pixels

    /// The number of an hour that stands at a point of the ring; its colour is left to the caller.
    PaintedNumber Place(int hour, QPointF at) const;

    /// The rectangle that takes the clicks for a number at that point.
    QRectF ClickArea(QPointF at) const;

private:
    QPoint Base(QPointF at) const;

    NumberStyle::Look look_;
    int height_;
    int width_;
    bool isBackward_;
};

}  // namespace drawing
