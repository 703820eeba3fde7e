// The sun of the morning and the moon of the afternoon.
#include <QPainter>
#include <QPolygonF>
#include <QRadialGradient>

#include "drawing/StockPicturesDraw.h"

namespace drawing::stock {

namespace {

constexpr int Rays = 12;
constexpr double SunRadius = 22;

void DrawGlow(QPainter& painter, const QPointF& centre, double radius, const QColor& colour) {
    QRadialGradient glow(centre, radius);
    glow.setColorAt(0, colour);
    QColor faint = colour;
    faint.setAlpha(colour.alpha() / 3);
    glow.setColorAt(0.6, faint);
    faint.setAlpha(0);
    glow.setColorAt(1, faint);
    painter.setPen(Qt::NoPen);
    painter.setBrush(glow);
    painter.drawEllipse(centre, radius, radius);
}

// A slender drop that points outward.
QPainterPath Ray(double length) {
    constexpr double root = SunRadius + 6;
    QPainterPath ray;
    ray.moveTo(-2.9, -root);
    ray.quadTo(-1.6, -root - length / 2, 0, -root - length);
    ray.quadTo(1.6, -root - length / 2, 2.9, -root);
    ray.quadTo(0, -root + 2.5, -2.9, -root);
    return ray;
}

// Four points with hollow sides.
QPainterPath Star(const QPointF& centre, double radius) {
    QPainterPath star;
    const QPointF tips[] = {{0, -radius}, {radius, 0}, {0, radius}, {-radius, 0}};
    star.moveTo(centre + tips[3]);
    for (const QPointF& tip : tips) {
        star.quadTo(centre, centre + tip);
    }
    return star;
}

}  // namespace

void DrawSun(QPainter& painter) {
    DrawGlow(painter, {0, 0}, 50, QColor(255, 190, 60, 110));
    painter.setPen(QPen(QColor(214, 122, 10, 150), 1));
    painter.setBrush(QColor(246, 160, 26));
    for (int i = 0; i < Rays; ++i) {
        painter.drawPath(Ray(i % 2 == 0 ? 20 : 13));
        painter.rotate(360.0 / Rays);
    }
    QRadialGradient disc(QPointF(0, 0), SunRadius, QPointF(-7, -8));
    disc.setColorAt(0, QColor(255, 246, 196));
    disc.setColorAt(0.55, QColor(255, 210, 74));
    disc.setColorAt(1, QColor(244, 158, 20));
    painter.setPen(QPen(QColor(214, 122, 10), 1.6));
    painter.setBrush(disc);
    painter.drawEllipse(QPointF(0, 0), SunRadius, SunRadius);
}

void DrawMoon(QPainter& painter) {
    DrawGlow(painter, {-6, 4}, 44, QColor(128, 152, 214, 150));
    QPainterPath whole;
    whole.addEllipse(QPointF(-6, 4), 34, 34);
    QPainterPath shade;
    shade.addEllipse(QPointF(12, -6), 30, 30);
    QLinearGradient light(-34, -20, 14, 38);
    light.setColorAt(0, QColor(255, 251, 232));
    light.setColorAt(0.6, QColor(248, 228, 164));
    light.setColorAt(1, QColor(222, 188, 108));
    painter.setPen(QPen(QColor(112, 94, 48), 2.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(light);
    painter.drawPath(whole.subtracted(shade));
    painter.setPen(QPen(QColor(124, 102, 44), 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(QColor(255, 240, 190));
    painter.drawPath(Star({14, -16}, 12));
    painter.drawPath(Star({33, 4}, 9));
}

}  // namespace drawing::stock
