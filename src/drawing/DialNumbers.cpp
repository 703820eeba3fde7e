#include "drawing/DialNumbers.h"

#include <algorithm>

#include "drawing/Angles.h"
#include "drawing/Hands.h"
#include "foundation/Numbers.h"

using namespace Qt::StringLiterals;

namespace drawing {

namespace {

using mduAPILib::RoundToInteger;

constexpr int HeaviestWeight = 10000000;
constexpr int SmallestCaption = 4;  // points
constexpr int SmallestSpot = 4;     // logical pixels

/// A number on a radial dial: its text, how it is turned, and where it starts from the corner of
/// its click area, in heights of the font. All of it is tuned by hand.
struct RadialNumber {
    QLatin1StringView Text;
    int Escapement;
    double Right, Down;
};

constexpr RadialNumber RadialNumbers[] = {
    {"I"_L1, 6800, 0.6, -0.15},    {"II"_L1, 3000, 0.71, -0.08},   {"III"_L1, 2700, 0.65, 0.05},
    {"IIII"_L1, 2360, 0.88, 0.47}, {"V"_L1, 2150, 0.76, 0.74},     {"VI"_L1, 1800, 0.4, 0.85},
    {"VII"_L1, 1450, -0.05, 1.05}, {"VIII"_L1, 1200, -0.3, 1.01},  {"IX"_L1, -2700, -0.46, 0.58},
    {"X"_L1, -3000, -0.58, 0.1},   {"XI"_L1, -3270, -0.49, -0.01}, {"XII"_L1, 0, -0.2, -0.06}};

}  // namespace

double DialAngle(int index, ClockSpecial special) {
    const double forward = Pi - TwoPi * index / 60;
    const double mirrored = TwoPi * index / 60 - Pi;
    const bool onRight = index < 31;
    if (special == ClockSpecial::AnalogueBackward) {
        return mirrored;
    }
    if (special == ClockSpecial::AnalogueRightHalf) {
        return onRight ? forward : mirrored;
    }
    if (special == ClockSpecial::AnalogueLeftHalf) {
        return onRight ? mirrored : forward;
    }
    return forward;
}

int CaptionSize(int index, ClockSpecial special, double scaleHeight, int hourNumberSize) {
    const auto whole = [](double size) {
        return std::max(static_cast<int>(size), SmallestCaption);
    };
    const double small = 0.05 * scaleHeight;
    const double large = 0.1 * scaleHeight;
    if (special == ClockSpecial::HourFontEven) {
        return whole(index % 2 == 0 ? large : small);
    }
    if (special == ClockSpecial::HourFontQuarter) {
        return whole(index % 3 == 0 ? large : small);
    }
    if (special == ClockSpecial::HourFontTriangle) {
        return whole(index % 4 == 0 ? large : small);
    }
    if (special == ClockSpecial::HourFontBigToSmall) {
        return whole(scaleHeight * (index / 30.0 + 0.6) / index);
    }
    if (special == ClockSpecial::HourFontSmallToBig) {
        return whole(scaleHeight * (index + 12) / 700);
    }
    return hourNumberSize == -1 ? whole(small) : hourNumberSize;
}

int SpotSize(int minuteSpotSize, int scaleHeight, double devicePixelRatio) {
    if (minuteSpotSize == -1) {
        return std::max(static_cast<int>(scaleHeight * 0.02),
                        RoundToInteger(SmallestSpot * devicePixelRatio));
    }
    return RoundToInteger(std::max(minuteSpotSize, 0) * devicePixelRatio);
}

QString SpotTime(int index) {
    return QString::number(index / 5) + u':' +
           QString::number(index % 5 * 12).rightJustified(2, u'0');
}

NumberPlacing::NumberPlacing(const NumberStyle& style, double height, double devicePixelRatio,
                             bool isBackward)
    : look_(style.NumberLook()),
      height_(RoundToInteger(RoundToInteger(height * 0.006) * devicePixelRatio)),
      width_(RoundToInteger(height_ / 5.0)),
      isBackward_(isBackward) {}

QPoint NumberPlacing::Base(QPointF at) const {
    return {ToPoint(at.x() - width_ / 1.1), ToPoint(at.y() - height_ / 2.0)};
}

bool IsBehindPaintedNumber(const mduUILib::Control& label) {
    return label.Caption == "  "_L1;
}

QRectF NumberPlacing::ClickArea(QPointF at) const {
    const QPoint base = Base(at);
    const double labelHeight = height_ / 1.3;
    return {base.x() - labelHeight / 4, static_cast<double>(ToPoint(base.y() + labelHeight / 15)),
            2.0 * width_, labelHeight};
}

PaintedNumber NumberPlacing::Place(int hour, QPointF at) const {
    const RadialNumber& row = RadialNumbers[std::clamp(hour, 1, 12) - 1];
    const double left = Base(at).x();
    const double top = ClickArea(at).top();
    PaintedNumber number{row.Text, left + row.Right * height_, top + row.Down * height_, {}, 0};
    number.Font = {.Height = height_,
                   .Width = width_,
                   .Weight = HeaviestWeight,
                   .FaceName = u"Times New Roman"_s};
    if (look_ == NumberStyle::Look::TrueRoman) {
        number.Font.Escapement = row.Escapement;
    } else if (look_ == NumberStyle::Look::Roman) {
        number.X = left - (hour == 8 ? 2.4 * width_ : width_ / 1.2);
        number.Y = top - height_ / 12.0;
    } else {
        const int wide = 2 * width_;
        const bool twoDigits = hour == 10 || hour == 11;
        const double shift = isBackward_ ? 0.9 : hour == 10 ? 1.2 : 1.4;
        number.Text = QString::number(hour);
        number.Font.Width = wide;
        number.X = left - (twoDigits ? shift * wide : wide / 2.5);
        number.Y = top - height_ / (twoDigits && isBackward_ ? 10.0 : 8.0);
    }
    return number;
}

}  // namespace drawing
