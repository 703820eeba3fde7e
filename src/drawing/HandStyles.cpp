#include "drawing/HandStyles.h"

#include <array>

#include "drawing/Hands.h"
#include "drawing/Hands3D.h"
#include "foundation/Numbers.h"

using namespace Qt::StringLiterals;

namespace drawing {

namespace {

constexpr float TailRatio = 0.3F;  // of the shaded hands

/// One hand on its way to the surface.
struct Hand {
    int Cx, Cy;
    double Angle;
    int Length;
    int LineWidth;
    double Ratio;    // device pixels to a logical pixel
    int Colour = 0;  // for its drawing only

    int Pen() const { return mduAPILib::RoundToInteger(LineWidth * Ratio); }
    double Width() const { return LineWidth * Ratio; }
};

QRect WithShadow(const QRect& bounds, const Hand& hand) {
    return bounds | bounds.translated(ShadowOffset(hand.Ratio));
}

void DrawLine(Surface& surface, const Hand& hand) {
    DrawSimpleLine(surface, hand.Cx, hand.Cy, hand.Angle, hand.Length, hand.Colour, hand.Pen());
}

QRect LineBox(const Hand& hand) {
    return LineBounds(hand.Cx, hand.Cy, hand.Angle, hand.Length, hand.Pen());
}

void DrawOutline(Surface& surface, const Hand& hand) {
    DrawFrame(surface, hand.Cx, hand.Cy, hand.Angle, hand.Length, hand.Colour, hand.Pen());
}

QRect OutlineBox(const Hand& hand) {
    return FrameBounds(hand.Cx, hand.Cy, hand.Angle, hand.Length, hand.Pen());
}

template <int Tone>
void DrawBar(Surface& surface, const Hand& hand) {
    Draw3DSimpleLine(surface, hand.Cx, hand.Cy, hand.Angle, hand.Length, TailRatio, Tone,
                     hand.Width());
}

QRect BarBox(const Hand& hand) {
    return WithShadow(BarBounds(hand.Cx, hand.Cy, hand.Angle, hand.Length, TailRatio, hand.Width()),
                      hand);
}

void DrawKiteIn(int toneOrColour, Surface& surface, const Hand& hand) {
    Draw3D(surface, hand.Cx, hand.Cy, hand.Angle, hand.Length, TailRatio, toneOrColour,
           hand.LineWidth);
}

template <int Tone>
void DrawKite(Surface& surface, const Hand& hand) {
    DrawKiteIn(Tone, surface, hand);
}

void DrawColouredKite(Surface& surface, const Hand& hand) {
    DrawKiteIn(hand.Colour, surface, hand);
}

QRect KiteBox(const Hand& hand) {
    return WithShadow(
        KiteBounds(hand.Cx, hand.Cy, hand.Angle, hand.Length, TailRatio, hand.LineWidth), hand);
}

struct StyleRow {
    QLatin1StringView Name;
    void (*Draw)(Surface&, const Hand&);
    QRect (*Bounds)(const Hand&);
    HandStyle Style;
    bool IsPen;
};

constexpr StyleRow Styles[] = {
    {"Line"_L1, DrawLine, LineBox, HandStyle::Line, true},
    {"Frame"_L1, DrawOutline, OutlineBox, HandStyle::Frame, true},
    {"3D Metal Simple"_L1, DrawBar<MetalTone>, BarBox, HandStyle::MetalSimple, false},
    {"3D Gold Simple"_L1, DrawBar<GoldTone>, BarBox, HandStyle::GoldSimple, false},
    {"3D Metal"_L1, DrawKite<MetalTone>, KiteBox, HandStyle::Metal, false},
    {"3D Gold"_L1, DrawKite<GoldTone>, KiteBox, HandStyle::Gold, false},
    {"3D"_L1, DrawColouredKite, KiteBox, HandStyle::Solid, false},
};

/// Null for an unknown style.
const StyleRow* FindRow(HandStyle style) {
    for (const StyleRow& row : Styles) {
        if (row.Style == style) {
            return &row;
        }
    }
    return nullptr;
}

}  // namespace

HandStyle ReadHandStyle(const QString& text) {
    const QStringView name = QStringView(text).trimmed();
    for (const StyleRow& row : Styles) {
        if (name == row.Name) {
            return row.Style;
        }
    }
    return HandStyle::Unknown;
}

QStringList HandStyleNames() {
    QStringList names;
    for (const StyleRow& row : Styles) {
        names += row.Name;
    }
    return names;
}

bool IsPen(HandStyle style) {
    const StyleRow* row = FindRow(style);
    return row && row->IsPen;
}

void DrawClockHand(Surface& surface, HandStyle style, int cx, int cy, double angle, int length,
                   int colour, int lineWidth) {
    const StyleRow* row = FindRow(style);
    if (row && length > 0) {
        row->Draw(surface, {cx, cy, angle, length, lineWidth, surface.DevicePixelRatio(), colour});
    }
}

QRect HandBounds(HandStyle style, int cx, int cy, double angle, int length, int lineWidth,
                 double devicePixelRatio) {
    const StyleRow* row = FindRow(style);
    return row && length > 0 ? row->Bounds({cx, cy, angle, length, lineWidth, devicePixelRatio})
                             : QRect();
}

}  // namespace drawing
