// Keys and the mouse of the clock's window.
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPixmap>
#include <QToolTip>

#include "clock/ClockMode.h"
#include "clock/ui/frmTempolark.h"
#include "drawing/StockPictures.h"
#include "drawing/TitleEdit.h"

using namespace Qt::StringLiterals;
using clockcore::ClockKind;

namespace {

/// The control keys of the calculator.
constexpr struct {
    Qt::Key Key;
    int Code;
} ControlKeys[] = {
    {Qt::Key_Tab, 9},
    {Qt::Key_Backtab, 9},
    {Qt::Key_Backspace, 8},
    {Qt::Key_Return, 13},
    {Qt::Key_Enter, 13},
    {Qt::Key_Escape, 27},
    {Qt::Key_Left, 37},
    {Qt::Key_Right, 39},
    {Qt::Key_Insert, 45},
    {Qt::Key_Delete, 46},
    {Qt::Key_Home, drawing::HomeKey},
    {Qt::Key_End, drawing::EndKey},
};

/// The calculator's code of a key: that of a control key, or of the character typed. 0 for a key
/// that means nothing to it.
int CalculatorKey(const QKeyEvent& event) {
    for (const auto& control : ControlKeys) {
        if (control.Key == event.key()) {
            return control.Code;
        }
    }
    const QString text = event.text();
    return text.isEmpty() || !text[0].isPrint() ? 0 : drawing::TypedKey(text[0]);
}

constexpr int CursorSide = 16;  // logical pixels

bool IsPlain(const QKeyEvent& event) {
    const Qt::KeyboardModifiers others = event.modifiers() & ~Qt::KeypadModifier;
    return others == Qt::NoModifier || others == Qt::ShiftModifier;
}

}  // namespace

void frmTempolark::keyPressEvent(QKeyEvent* event) {
    const int key = IsPlain(*event) ? CalculatorKey(*event) : 0;
    if (data_.Is(ClockKind::CalculatorInput) && key != 0) {
        if (!calculator_.EditCalculatorKey(key)) {
            data_.Tag = {ClockKind::Calculator, false};
        }
    } else if (data_.Is(ClockKind::Calculator) && key == 9) {
        data_.Tag = {ClockKind::CalculatorInput, false};
        calculator_.BeginInput();
    } else {
        QWidget::keyPressEvent(event);
    }
}

const mduUILib::Control* frmTempolark::ControlAt(const mduUILib::ControlArray& array,
                                                 const QPoint& position) const {
    const QPointF point = QPointF(position) * devicePixelRatioF();
    for (const mduUILib::Control& control : array.Members) {
        if (control.Visible && control.Rect().contains(point)) {
            return &control;
        }
    }
    return nullptr;
}

bool frmTempolark::event(QEvent* event) {
    if (event->type() == QEvent::ContextMenu && !isEnabled()) {
        ShowDisabledMenu(static_cast<QContextMenuEvent*>(event)->globalPos());
        event->accept();
        return true;
    }
    if (event->type() == QEvent::ToolTip) {
        ShowToolTip(*static_cast<QHelpEvent*>(event));
        return true;
    }
    return QWidget::event(event);
}

// What lies above comes first.
void frmTempolark::ShowToolTip(QHelpEvent& event) {
    QString text;
    if (ControlAt(controls_.imgSpeaker, event.pos()) != nullptr) {
        text = voice_.HintText();
    } else if (const auto* spot = ControlAt(controls_.imgClockNumber, event.pos())) {
        text = spot->ToolTipText;
    }
    if (text.isEmpty()) {
        QToolTip::hideText();
        event.ignore();
        return;
    }
    QToolTip::showText(event.globalPos(), text, this,
                       QRect(event.pos() - QPoint(2, 2), QSize(5, 5)));
}

// Over an hour number the mouse shows the number's own mark.
void frmTempolark::mouseMoveEvent(QMouseEvent* event) {
    const mduUILib::Control* label = ControlAt(controls_.lblHour, event->position().toPoint());
    const std::shared_ptr<const QImage> picture = label != nullptr ? label->Picture : nullptr;
    if (picture != mouseIcon_) {
        mouseIcon_ = picture;
        if (picture && !picture->isNull()) {
            setCursor(QCursor(QPixmap::fromImage(picture->scaled(
                CursorSide, CursorSide, Qt::KeepAspectRatio, Qt::SmoothTransformation))));
        } else {
            unsetCursor();
        }
    }
    QWidget::mouseMoveEvent(event);
}

void frmTempolark::mousePressEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    const bool withControl = (event->modifiers() & Qt::ControlModifier) != 0;
    if (event->button() == Qt::LeftButton && !withControl &&
        ControlAt(controls_.imgSpeaker, at) != nullptr) {
        voice_.ClickSpeaker(spoken_);
    } else if (event->button() == Qt::LeftButton && IsOnAction(at)) {
        SpeakAction();
    } else {
        QWidget::mousePressEvent(event);
    }
}

void frmTempolark::SpeakAction() {
    voice_.SpeakNow(messages_.PendingAction());
    if (voice_.IsSpeaking()) {
        controls_.imgAction(1).Picture =
            drawing::GetStockPicture(drawing::StockPicture::ActionSpeaking);
        canvas_.ShowChanges();
    }
}

bool frmTempolark::IsOnAction(const QPoint& position) const {
    return ControlAt(controls_.imgAction, position) != nullptr ||
           ControlAt(controls_.lblActionMsg, position) != nullptr;
}

// With Ctrl held a press on the speaker is left to those who drag it.
void frmTempolark::contextMenuEvent(QContextMenuEvent* event) {
    const QPoint& at = event->globalPos();
    if (ControlAt(controls_.imgSpeaker, event->pos()) != nullptr) {
        if ((event->modifiers() & Qt::ControlModifier) == 0) {
            ShowSpeakerMenu(at);
        }
    } else if (IsOnAction(event->pos())) {
        ShowActionMenu(at);
    } else if (ControlAt(controls_.lblMsg, event->pos()) != nullptr) {
        ShowMessageMenu(at);
    } else {
        ShowFormMenu(at);
    }
}

bool frmTempolark::focusNextPrevChild(bool next) {
    return !data_.IsCalculator() && QWidget::focusNextPrevChild(next);
}
