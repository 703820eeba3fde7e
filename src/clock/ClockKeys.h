#pragma once

#include "clock/FormCommands.h"
#include "foundation/Controls.h"

namespace clockcore {

/// The code of a key for `ClockKeys` and the list of shortcuts: 112 to 123 for F1 to F12, the
/// character for one that is typed alone, in capitals; 0 for any other, and for "{".
/// @param key one of `Qt::Key`
int KeyCodeOf(int key);

/// The keyboard side of `FormPopup`: four keys of its own, and those that the user has bound to the
/// commands of a clock in `ModuleState::ShortcutList`.
///
/// | key | command |
/// |---|---|
/// | F1 | help |
/// | Ctrl+E | enables the clock |
/// | Ctrl+W | the window takes its normal size |
/// | Ctrl+R | the window, in its normal state, takes the size of the clock's picture |
///
/// Commands that change the look do so in memory, as the menu does; "Save Current Style" keeps it.
class ClockKeys {
public:
    /// What the keys act on. All of it outlives them.
    struct Parts {
        ClockWindow& Window;
        ClockPlacement& Placement;
        ClockLook& Look;
        FormCommands& Commands;
        ZoneOnClock& Zone;
    };

    ClockKeys(ClockData& data, const mduUILib::ClockControls& controls, const Program& program,
              const Parts& parts)
        : data_(data), controls_(controls), program_(program), parts_(parts) {}

    /// A key goes down. A clock that is disabled listens to Ctrl+E, F1 and the key of "Disable"
    /// only.
    /// @param code as `KeyCodeOf` tells it
    /// @param shift bits of `mduUILib::KeyShift`
    /// @return whether the key means something
    bool ClockKeyDown(int code, int shift);

    /// Whether a key means something to the clock as it stands: then no menu gets it.
    bool IsBound(int code, int shift) const;

    /// A command by the name that the list of shortcuts has for it. @return false for no such name
    bool RunAction(const QString& name);

private:
    /// A command and what it does. @p Argument is a window, a state, or what is taken of a zone.
    struct Row {
        QStringView Name;
        void (ClockKeys::*Command)(const QString& name, int argument);
        int Argument = 0;
    };
    static const Row Rows[];

    bool RunOwnKey(int code, int shift);
    void Enable();
    void TakeSizeOfPicture();
    void OpenWindow(const QString& name, int window);
    /// Gives the key of that name the next of its choices, from the last on the first, and applies
    /// it. A value that is no choice is followed by the first; "Custom", which would ask, is passed
    /// over.
    void TakeNextChoice(const QString& name, int argument);
    void TakeNextStyle(const QString& name, int argument);
    void SetWindowState(const QString& name, int state);
    void ToggleTitleBar(const QString& name, int argument);
    void ToggleEnabled(const QString& name, int argument);
    void SaveStyleAs(const QString& name, int argument);
    void SaveStyle(const QString& name, int argument);
    void TakeNextZone(const QString& name, int what);

    ClockData& data_;
    const mduUILib::ClockControls& controls_;
    Program program_;
    Parts parts_;
};

}  // namespace clockcore
