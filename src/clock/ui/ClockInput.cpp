#include "clock/ui/ClockInput.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include "clock/ClockKeys.h"
#include "clock/ui/KeyEvents.h"
#include "drawing/TitleEdit.h"
#include "foundation/Shortcuts.h"

namespace clockcore {

namespace {

constexpr int TabCode = 9;

/// The control keys of the calculator.
constexpr struct {
    Qt::Key Key;
    int Code;
} ControlKeys[] = {
    {Qt::Key_Tab, TabCode},
    {Qt::Key_Backtab, TabCode},
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

bool IsOnAction(const mduUILib::ClockControls& controls, const QPointF& point) {
    return ControlAt(controls.imgAction, point) != nullptr ||
           ControlAt(controls.lblActionMsg, point) != nullptr;
}

}  // namespace

bool ClockInput::PressKey(const QKeyEvent& event) {
    if (IsMenuKey(event)) {
        ShowMenuInTheMiddle();
        return true;
    }
    return (form_.isEnabled() && PressCalculatorKey(event)) ||
           clicks_.PressKey(KeyCodeOf(event.key()), ShiftState(event));
}

void ClockInput::ShowMenuInTheMiddle() {
    const QPoint middle = form_.mapToGlobal(form_.rect().center());
    if (form_.isEnabled()) {
        clicks_.ShowMenu({}, middle);
    } else {
        clicks_.ShowDisabledMenu(middle);
    }
}

bool ClockInput::PressCalculatorKey(const QKeyEvent& event) {
    const int key = IsPlain(event) ? CalculatorKey(event) : 0;
    if (data_.Is(ClockKind::CalculatorInput) && key != 0) {
        if (!calculator_.EditCalculatorKey(key)) {
            data_.Tag = {ClockKind::Calculator, false};
        }
        return true;
    }
    if (data_.Is(ClockKind::Calculator) && key == TabCode) {
        data_.Tag = {ClockKind::CalculatorInput, false};
        calculator_.BeginInput();
        return true;
    }
    return false;
}

QPointF ClockInput::SurfacePoint(const QPoint& position) const {
    return QPointF(position) * form_.devicePixelRatioF();
}

bool ClockInput::PressMouse(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton) {
        return false;
    }
    const QPointF point = SurfacePoint(event.position().toPoint());
    const bool withControl = (event.modifiers() & Qt::ControlModifier) != 0;
    if (!withControl && ControlAt(controls_.imgSpeaker, point) != nullptr) {
        clicks_.ClickSpeaker();
        return true;
    }
    if (IsOnAction(controls_, point)) {
        clicks_.ClickAction();
        return true;
    }
    return false;
}

bool ClockInput::DoubleClickMouse(const QMouseEvent& event) {
    const bool onGround =
        PartAt(controls_, SurfacePoint(event.position().toPoint())).Part == ClockPart::Face;
    if (event.button() != Qt::LeftButton || !onGround || !form_.isEnabled()) {
        return false;
    }
    clicks_.DoubleClickGround();
    return true;
}

void ClockInput::ShowMenu(const QContextMenuEvent& event) {
    if (!form_.isEnabled()) {
        clicks_.ShowDisabledMenu(event.globalPos());
        return;
    }
    // A key means the clock as a whole, wherever it is said to have been pressed.
    const QSize scale = (QSizeF(form_.size()) * form_.devicePixelRatioF()).toSize();
    const ClockHit hit = event.reason() == QContextMenuEvent::Keyboard
                             ? ClockHit()
                             : HitAt(data_, controls_, scale, SurfacePoint(event.pos()));
    const bool withControl = (event.modifiers() & Qt::ControlModifier) != 0;
    if (hit.Part != ClockPart::Speaker || !withControl) {
        clicks_.ShowMenu(hit, event.globalPos());
    }
}

}  // namespace clockcore
