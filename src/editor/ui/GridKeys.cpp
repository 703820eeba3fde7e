#include "editor/ui/GridKeys.h"

#include "drawing/TitleEdit.h"
#include "foundation/Shortcuts.h"

namespace editor {

namespace {

constexpr int F1 = 112;

constexpr struct {
    int Key;
    int Code;
} ControlKeys[] = {
    {Qt::Key_Backspace, KeyCode::Backspace},
    {Qt::Key_Tab, KeyCode::Tab},
    {Qt::Key_Backtab, KeyCode::Tab},
    {Qt::Key_Return, KeyCode::Enter},
    {Qt::Key_Enter, KeyCode::Enter},
    {Qt::Key_Escape, KeyCode::Escape},
    {Qt::Key_PageUp, KeyCode::PageUp},
    {Qt::Key_PageDown, KeyCode::PageDown},
    {Qt::Key_End, KeyCode::End},
    {Qt::Key_Home, KeyCode::Home},
    {Qt::Key_Left, KeyCode::Left},
    {Qt::Key_Up, KeyCode::Up},
    {Qt::Key_Right, KeyCode::Right},
    {Qt::Key_Down, KeyCode::Down},
    {Qt::Key_Insert, 45},
    {Qt::Key_Delete, KeyCode::Delete},
};

int ControlCode(int key) {
    for (const auto& control : ControlKeys) {
        if (control.Key == key) {
            return control.Code;
        }
    }
    return 0;
}

bool IsLetterOrDigit(int key) {
    return (key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9);
}

bool IsCharacter(int key) {
    constexpr int lastInPlane = 0xFFFF;
    return key >= ' ' && key <= lastInPlane;
}

}  // namespace

int HostCode(const QKeyEvent& event) {
    const int key = event.key();
    if (const int control = ControlCode(key); control != 0) {
        return control;
    }
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12) {
        return F1 + key - Qt::Key_F1;
    }
    if (IsLetterOrDigit(key)) {
        return key;
    }
    return IsCharacter(key) ? drawing::TypedKey(QChar(static_cast<char16_t>(key))) : 0;
}

int HostShift(Qt::KeyboardModifiers modifiers) {
    constexpr std::pair<Qt::KeyboardModifier, int> bits[] = {
        {Qt::ShiftModifier, mduUILib::KeyShift::Shift},
        {Qt::ControlModifier, mduUILib::KeyShift::Ctrl},
        {Qt::AltModifier, mduUILib::KeyShift::Alt}};
    int state = 0;
    for (const auto& [modifier, bit] : bits) {
        state |= modifiers.testFlag(modifier) ? bit : 0;
    }
    return state;
}

int HostButton(Qt::MouseButton button) {
    switch (button) {
        case Qt::LeftButton:
            return 1;
        case Qt::RightButton:
            return 2;
        case Qt::MiddleButton:
            return 4;
        default:
            return 0;
    }
}

bool IsPlainKey(const QKeyEvent& event) {
    return (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0;
}

int TypedCode(const QKeyEvent& event) {
    const QList<uint> points = event.text().toUcs4();
    const bool types = IsPlainKey(event) && !points.isEmpty() && QChar::isPrint(points.first());
    return types ? static_cast<int>(points.first()) : 0;
}

EditKey EditKeyOf(const QKeyEvent& event) {
    if (!IsPlainKey(event)) {
        return {};
    }
    const int typed = TypedCode(event);
    return typed != 0 ? EditKey{0, TextOf(typed)} : EditKey{ControlCode(event.key()), {}};
}

QString TextOf(int codePoint) {
    const auto point = static_cast<char32_t>(codePoint);
    return QString::fromUcs4(&point, 1);
}

}  // namespace editor
