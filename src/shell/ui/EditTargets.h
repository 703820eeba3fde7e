#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include "foundation/Forms.h"

class ClockArea;

/// What the menu "Edit" acts on: the line or box of text that has the focus, else the window in
/// front. The menu bar itself, which may have the focus while its menus are open, does not count.
///
/// A text that has nothing to undo or to redo leaves that to its window, and so it does with
/// "Find".
class EditTargets final : public QObject {
public:
    /// @param window the shell; what has the focus outside it is not edited
    EditTargets(QWidget& window, const ClockArea& area);

    bool CanEdit(EditAction action) const;  ///< as things stand at this moment
    void Edit(EditAction action) const;     ///< nothing where it can't
    /// Whether the keys of the menu do what it says; a window may take them for its own.
    bool KeysHold() const;

private:
    /// The widget with the focus, if it is in the shell and seen.
    QWidget* Focus() const;
    /// The window in front, where it can do that; else null.
    IEditTarget* Window(EditAction action) const;

    QWidget& window_;
    const ClockArea& area_;
    QPointer<QWidget> focus_;  ///< what had it last, bars and menus aside
};
