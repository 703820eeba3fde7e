#include "timezones/ui/ZoneSplitter.h"

#include <QMouseEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr int KeyStep = 24;  // pixels
constexpr int GripWidth = 48;

/// The bar that follows the mouse.
class SplitBar final : public QWidget {
public:
    explicit SplitBar(QWidget* parent) : QWidget(parent) {
        setObjectName(u"picSplitter"_s);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        QColor colour = palette().color(QPalette::Highlight);
        colour.setAlpha(170);
        painter.fillRect(rect().adjusted(0, 3, 0, -3), colour);
    }
};

}  // namespace

ZoneSplitter::ZoneSplitter(Handlers handlers, QWidget* parent)
    : QWidget(parent), handlers_(std::move(handlers)), picSplitter_(new SplitBar(parent)) {
    setObjectName(u"imgSplitter"_s);
    setAccessibleName(u"Divider between map and list"_s);
    setAccessibleDescription(u"Up and Down move it"_s);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::SplitVCursor);
}

int ZoneSplitter::Within(int y) const {
    const auto [least, most] = handlers_.Limits();
    return std::max(least, std::min(y, most));
}

void ZoneSplitter::PlaceBar(const QPointF& position) {
    const int wanted = mapToParent(position.toPoint()).y() - height() / 2;
    picSplitter_->setGeometry(x(), Within(wanted), width(), height());
}

void ZoneSplitter::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        pressed_ = true;
        PlaceBar(event->position());
        picSplitter_->show();
        picSplitter_->raise();
    }
}

void ZoneSplitter::mouseMoveEvent(QMouseEvent* event) {
    if (pressed_) {
        PlaceBar(event->position());
    }
}

void ZoneSplitter::mouseReleaseEvent(QMouseEvent* event) {
    if (pressed_ && event->button() == Qt::LeftButton) {
        pressed_ = false;
        picSplitter_->hide();
        handlers_.Moved(picSplitter_->y());
    }
}

void ZoneSplitter::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Up) {
        handlers_.Moved(Within(y() - KeyStep));
    } else if (event->key() == Qt::Key_Down) {
        handlers_.Moved(Within(y() + KeyStep));
    } else {
        QWidget::keyPressEvent(event);
    }
}

void ZoneSplitter::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid));
    const QRectF grip((width() - GripWidth) / 2.0, height() / 2.0 - 2, GripWidth, 4);
    painter.drawRoundedRect(grip, 2, 2);
}
