#include "shell/ui/ClockArea.h"

#include <QPainter>

ClockArea::ClockArea(QWidget* parent) : QMdiArea(parent) {
    setObjectName(QStringLiteral("area"));
    setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
    setActivationOrder(QMdiArea::ActivationHistoryOrder);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void ClockArea::SetPicture(const QPixmap& picture) {
    picture_ = picture;
    scaled_ = {};
    viewport()->update();
}

void ClockArea::paintEvent(QPaintEvent* event) {
    QMdiArea::paintEvent(event);
    if (picture_.isNull()) {
        return;
    }
    const QSize room = viewport()->size();
    const QSize cover = picture_.size().scaled(room, Qt::KeepAspectRatioByExpanding);
    if (scaled_.size() != cover) {
        scaled_ = picture_.scaled(cover, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    QPainter painter(viewport());
    painter.drawPixmap((room.width() - cover.width()) / 2, (room.height() - cover.height()) / 2,
                       scaled_);
}
