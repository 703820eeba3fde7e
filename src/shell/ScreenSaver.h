#pragma once

#include "shell/MenuArray.h"

namespace platform {
class SettingsStore;
}

/// The program as the system's screen saver and as one that starts with the user's logon: what the
/// settings store says of it.
namespace shell {

/// Twelve times from 10 to 120 minutes, or "Disabled" alone where this program is the screen saver.
void FillScreenSaverMenu(MenuArray& menu, const platform::SettingsStore& settings,
                         const QString& appPath);

/// Turns the caption to "Disable Auto Start" (Tag "1") where the program starts with the logon, and
/// to "Enable Auto Start" (Tag "0") else.
void RefreshAutoStartItem(MenuItem& item, const platform::SettingsStore& settings,
                          const QString& name);

}  // namespace shell
