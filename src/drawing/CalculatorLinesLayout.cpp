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
    for (const bool zoneLine : {false, true}) {
        const double size = mduAPILib::IntegerValue(Value(zoneLine, u"Font Size"_s));
        QFont font(Value(zoneLine, u"Font"_s).trimmed());
        font.setPointSizeF(std::clamp(size, SmallestSize, LargestSize));
        Line(zoneLine).Font = font;
    }
    const double automatic = AutomaticSize();
    for (const bool zoneLine : {false, true}) {
        if (IsAutomatic(zoneLine)) {
            Line(zoneLine).Font.setPointSizeF(automatic);
        }
        PlaceAcross(zoneLine);
    }
    if (isTyping_) {
        FillHint();
    }
    PlaceBelowEachOther();
}

double CalculatorLines::WidestText(bool zoneLine, const QFont& font) const {
    const double ratio = face_.Window.Surface().DevicePixelRatio();
    const auto widthOf = [&](const QString& text) {
        return TextSize(font, Prefix(zoneLine) + text, ratio).width();
    };
    return std::max(widthOf(WidestMoment()), widthOf(Line(zoneLine).Tag));
}

// Laid out for the widest text, so that a line stands still while its figures change.
void CalculatorLines::PlaceAcross(bool zoneLine) {
    const Surface& surface = face_.Window.Surface();
    Control& line = Line(zoneLine);
    const double left = (surface.ScaleWidth() - WidestText(zoneLine, line.Font)) / 2;
    line.Left =
        static_cast<float>(std::nearbyint(std::max(left, Margin * surface.DevicePixelRatio())));
    AutoSize(line, surface.DevicePixelRatio());
}

// In the middle of the height, and no lower than the hint's room below them allows. Where it finds
// no room even so, there is none.
void CalculatorLines::PlaceBelowEachOther() {
    const Surface& surface = face_.Window.Surface();
    Control& hint = face_.Controls.lblClock(1);
    const double first = static_cast<double>(Line(false).Height);
    const double second = static_cast<double>(Line(true).Height);
    const double gap = LinesApart * std::max(first, second);
    const double apart = HintApart * static_cast<double>(hint.Height);
    const double free = surface.ScaleHeight() - first - gap - second;
    const double below = free - apart - static_cast<double>(hint.Height);
    const bool fitsAcross = static_cast<double>(hint.Width) <= surface.ScaleWidth();
    hint.Visible = isTyping_ && fitsAcross && below >= 0;
    const double top = std::nearbyint(hint.Visible ? std::min(free / 2, below) : free / 2);
    Line(false).Top = static_cast<float>(top);
    Line(true).Top = static_cast<float>(std::nearbyint(top + first + gap));
    hint.Top = static_cast<float>(std::floor(top + first + gap + second + apart));
}

bool CalculatorLines::IsAutomatic(bool zoneLine) const {
    return mduAPILib::IntegerValue(Value(zoneLine, u"Font Size"_s)) == -1;
}

// The whole number of pixels at which the widest automatic line fills the width, and two lines,
// with the hint while there is one, have room in the height; in points.
double CalculatorLines::AutomaticSize() const {
    constexpr double tried = 100;  // logical pixels
    const Surface& surface = face_.Window.Surface();
    const double ratio = surface.DevicePixelRatio();
    const double rows = 2 + LinesApart + (isTyping_ ? HintSize * (1 + HintApart) : 0);
    double pixels = LargestSize;
    for (const bool zoneLine : {false, true}) {
        if (IsAutomatic(zoneLine)) {
            QFont font = Line(zoneLine).Font;
            font.setPointSizeF(tried * PointsPerPixel);
            const double height = TextSize(font, WidestMoment(), ratio).height();
            const double across = surface.ScaleWidth() / WidestText(zoneLine, font);
            const double down = surface.ScaleHeight() / (rows * height);
            pixels = std::min(pixels, tried * Filled * std::min(across, down));
        }
    }
    return std::max(std::floor(pixels) * PointsPerPixel, SmallestSize);
}

// In the colour of the first line, in the middle of the width.
void CalculatorLines::FillHint() {
    const Surface& surface = face_.Window.Surface();
    Control& hint = face_.Controls.lblClock(1);
    hint.Caption = u"Esc: present time"_s;
    hint.ForeColor = Line(false).ForeColor;
    hint.Font = Line(false).Font;
    hint.Font.setPointSizeF(
        std::clamp(HintSize * hint.Font.pointSizeF(), SmallestHint, LargestHint));
    AutoSize(hint, surface.DevicePixelRatio());
    const double free = surface.ScaleWidth() - static_cast<double>(hint.Width);
    hint.Left = static_cast<float>(std::nearbyint(free / 2));
}

}  // namespace drawing
