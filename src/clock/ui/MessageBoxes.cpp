#include "clock/ui/MessageBoxes.h"

#include <QColor>
#include <QKeyEvent>
#include <algorithm>
#include <utility>

#include "clock/ui/KeyEvents.h"

using namespace Qt::StringLiterals;

namespace clockcore {

namespace {

constexpr int MostLetters = 100'000;
constexpr int Bright = 140;  // of 255; behind what is brighter, letters are black

QColor ToColour(int colour) {
    return {colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF};
}

QString StyleOf(const QColor& back) {
    return u"QLineEdit { background: %1; color: %2; border: 1px solid #808080; padding: 0 3px; }"_s
        .arg(back.name(), qGray(back.rgb()) > Bright ? u"black"_s : u"white"_s);
}

}  // namespace

MessageLine::MessageLine(QWidget& form, MessageTyping& typing, const QString& text)
    : QLineEdit(&form), typing_(typing) {
    setObjectName(u"txtMsg"_s);
    setAccessibleName(u"Timer message"_s);
    setPlaceholderText(u"Message"_s);
    setMaxLength(std::max(MostLetters, static_cast<int>(text.size())));
    setText(text);
    connect(this, &QLineEdit::textChanged, this,
            [this](const QString& typed) { typing_.Type(typed); });
}

bool MessageLine::event(QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Tab || key == Qt::Key_Backtab) {
            event->accept();
            typing_.FinishMessage();
            event->accept();
            return true;
        }
    }
    return QLineEdit::event(event);
}

void MessageLine::keyPressEvent(QKeyEvent* event) {
    const bool isPlain = IsPlain(*event);
    if (isPlain && event->key() == Qt::Key_Escape) {
        typing_.Escape();
    } else if (isPlain && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
        typing_.FinishMessage();
    } else if (!isPlain || event->key() != Qt::Key_Delete || !typing_.Delete()) {
        QLineEdit::keyPressEvent(event);
    }
    event->accept();
}

void MessageLine::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    const bool otherWindow =
        event->reason() == Qt::ActiveWindowFocusReason && !window()->isActiveWindow();
    if (event->reason() != Qt::PopupFocusReason && !otherWindow) {
        typing_.FinishMessage();
    }
}

void MessageBoxes::Open(const Look& look) {
    line_ = new MessageLine(form_, *typing_, look.Text);
    line_->setStyleSheet(StyleOf(ToColour(look.Colour)));
    line_->setGeometry(OnForm(look.Place));
    line_->show();
    line_->setFocus(Qt::OtherFocusReason);
}

void MessageBoxes::Move(const QRectF& place) {
    if (line_ != nullptr && line_->geometry() != OnForm(place)) {
        line_->setGeometry(OnForm(place));
    }
}

// The line may be the one whose key closes it: it is deleted later.
void MessageBoxes::Close() {
    MessageLine* line = std::exchange(line_, nullptr);
    if (line == nullptr) {
        return;
    }
    if (line->hasFocus()) {
        form_.setFocus();
    }
    line->hide();
    line->deleteLater();
}

QRect MessageBoxes::OnForm(const QRectF& place) const {
    const double ratio = form_.devicePixelRatioF();
    return QRectF(place.topLeft() / ratio, place.size() / ratio).toAlignedRect();
}

}  // namespace clockcore
