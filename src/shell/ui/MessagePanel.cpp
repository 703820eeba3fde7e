#include "shell/ui/MessagePanel.h"

#include <QPainter>

void MessagePanel::SetText(const QString& text) {
    if (text_ == text) {
        return;
    }
    text_ = text;
    setAccessibleName(text);
    update();
}

QSize MessagePanel::sizeHint() const {
    return {1, fontMetrics().height()};
}

void MessagePanel::paintEvent(QPaintEvent*) {
    constexpr int narrowest = 3;  // pixels of a character
    QPainter painter(this);
    painter.drawText(rect().adjusted(2, 0, 0, 0), Qt::AlignVCenter | Qt::TextSingleLine,
                     text_.left(width() / narrowest));
}
