// Fonts and places of the calculator's lines.
#include <algorithm>
#include <cmath>

#include "drawing/CalculatorLines.h"
#include "drawing/LabelText.h"
#include "foundation/Numbers.h"

using namespace Qt::StringLiterals;

namespace drawing {

namespace {

using mduUILib::Control;

constexpr double SmallestSize = 4;    // points
constexpr double LargestSize = 3000;  // points: some thousand pixels
constexpr double PointsPerPixel = 0.75;
constexpr double Margin = 4;        // pixels kept free at the left
constexpr double LinesApart = 0.4;  // of a line's height
constexpr double Filled = 0.92;     // of the surface, by lines of an automatic size

constexpr double HintSize = 0.6;                      // of the local line's
constexpr double SmallestHint = 7, LargestHint = 12;  // points
constexpr double HintApart = 0.5;                     // of the hint's height

/// No date and time is wider.
QString WidestMoment() {
    return u"00/00/0000 00:00:00"_s;
}

}  // namespace

void CalculatorLines::SetCalculatorLayout() {
    for (const Side side : {Side::Local, Side::Zone}) {
        const double size = mduAPILib::IntegerValue(Value(side, u"Font Size"_s));
        QFont font(Value(side, u"Font"_s).trimmed());
        font.setPointSizeF(std::clamp(size, SmallestSize, LargestSize));
        Line(side).Font = font;
    }
    const double automatic = AutomaticSize();
    for (const Side side : {Side::Local, Side::Zone}) {
        if (IsAutomatic(side)) {
            Line(side).Font.setPointSizeF(automatic);
        }
        PlaceAcross(side);
    }
    if (isTyping_) {
        FillHint();
    }
    PlaceBelowEachOther();
}

double CalculatorLines::WidestText(Side side, const QFont& font) const {
    const double ratio = face_.Window.Surface().DevicePixelRatio();
    const auto widthOf = [&](const QString& text) {
        return TextSize(font, Prefix(side) + text, ratio).width();
    };
    const bool isOther = isTyping_ && side != edited_;
    return std::max(
        {widthOf(WidestMoment()), widthOf(Line(side).Tag), isOther ? widthOf(inPlaceOfTag_) : 0});
}

// Laid out for the widest text, so that a line stands still while its figures change.
void CalculatorLines::PlaceAcross(Side side) {
    const Surface& surface = face_.Window.Surface();
    Control& line = Line(side);
    const double left = (surface.ScaleWidth() - WidestText(side, line.Font)) / 2;
    line.Left =
        static_cast<float>(std::nearbyint(std::max(left, Margin * surface.DevicePixelRatio())));
    AutoSize(line, surface.DevicePixelRatio());
}

// In the middle of the height, and no lower than the hint's room below them allows. Where it finds
// no room even so, there is none.
void CalculatorLines::PlaceBelowEachOther() {
    const Surface& surface = face_.Window.Surface();
    Control& hint = Hint();
    const double first = static_cast<double>(Line(Side::Local).Height);
    const double second = static_cast<double>(Line(Side::Zone).Height);
    const double gap = LinesApart * std::max(first, second);
    const double apart = HintApart * static_cast<double>(hint.Height);
    const double free = surface.ScaleHeight() - first - gap - second;
    const double below = free - apart - static_cast<double>(hint.Height);
    const bool fitsAcross = static_cast<double>(hint.Width) <= surface.ScaleWidth();
    hint.Visible = isTyping_ && fitsAcross && below >= 0;
    const double top = std::nearbyint(hint.Visible ? std::min(free / 2, below) : free / 2);
    Line(Side::Local).Top = static_cast<float>(top);
    Line(Side::Zone).Top = static_cast<float>(std::nearbyint(top + first + gap));
    hint.Top = static_cast<float>(std::floor(top + first + gap + second + apart));
}

bool CalculatorLines::IsAutomatic(Side side) const {
    return mduAPILib::IntegerValue(Value(side, u"Font Size"_s)) == -1;
}

// The whole number of pixels at which the widest automatic line fills the width, and two lines,
// with the hint while there is one, have room in the height; in points.
double CalculatorLines::AutomaticSize() const {
    constexpr double tried = 100;  // logical pixels
    const Surface& surface = face_.Window.Surface();
    const double ratio = surface.DevicePixelRatio();
    const double rows = 2 + LinesApart + (isTyping_ ? HintSize * (1 + HintApart) : 0);
    double pixels = LargestSize;
    for (const Side side : {Side::Local, Side::Zone}) {
        if (IsAutomatic(side)) {
            QFont font = Line(side).Font;
            font.setPointSizeF(tried * PointsPerPixel);
            const double height = TextSize(font, WidestMoment(), ratio).height();
            const double across = surface.ScaleWidth() / WidestText(side, font);
            const double down = surface.ScaleHeight() / (rows * height);
            pixels = std::min(pixels, tried * Filled * std::min(across, down));
        }
    }
    return std::max(std::floor(pixels) * PointsPerPixel, SmallestSize);
}

// In the colour of the first line, in the middle of the width.
void CalculatorLines::FillHint() {
    const Surface& surface = face_.Window.Surface();
    Control& hint = Hint();
    hint.Caption = u"Esc: present time"_s;
    hint.ForeColor = Line(Side::Local).ForeColor;
    hint.Font = Line(Side::Local).Font;
    hint.Font.setPointSizeF(
        std::clamp(HintSize * hint.Font.pointSizeF(), SmallestHint, LargestHint));
    AutoSize(hint, surface.DevicePixelRatio());
    const double free = surface.ScaleWidth() - static_cast<double>(hint.Width);
    hint.Left = static_cast<float>(std::nearbyint(free / 2));
}

}  // namespace drawing
