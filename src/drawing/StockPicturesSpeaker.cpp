// The speaker: idle, muted, talking.
#include <QLinearGradient>
#include <QPainter>
#include <QPolygonF>
#include <vector>

#include "drawing/StockPicturesDraw.h"

namespace drawing::stock {

namespace {

constexpr double WaveWidth = 7;
constexpr double HaloWidth = 4;
constexpr QPointF Mouth{-12, 0};

QPainterPath Body() {
    QPainterPath body;
    body.addPolygon(QPolygonF{{-43, -13}, {-30, -13}, {-11, -31}, {-11, 31}, {-30, 13}, {-43, 13}});
    body.closeSubpath();
    return body;
}

QPainterPath Wave(double radius) {
    constexpr double opening = 84;  // degrees
    QPainterPath wave;
    const QRectF circle(Mouth.x() - radius, Mouth.y() - radius, 2 * radius, 2 * radius);
    wave.arcMoveTo(circle, -opening / 2);
    wave.arcTo(circle, -opening / 2, opening);
    return wave;
}

QPainterPath Cross() {
    QPainterPath cross;
    cross.moveTo(9, -14);
    cross.lineTo(37, 14);
    cross.moveTo(9, 14);
    cross.lineTo(37, -14);
    return cross;
}

// Seams first, so that none lies over its neighbour.
void DrawStrokes(QPainter& painter, const std::vector<QPainterPath>& strokes, const QColor& colour,
                 double width) {
    painter.setBrush(Qt::NoBrush);
    for (const double seam : {HaloWidth, 0.0}) {
        painter.setPen(QPen(seam > 0 ? QColor(255, 255, 255, 225) : colour, width + 2 * seam,
                            Qt::SolidLine, Qt::RoundCap));
        for (const QPainterPath& stroke : strokes) {
            painter.drawPath(stroke);
        }
    }
}

}  // namespace

void DrawSpeaker(QPainter& painter, SpeakerState state) {
    DrawHalo(painter, Body(), HaloWidth + 2);
    switch (state) {
        case SpeakerState::Idle:
            DrawStrokes(painter, {Wave(21), Wave(37)}, QColor(78, 104, 142), WaveWidth);
            break;
        case SpeakerState::Muted:
            DrawStrokes(painter, {Cross()}, Red, WaveWidth + 2);
            break;
        case SpeakerState::Talking:
            DrawStrokes(painter, {Wave(20), Wave(36), Wave(52)}, QColor(22, 134, 230), WaveWidth);
    }
    QLinearGradient metal(-43, -31, -11, 31);
    metal.setColorAt(0, QColor(70, 94, 132));
    metal.setColorAt(1, QColor(24, 40, 68));
    painter.setBrush(metal);
    painter.setPen(QPen(Slate, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(Body());
}

}  // namespace drawing::stock
