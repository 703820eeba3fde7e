#include "shell/ui/ClockArea.h"

#include <QEvent>
#include <QMdiSubWindow>
#include <QPainter>
#include <QScrollBar>

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

void ClockArea::WatchKeysOf(QWidget& window) {
    window.installEventFilter(this);
}

// By its own handler alone: what it leaves would come back here from its parents.
bool ClockArea::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || watched != window()) {
        return QMdiArea::eventFilter(watched, event);
    }
    const QMdiSubWindow* front = activeSubWindow();
    QObject* clock = front != nullptr && !front->isEnabled() ? front->widget() : nullptr;
    return clock != nullptr && clock->event(event);
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

void ClockArea::Arrange(shell::Arrangement code) {
    // What is arranged begins at the area's own corner.
    horizontalScrollBar()->setValue(0);
    verticalScrollBar()->setValue(0);
    if (code == shell::Arrangement::Cascade) {
        cascadeSubWindows();
        return;
    }
    const bool icons = code == shell::Arrangement::Icons;
    QList<QMdiSubWindow*> children;
    for (QMdiSubWindow* child : subWindowList()) {
        if (child->isVisible() && child->isMinimized() == icons) {
            children += child;
        }
    }
    const int count = static_cast<int>(children.size());
    // Not the viewport's: what is arranged needs no scroll bars any more.
    const QSize room = contentsRect().size();
    const std::vector<QRect> places =
        icons ? shell::IconPlaces(count, room, children.isEmpty() ? QSize() : children[0]->size())
              : shell::TilePlaces(count, room, code == shell::Arrangement::TileColumns);
    for (int i = 0; i < count; ++i) {
        if (!icons) {
            children[i]->showNormal();
        }
        children[i]->setGeometry(places[static_cast<std::size_t>(i)]);
    }
}

IForm* ClockArea::ActiveChild() const {
    const QMdiSubWindow* active = activeSubWindow();
    return active != nullptr ? dynamic_cast<IForm*>(active->widget()) : nullptr;
}
