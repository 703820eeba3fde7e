// The marks of timers: the bell on the ring of a dial, the switch of a pending action.
#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>

#include "drawing/StockPicturesDraw.h"

namespace drawing::stock {

namespace {

constexpr double RimWidth = 6;
constexpr QColor Amber{247, 178, 44};
constexpr QColor DarkAmber{196, 112, 10};
constexpr QColor Brown{94, 48, 6};
constexpr QColor Blue{22, 134, 230};

// Broad and plain, so that twelve pixels still show a bell.
QPainterPath BellBody() {
    QPainterPath bell;
    bell.moveTo(-38, 22);
    bell.quadTo(-27, 12, -27, -8);
    bell.cubicTo(-27, -26, -16, -36, 0, -36);
    bell.cubicTo(16, -36, 27, -26, 27, -8);
    bell.quadTo(27, 12, 38, 22);
    bell.closeSubpath();
    return bell;
}

QPainterPath Round(double x, double y, double radius) {
    QPainterPath circle;
    circle.addEllipse(QPointF(x, y), radius, radius);
    return circle;
}

QPainterPath WaveAt(double side) {
    constexpr double radius = 43;
    constexpr double opening = 84;  // degrees
    const QRectF circle(-radius, -radius, 2 * radius, 2 * radius);
    const double start = (side > 0 ? 0 : 180) - opening / 2;
    QPainterPath wave;
    wave.arcMoveTo(circle, start);
    wave.arcTo(circle, start, opening);
    return wave;
}

void DrawStroke(QPainter& painter, const QPainterPath& path, const QColor& colour, double width) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(path);
}

// A round button in alarm red with the sign of a switch.
void DrawSwitch(QPainter& painter, double radius) {
    DrawHalo(painter, Round(0, 0, radius), RimWidth / 2);
    QRadialGradient button(QPointF(0, 0), radius, QPointF(-radius / 3, -radius / 3));
    button.setColorAt(0, QColor(238, 104, 84));
    button.setColorAt(0.6, Red);
    button.setColorAt(1, QColor(146, 30, 22));
    painter.setPen(QPen(QColor(104, 18, 14), 0.06 * radius));
    painter.setBrush(button);
    painter.drawEllipse(QPointF(0, 0), radius, radius);

    const double ring = 0.52 * radius;
    QPainterPath sign;
    sign.arcMoveTo(QRectF(-ring, -ring, 2 * ring, 2 * ring), 125);
    sign.arcTo(QRectF(-ring, -ring, 2 * ring, 2 * ring), 125, 290);
    sign.moveTo(0, -0.7 * radius);
    sign.lineTo(0, -0.08 * radius);
    DrawStroke(painter, sign, Ivory, 0.19 * radius);
}

}  // namespace

void DrawTimerMark(QPainter& painter) {
    painter.save();
    painter.translate(0, 2);
    painter.scale(1.06, 1.03);
    QPainterPath below;
    below.addRect(-20, 26, 40, 30);
    const QPainterPath clapper = Round(0, 28, 10).intersected(below);
    const QPainterPath figure =
        BellBody().united(Round(0, 28, 11)).united(Round(0, -36, 7)).simplified();
    DrawHalo(painter, figure, RimWidth);
    painter.setPen(QPen(Brown, RimWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Brown);
    painter.drawPath(figure);
    QLinearGradient brass(-30, -30, 30, 20);
    brass.setColorAt(0, QColor(255, 226, 130));
    brass.setColorAt(0.5, Amber);
    brass.setColorAt(1, DarkAmber);
    painter.setPen(Qt::NoPen);
    painter.setBrush(brass);
    painter.drawPath(BellBody());
    painter.setBrush(Amber);
    painter.drawPath(clapper);
    painter.restore();
}

void DrawAction(QPainter& painter) {
    DrawSwitch(painter, 43);
}

// One broad wave to each side: two would run together at the size of a mark.
void DrawActionSpeaking(QPainter& painter) {
    for (const bool seam : {true, false}) {
        for (const double side : {-1.0, 1.0}) {
            DrawStroke(painter, WaveAt(side), seam ? QColor(255, 255, 255, 225) : Blue,
                       seam ? 12 : 7);
        }
    }
    DrawSwitch(painter, 31);
}

}  // namespace drawing::stock
