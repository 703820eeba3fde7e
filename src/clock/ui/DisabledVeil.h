#pragma once

#include <QPainter>
#include <QRegion>

namespace clockcore {

/// Dims what has been painted: a disabled clock looks like one. What is see-through stays so.
inline void DrawDisabledVeil(QPainter& painter, const QRegion& region) {
    const QColor veil(150, 150, 150, 150);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    for (const QRect& part : region) {
        painter.fillRect(part, veil);
    }
}

}  // namespace clockcore
