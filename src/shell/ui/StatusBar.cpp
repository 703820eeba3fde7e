#include "shell/ui/StatusBar.h"

#include <QContextMenuEvent>
#include <QPainter>

#include "foundation/Numbers.h"
#include "foundation/Twips.h"
#include "shell/ToolbarLook.h"

namespace {

constexpr int Gap = 6;
constexpr int EyeSide = 16;
constexpr double LeftWidth = 255;  // twips: room for the eye

QRect EyePlace(const QSize& size) {
    return {Gap, (size.height() - EyeSide) / 2, EyeSide, EyeSide};
}

}  // namespace

StatusBar::StatusBar(std::vector<QIcon> eyeFrames, QWidget* parent)
    : QWidget(parent), eyeFrames_(std::move(eyeFrames)), align_(shell::Align::Bottom) {
    setObjectName(QStringLiteral("sbStatusBar"));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void StatusBar::SetAlign(int align) {
    align_ = align;
    const bool vertical = shell::IsVertical(align);
    setSizePolicy(vertical ? QSizePolicy::Fixed : QSizePolicy::Preferred,
                  vertical ? QSizePolicy::Preferred : QSizePolicy::Fixed);
    updateGeometry();
    update();
}

void StatusBar::SetEye(int frame) {
    if (eye_ != frame) {
        eye_ = frame;
        update();
    }
}

void StatusBar::SetMessage(const QString& text) {
    if (message_ != text) {
        message_ = text;
        setAccessibleName(text);
        update();
    }
}

void StatusBar::SetTimeText(const QString& text) {
    if (time_ != text) {
        time_ = text;
        update();
    }
}

QSize StatusBar::sizeHint() const {
    const int thickness = std::max(fontMetrics().height(), EyeSide) + Gap;
    switch (align_) {
        case shell::Align::Left:
            return {mduAPILib::RoundToInteger(LeftWidth / TwipsPerPixel), 1};
        case shell::Align::Right:
            return {thickness, 1};
        default:
            return {1, thickness};
    }
}

bool StatusBar::ShowsMessage() const {
    return align_ != shell::Align::Left;
}

void StatusBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QSize size = QWidget::size();
    if (shell::IsVertical(align_)) {
        // Read from the top down.
        painter.translate(width(), 0);
        painter.rotate(90);
        size.transpose();
    }
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawLine(0, align_ == shell::Align::Top ? size.height() - 1 : 0, size.width(),
                     align_ == shell::Align::Top ? size.height() - 1 : 0);
    const QRect eye = EyePlace(size);
    if (eye_ >= 1 && eye_ <= static_cast<int>(eyeFrames_.size())) {
        eyeFrames_[static_cast<std::size_t>(eye_ - 1)].paint(&painter, eye);
    }
    painter.setPen(palette().color(QPalette::WindowText));
    const int timeWidth = fontMetrics().horizontalAdvance(time_);
    const QRect time(size.width() - timeWidth - Gap, 0, timeWidth + 1, size.height());
    painter.drawText(time, Qt::AlignVCenter | Qt::TextSingleLine, time_);
    if (ShowsMessage()) {
        constexpr int narrowest = 3;  // pixels of a character
        const QRect room(eye.right() + Gap, 0, time.left() - eye.right() - 3 * Gap, size.height());
        painter.drawText(room, Qt::AlignVCenter | Qt::TextSingleLine,
                         message_.left(std::max(room.width(), 0) / narrowest));
    }
}

void StatusBar::contextMenuEvent(QContextMenuEvent* event) {
    if (OnMenu) {
        OnMenu(event->globalPos());
    }
}
