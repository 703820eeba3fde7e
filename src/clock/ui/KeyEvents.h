#pragma once

#include <QKeyEvent>

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

}  // namespace clockcore
