#pragma once

#include <QString>

#include "foundation/ClockProperty.h"
#include "foundation/PictureStore.h"

/// Where every file lies. Paths are native; folders other than `AppFolder` and `DataFolder` end
/// with a separator.
///
/// `main` sets `AppFolder`, and `mduMain::SetupFiles` works all others out from it and from the
/// account. Without a user name zone files and timers lie in "TimeZones/" and "Timer/" of
/// `AppFolder`, and the default shortcuts and actions are the ones in use. With the folder
/// "/home/a/Clocks" and the user "anna" some of them are:
///
///     DataFolder            /home/a/Clocks/anna
///     ZoneFileFolder        /home/a/Clocks/anna/TimeZones/
///     TimersFolder          /home/a/Clocks/anna/Timers/
///     ProfileFolder         /home/a/Clocks/Timezones/
///     CurrentPropertyFile   /home/a/Clocks/anna/TimeZones/Tokyo Standard Time.ini
///
/// A path says nothing of whether there is such a file: who uses it has to cope with none.
struct PathTable {
    QString AppFolder;   ///< the program folder, without a trailing separator
    QString UserName;    ///< account name; empty when none is known
    QString DataFolder;  ///< root of the per-user data; empty without a user name
    /// Comes with the program, as do pictures; it is not made where it is missing.
    QString SoundFilesFolder;
    QString ImagesFolder;
    QString ProfileFolder;  ///< stock property files of time zones
    QString StylesFolder;
    QString MusicFolder;
    QString ZoneFileFolder;  ///< the per-user property file of every zone that has a clock
    QString TimersFolder;
    QString TimerFile;  ///< timer file of the clock created last
    QString ActionFile;
    QString AutoStartFile;
    QString ShortcutsFile;
    /// The shell's own settings.
    QString CentralFile;
    QString CurrentPropertyFile;  ///< changes whenever another clock becomes current

    QString ZoneDefaultFile() const;  ///< the default for every zone's property file
    /// What the shell's settings are made from, and completed whenever this file is newer.
    QString CentralDefaultFile() const;
    QString DefaultShortcutsFile() const;
    QString DefaultActionFile() const;
    /// Beside the user's lists, or in the program folder where no user is known.
    QString OpenedFormsFile() const;
    QString AppEXEName() const;  ///< the shell's executable, as the stored commands name it
};

/// What the shell and all clocks of the process share; one object, owned by `main`.
struct ModuleState {
    PathTable Paths;
    /// The contents of `Paths.ShortcutsFile` and `Paths.AutoStartFile`, read at the start; empty
    /// where there is no such file.
    ClockProperties ShortcutList;
    ClockProperties AutoStartList;
    /// The exchange slot: the properties of whichever object last became current, always paired
    /// with `Paths.CurrentPropertyFile`.
    ClockProperties CurrentProperties;
    /// Whether `Paths.CurrentPropertyFile` was new at the start, a copy of the default.
    bool NewPropertyFileCreated = false;
    QString FailedSetupPath;  ///< where start-up ended with `SetupResult::Incomplete`; else empty
    /// The pictures that clocks show, each held once while any clock uses it.
    mduUILib::PictureStore Pictures;
    QString CommandLine;  ///< one string; empty means the local zone, "/s" the screen-saver run
};
