#include "shell/ui/ProgramIcon.h"

#include <QPainter>
#include <QPixmap>

namespace {

QPixmap Draw(int side) {
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setWindow(-50, -50, 100, 100);
    painter.setPen(QPen(QColor(33, 53, 85), 9));
    painter.setBrush(QColor(250, 250, 247));
    painter.drawEllipse(QPoint(0, 0), 43, 43);
    const auto hand = [&painter](int degrees, int length, int width, const QColor& colour) {
        painter.save();
        painter.rotate(degrees);
        painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(0, 0, 0, -length);
        painter.restore();
    };
    hand(305, 21, 9, QColor(33, 53, 85));
    hand(60, 30, 7, QColor(33, 53, 85));
    hand(195, 30, 4, QColor(201, 60, 46));
    return pixmap;
}

}  // namespace

QIcon ProgramIcon() {
    QIcon icon;
    for (const int side : {16, 22, 32, 48, 64, 128}) {
        icon.addPixmap(Draw(side));
    }
    return icon;
}
