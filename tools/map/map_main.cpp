// Draws the map of the world behind the window of zones.
//
//   tempolark_map SHORES.txt FILE.png [WIDTH]
//
// The picture is equirectangular, twice as wide as high, and begins at the date line: each degree
// has the same number of pixels in both directions. It is 1440 pixels wide if no width is given.
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <cstdio>

#include "Shores.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QColor Shallows(0xd6, 0xe7, 0xf2);
constexpr QColor ShoreLine(0x6f, 0x8d, 0xa6);

QLinearGradient FromPoleToPole(double height) {
    return {0, 0, 0, height};
}

/// Deeper blue to the equator.
QBrush Sea(double height) {
    QLinearGradient sea = FromPoleToPole(height);
    sea.setColorAt(0.0, QColor(0xbd, 0xd6, 0xe6));
    sea.setColorAt(0.5, QColor(0x97, 0xbd, 0xd8));
    sea.setColorAt(1.0, QColor(0xbd, 0xd6, 0xe6));
    return sea;
}

/// Green at the equator, sand at the tropics, forests, and ice at the poles; all of them pale.
QBrush Land(double height) {
    struct Belt {
        double Latitude;
        QColor Colour;
    };
    const Belt belts[] = {{90, QColor(0xf6, 0xf8, 0xf9)},  {74, QColor(0xee, 0xf1, 0xee)},
                          {64, QColor(0xdb, 0xe0, 0xcb)},  {48, QColor(0xd3, 0xdd, 0xb6)},
                          {36, QColor(0xe0, 0xdc, 0xb9)},  {24, QColor(0xeb, 0xdf, 0xbd)},
                          {12, QColor(0xda, 0xdc, 0xb2)},  {0, QColor(0xc9, 0xd9, 0xac)},
                          {-14, QColor(0xd6, 0xdb, 0xb1)}, {-25, QColor(0xe6, 0xdc, 0xb9)},
                          {-42, QColor(0xd6, 0xdd, 0xb9)}, {-56, QColor(0xdd, 0xe2, 0xcf)},
                          {-63, QColor(0xf1, 0xf4, 0xf3)}, {-90, QColor(0xf8, 0xfa, 0xfb)}};
    QLinearGradient land = FromPoleToPole(height);
    for (const Belt& belt : belts) {
        land.setColorAt((90 - belt.Latitude) / 180, belt.Colour);
    }
    return land;
}

/// The sea brightens towards the shore in steps too fine to be seen.
void PaintShallows(QPainter& painter, const QPainterPath& land, double degree) {
    constexpr int Steps = 10;
    for (int step = Steps; step > 0; --step) {
        QColor colour = Shallows;
        colour.setAlphaF(0.065F);
        painter.setPen(
            QPen(colour, step * 0.33 * degree, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(land);
    }
}

void PaintGraticule(QPainter& painter, double degree) {
    for (int angle = -180; angle <= 180; angle += 30) {
        const bool main = angle == 0;
        painter.setPen(QPen(QColor(0x2c, 0x4d, 0x6e, main ? 88 : 44), main ? 1.4 : 1.0));
        const double x = (angle + 180) * degree;
        painter.drawLine(QPointF(x, 0), QPointF(x, 180 * degree));
        if (angle > -90 && angle < 90) {
            const double y = (90 - angle) * degree;
            painter.drawLine(QPointF(0, y), QPointF(360 * degree, y));
        }
    }
}

/// Places behind the date line come in again from the other side.
QPainterPath InPixels(const QPainterPath& path, double degree) {
    const QTransform scale(degree, 0, 0, -degree, 180 * degree, 90 * degree);
    QPainterPath whole = scale.map(path);
    whole.addPath(whole.translated(-360 * degree, 0));
    whole.setFillRule(Qt::WindingFill);
    return whole;
}

QImage Draw(const map::Shores& shores, int width) {
    const double degree = width / 360.0;
    QImage image(width, width / 2, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(image.rect(), Sea(image.height()));
    const QPainterPath land = InPixels(shores.Land, degree);
    const QPainterPath water = InPixels(shores.Water, degree);
    PaintShallows(painter, land, degree);
    painter.setPen(QPen(ShoreLine, 0.2 * degree));
    painter.setBrush(Land(image.height()));
    painter.drawPath(land.simplified());
    painter.drawPath(InPixels(shores.Isles, degree));
    painter.setBrush(QColor(0xb2, 0xcf, 0xe3));
    painter.drawPath(water);
    PaintGraticule(painter, degree);
    return image;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList words = QGuiApplication::arguments().mid(1);
    const int width = words.size() > 2 ? words[2].toInt() : 1440;
    if (words.size() < 2 || words.size() > 3 || width < 2) {
        std::fprintf(stderr, "usage: tempolark_map SHORES.txt FILE.png [WIDTH]\n");
        return 2;
    }
    const auto shores = map::ReadShores(words[0]);
    return shores && Draw(*shores, width).save(words[1], "PNG") ? 0 : 1;
}
