#pragma once

#include <QPainter>
#include <QRegion>

namespace clockcore {

/// Dims what has been painted: a disabled clock looks like one. What is see-through stays so. The
/// clock paints it over its face and its frame over the border, each as the last thing.
/// @param painter of the widget; its composition mode is another one afterwards
/// @param region what is being painted anew, in logical pixels. Each pixel may be in it only once
/// since it was painted: the veil is half transparent, and a second one would darken it further.
inline void DrawDisabledVeil(QPainter& painter, const QRegion& region) {
    const QColor veil(150, 150, 150, 150);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    for (const QRect& part : region) {
        painter.fillRect(part, veil);
    }
}

}  // namespace clockcore
