#pragma once

#include <QKeyEvent>
#include <utility>

#include "foundation/Shortcuts.h"

/// What keys are, whatever they mean where they are pressed.
namespace clockcore {

/// Whether no key but Shift is held along with it. One of the number pad is plain, too.
inline bool IsPlain(const QKeyEvent& event) {
    const Qt::KeyboardModifiers others = event.modifiers() & ~Qt::KeypadModifier;
    return others == Qt::NoModifier || others == Qt::ShiftModifier;
}

/// The menu key, and Shift+F10 in its place.
inline bool IsMenuKey(const QKeyEvent& event) {
    return event.key() == Qt::Key_Menu ||
           (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
}

/// The modifiers as the list of shortcuts counts them.
inline int ShiftState(const QKeyEvent& event) {
    constexpr std::pair<Qt::KeyboardModifier, int> bits[] = {
        {Qt::ShiftModifier, mduUILib::KeyShift::Shift},
        {Qt::ControlModifier, mduUILib::KeyShift::Ctrl},
        {Qt::AltModifier, mduUILib::KeyShift::Alt}};
    int state = 0;
    for (const auto& [modifier, bit] : bits) {
        state |= event.modifiers().testFlag(modifier) ? bit : 0;
    }
    return state;
}

}  // namespace clockcore
