// The small marks: spots of the minutes, the handle of a transparent window, the dial of the icon.
#include <QPainter>
#include <QPolygonF>
#include <QRadialGradient>
#include <QTransform>

#include "drawing/StockPicturesDraw.h"

namespace drawing::stock {

namespace {

constexpr double SpotRadius = 43;
constexpr double RimWidth = 5;

struct SpotTones {
    QColor Light, Middle, Dark;
};

SpotTones TonesOf(bool left) {
    return left ? SpotTones{{214, 222, 230}, {92, 106, 122}, {44, 54, 67}}
                : SpotTones{{190, 204, 222}, {58, 78, 108}, {22, 32, 50}};
}

QPainterPath ArrowUp() {
    QPainterPath arrow;
    arrow.addPolygon(
        QPolygonF{{0, -45}, {17, -27}, {5, -27}, {5, 0}, {-5, 0}, {-5, -27}, {-17, -27}});
    arrow.closeSubpath();
    return arrow;
}

void DrawHand(QPainter& painter, int degrees, double length, double width, const QColor& colour) {
    painter.save();
    painter.rotate(degrees);
    painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(0, 0), QPointF(0, -length));
    painter.restore();
}

}  // namespace

void DrawHalo(QPainter& painter, const QPainterPath& figure, double width) {
    painter.save();
    painter.setPen(
        QPen(QColor(255, 255, 255, 225), 2 * width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(QColor(255, 255, 255, 225));
    painter.drawPath(figure);
    painter.restore();
}

void DrawSpot(QPainter& painter, bool left) {
    const SpotTones tones = TonesOf(left);
    QRadialGradient sphere(QPointF(0, 0), SpotRadius, QPointF(-16, -18));
    sphere.setColorAt(0, tones.Light);
    sphere.setColorAt(0.45, tones.Middle);
    sphere.setColorAt(1, tones.Dark);
    painter.setBrush(sphere);
    painter.setPen(QPen(QColor(232, 237, 244, 235), RimWidth));
    painter.drawEllipse(QPointF(0, 0), SpotRadius + RimWidth / 2, SpotRadius + RimWidth / 2);
    QRadialGradient gleam(QPointF(-15, -17), 15);
    gleam.setColorAt(0, QColor(255, 255, 255, 230));
    gleam.setColorAt(1, QColor(255, 255, 255, 0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(gleam);
    painter.drawEllipse(QPointF(-15, -17), 15, 15);
}

void DrawHandle(QPainter& painter) {
    QPainterPath arrows;
    for (const int degrees : {0, 90, 180, 270}) {
        arrows = arrows.united(QTransform().rotate(degrees).map(ArrowUp()));
    }
    DrawHalo(painter, arrows, 5);
    painter.setBrush(Slate);
    painter.setPen(QPen(Slate, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(arrows);
}

void DrawClock(QPainter& painter) {
    QRadialGradient dial(QPointF(0, 0), 43, QPointF(-12, -14));
    dial.setColorAt(0, Qt::white);
    dial.setColorAt(0.75, Ivory);
    dial.setColorAt(1, QColor(226, 229, 232));
    QPainterPath whole;
    whole.addEllipse(QPointF(0, 0), 47, 47);
    DrawHalo(painter, whole, 2);
    painter.setPen(QPen(Slate, 8));
    painter.setBrush(dial);
    painter.drawEllipse(QPointF(0, 0), 43, 43);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(33, 53, 85, 150));
    for (const QPointF hour : {QPointF(0, -32), QPointF(32, 0), QPointF(0, 32), QPointF(-32, 0)}) {
        painter.drawEllipse(hour, 2.4, 2.4);
    }
    DrawHand(painter, 305, 21, 9, Slate);
    DrawHand(painter, 60, 30, 7, Slate);
    DrawHand(painter, 195, 30, 4, Red);
    painter.setBrush(Red);
    painter.drawEllipse(QPointF(0, 0), 4, 4);
}

}  // namespace drawing::stock
