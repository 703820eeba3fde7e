#pragma once

#include <QString>
#include <QStringList>

namespace platform {
class SettingsStore;
}

/// What the settings store tells the system and the tray's agent: the screen saver, the programs
/// that start with the user's logon, the folder of this program.
namespace mduLib {

/// The path of the present screen saver; empty for none.
QString CurrentScreenSaver(const platform::SettingsStore& settings);

/// After how long it begins, as it is stored; empty where nothing is.
QString ScreenSaverTimeOut(const platform::SettingsStore& settings);

inline constexpr int MostScreenSaverTimes = 12;

/// The captions of a menu of screen saver times: from "10" to "120", or "Disabled" alone where the
/// program at @p appPath is the screen saver.
QStringList ScreenSaverTimes(const platform::SettingsStore& settings, const QString& appPath);

/// A screen saver, as the store holds it.
struct ScreenSaver {
    QString Path = {};      ///< of the program; empty for none
    QString ZoneName = {};  ///< the zone to show; empty for the machine's own
    int TimeOut = 0;        ///< as a caption of the menu has it; 0 with no screen saver
    int WithLock = 0;       ///< 1: the machine is locked as well
};

/// Stores all five values, in their order. @return false when one of them can't be kept
bool SetScreenSaver(platform::SettingsStore& settings, const ScreenSaver& saver);

/// An entry of the menu: "Disabled" takes the screen saver away, a time makes the program at
/// @p appPath the screen saver. @return false when that can't be kept
bool ChooseScreenSaverTime(platform::SettingsStore& settings, const QString& caption,
                           const QString& appPath);

/// Whether something starts with the logon under that name.
bool IsInRunKey(const platform::SettingsStore& settings, const QString& name);
/// @param commandLine a program's path, and behind a blank what it is to open
/// @return false when that can't be kept
bool AddToRunKey(platform::SettingsStore& settings, const QString& name,
                 const QString& commandLine);
/// The value stays, empty. @return false when that can't be kept
bool RemoveFromRunKey(platform::SettingsStore& settings, const QString& name);

/// Leaves the program folder where the tray's agent looks for it. One that is there already costs
/// no write.
void RecordProgramFolder(platform::SettingsStore& settings, const QString& appFolder);

}  // namespace mduLib
