#include "drawing/ClockPlate.h"

#include <QPainter>
#include <algorithm>

#include "foundation/Numbers.h"

namespace drawing {

namespace {

constexpr double LeastSide = 100;   // logical pixels
constexpr int DarkBelow = 64;       // of 255, a colour's grey
constexpr double Darker = 0.2;      // of the way to black
constexpr double Lighter = 0.14;    // of the way to white
constexpr double Edge = 0.35;       // of the way to black or white
constexpr double Faint = 0.1;       // of the way to black or white
constexpr int PictureShade = 56;    // of 255: black over a picture
constexpr int ShadowStrength = 22;  // of 255, for each ring
constexpr int ShadowRings = 4;

int Extent(int centre, int whole, double least) {
    const int within = 2 * std::min(centre, whole - centre);
    return std::clamp(within, std::min(mduAPILib::RoundToInteger(least), whole), whole);
}

QColor Mix(const QColor& from, const QColor& to, double part) {
    const auto mix = [part](int a, int b) { return mduAPILib::RoundToInteger(a + part * (b - a)); };
    return {mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue())};
}

bool IsDark(const QColor& colour) {
    return qGray(colour.rgb()) < DarkBelow;
}

/// Away from a colour: towards black, or towards white from a dark one.
QColor Away(const QColor& colour, double part) {
    return Mix(colour, IsDark(colour) ? Qt::white : Qt::black, part);
}

/// Rings around the figure that grow fainter away from it. The plate covers their inner halves.
void PaintShadow(QPainter& painter, const QPainterPath& figure, double ratio) {
    painter.setBrush(Qt::NoBrush);
    for (int ring = 1; ring <= ShadowRings; ++ring) {
        QPen pen(QColor(0, 0, 0, ShadowStrength), 2 * ring * ratio);
        pen.setJoinStyle(Qt::RoundJoin);
        painter.setPen(pen);
        painter.drawPath(figure.translated(0, ratio));
    }
}

}  // namespace

QRect PlateBox(const QPoint& centre, const Surface& surface) {
    const double least = LeastSide * surface.DevicePixelRatio();
    const QSize size(Extent(centre.x(), surface.ScaleWidth(), least),
                     Extent(centre.y(), surface.ScaleHeight(), least));
    return {centre.x() - size.width() / 2, centre.y() - size.height() / 2, size.width(),
            size.height()};
}

QColor ShadeOf(const QColor& colour) {
    return IsDark(colour) ? Mix(colour, Qt::white, Lighter) : Mix(colour, Qt::black, Darker);
}

void PaintPlate(QPainter& painter, const QPainterPath& figure, const QColor& colour,
                PlateGround ground, double devicePixelRatio) {
    const bool seeThrough = ground == PlateGround::SeeThrough;
    painter.save();
    if (!seeThrough) {
        const QColor overPicture(0, 0, 0, PictureShade);
        painter.fillRect(painter.viewport(),
                         ground == PlateGround::Picture ? overPicture : ShadeOf(colour));
        PaintShadow(painter, figure, devicePixelRatio);
    }
    const QColor plate = seeThrough ? Away(colour, Faint) : colour;
    // A soft edge would leave a seam of pixels that are nearly the colour key, but not quite.
    painter.setRenderHint(QPainter::Antialiasing, !(seeThrough && colour == QColor(Qt::white)));
    painter.setBrush(plate);
    painter.setPen(QPen(Away(plate, Edge), devicePixelRatio));
    painter.drawPath(figure);
    painter.restore();
}

}  // namespace drawing
