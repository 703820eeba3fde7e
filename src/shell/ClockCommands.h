#pragma once

#include <QStringList>
#include <cstdint>
#include <functional>

#include "foundation/Forms.h"

/// Commands that reach one clock or all of them.
namespace shell {

/// Messages that a clock's window understands.
namespace WindowMessage {
inline constexpr int Close = 16;
inline constexpr int SystemCommand = 274;
inline constexpr int Maximise = 61488;
inline constexpr int Minimise = 61472;
inline constexpr int Restore = 61728;
}  // namespace WindowMessage

/// Sends a message to one window.
void SendMessageA(IForm& window, int message, int wParam);

/// Sends a message to every clock. One that closes may take others along; none is skipped.
void SendToAllClocks(const Forms& windows, int message, int wParam);

/// To the window whose handle is @p target; a text that is no number above 0 means all clocks.
void SendToClock(const Forms& windows, const QString& target, int message, int wParam);

void EnableAllClocks(const Forms& windows, int state);
void EnableClock(const Forms& windows, const QString& target, int state);

/// What a button of the toolbar does to the clock that is chosen in its pop-up.
struct OpenedCommand {
    QString Tag;              ///< of the button: "Close", "Disable", ...
    std::uint32_t StyleMask;  ///< which windows the pop-up lists
    std::function<void(const Forms&, const QString& target)> Run;  ///< null for "Auto Start"
};

/// The seven commands, in the order of the buttons 2 to 8.
const std::vector<OpenedCommand>& OpenedCommands();

enum class Broadcast { Clocks = 1, ClockStyles = 2, ClockColours = 3, SaveSettings = 4 };

/// Calls every clock. @p index is the mode for `Clocks`; @p tag and @p caption are those of the
/// menu item, @p tag already being the picked colour where the caption is "Custom".
void BroadcastToClocks(const Forms& windows, Broadcast kind, int index, const QString& tag,
                       const QString& caption);

/// Applies the style of that index, from 0, to every clock; nothing outside the list.
void ApplyStyleToClocks(const Forms& windows, const QString& stylesFolder,
                        const QStringList& styleFiles, int index);

/// Gives the shell's colour to the clocks that show the shell behind themselves.
void SyncClockBackColours(const Forms& windows, int shellColour);

bool IsArrangeableChild(const IForm& window);

/// The mass commands leave the first window, the shell, to itself, but for `MaximiseAllChildren`.
void MaximiseAllChildren(const Forms& windows, IForm& shellWindow);
void RestoreAllChildren(const Forms& windows);
void MinimiseAllChildren(const Forms& windows);
/// @return false where a clock has refused, so as not to lose its timers
bool CloseAllChildren(const Forms& windows);

/// Closes the clocks of that caption.
void CloseClocksOf(const Forms& windows, const QString& caption);

/// Brings a window to the front; the first window is never found. @return whether it was.
bool ActivateWindowByHandle(const Forms& windows, int handle);

}  // namespace shell
