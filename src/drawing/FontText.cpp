#include "drawing/FontText.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QRawFont>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace drawing {

namespace {

constexpr int DesignSize = 1000;  // outlines are taken at this size in pixels, then scaled
constexpr int HeaviestKnown = 1000;

struct StandIn {
    QLatin1StringView Name, Family;
};

constexpr StandIn StandIns[] = {{"Times New Roman"_L1, "Liberation Serif"_L1},
                                {"Arial"_L1, "Liberation Sans"_L1},
                                {"Arial Narrow"_L1, "Liberation Sans Narrow"_L1},
                                {"Courier New"_L1, "Liberation Mono"_L1}};

QFont::Weight WeightOf(int weight, const QString& family) {
    if (weight <= HeaviestKnown) {
        return weight > 0 ? static_cast<QFont::Weight>(weight) : QFont::Normal;
    }
    return QFontDatabase::styles(family).contains("Black"_L1) ? QFont::Black : QFont::Bold;
}

QFont DesignFont(const LogFont& font) {
    const QString family = InstalledFamily(font.FaceName);
    QFont design(family);
    design.setPixelSize(DesignSize);
    design.setWeight(WeightOf(font.Weight, family));
    design.setItalic(font.Italic);
    design.setKerning(false);
    design.setHintingPreference(QFont::PreferNoHinting);
    return design;
}

// The fonts' own tables tell two different averages, by the age of the font; this is the older one,
// which the device means.
double AverageWidth(const QFont& font) {
    static const QString letters = u"abcdefghijklmnopqrstuvwxyz "_s;
    constexpr std::array<int, 27> perMille = {64, 14, 27, 35, 100, 20, 14, 42, 63,
                                              3,  6,  35, 20, 56,  56, 17, 4,  49,
                                              56, 71, 31, 10, 18,  3,  18, 2,  166};
    const QRawFont raw = QRawFont::fromFont(font);
    const QList<QPointF> advances = raw.advancesForGlyphIndexes(raw.glyphIndexesForString(letters));
    if (advances.size() != letters.size()) {
        return raw.averageCharWidth();
    }
    double sum = 0;
    for (qsizetype i = 0; i < advances.size(); ++i) {
        sum += advances[i].x() * perMille[static_cast<std::size_t>(i)];
    }
    return sum / 1000;
}

void AddLine(QPainterPath& path, double length, double middle, double thickness) {
    path.addRect(0, middle - thickness / 2, length, thickness);
}

/// The text's outline at the design size, its cell's top left corner at (0, 0).
QPainterPath Outline(const QString& text, const LogFont& font, const QFont& design,
                     const QFontMetricsF& metrics) {
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addText(0, metrics.ascent(), design, text);
    const double length = metrics.horizontalAdvance(text);
    if (font.Underline) {
        AddLine(path, length, metrics.ascent() + metrics.underlinePos(), metrics.lineWidth());
    }
    if (font.StrikeOut) {
        AddLine(path, length, metrics.ascent() - metrics.strikeOutPos(), metrics.lineWidth());
    }
    return path;
}

}  // namespace

// Whether a family is installed is asked once: the font database goes through its rules each time,
// which takes longer than a running message has for a step.
QString InstalledFamily(const QString& name) {
    static std::array<std::optional<bool>, std::size(StandIns)> installed;
    for (std::size_t i = 0; i < std::size(StandIns); ++i) {
        const StandIn& standIn = StandIns[i];
        if (name.compare(standIn.Name, Qt::CaseInsensitive) == 0) {
            if (!installed[i]) {
                installed[i] = QFontDatabase::hasFamily(name);
            }
            return *installed[i] ? name : standIn.Family;
        }
    }
    return name;
}

void DrawFontText(Surface& surface, const QString& text, double x, double y, const LogFont& font,
                  int colour) {
    if (text.isEmpty() || font.Height > LargestFontExtent || font.Width > LargestFontExtent) {
        return;
    }
    const QFont design = DesignFont(font);
    const QFontMetricsF metrics(design);
    const double height =
        font.Height > 0 ? font.Height : DefaultFontHeight * surface.DevicePixelRatio();
    const double scaleY = height / (metrics.ascent() + metrics.descent());
    const double scaleX = font.Width > 0 ? font.Width / AverageWidth(design) : scaleY;
    const QPainterPath outline = Outline(text, font, design, metrics);
    surface.Paint([&](QPainter& painter) {
        painter.translate(x, y);
        painter.rotate(-font.Escapement / 10.0);
        painter.scale(scaleX, scaleY);
        painter.fillPath(outline, QColor::fromRgb(ToRgb(colour)));
    });
}

}  // namespace drawing
