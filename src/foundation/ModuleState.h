#pragma once

#include <QString>

#include "foundation/ClockProperty.h"
#include "foundation/PictureStore.h"

/// Where every file lies. Paths are native; folders other than `AppFolder` and `DataFolder` end
/// with a separator.
struct PathTable {
    QString AppFolder;   ///< the program folder, without a trailing separator
    QString UserName;    ///< account name; empty when none is known
    QString DataFolder;  ///< root of the per-user data; empty without a user name
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
    QString CentralFile;
    QString CurrentPropertyFile;  ///< changes whenever another clock becomes current

    QString ZoneDefaultFile() const;  ///< the default for every zone's property file
    QString CentralDefaultFile() const;
    QString DefaultShortcutsFile() const;
    QString DefaultActionFile() const;
    QString OpenedFormsFile() const;
    QString AppEXEName() const;  ///< the shell's executable, as the stored commands name it
};

/// What the shell and all clocks of the process share; one object, owned by `main`.
struct ModuleState {
    PathTable Paths;
    ClockProperties ShortcutList;
    ClockProperties AutoStartList;
    /// The exchange slot: the properties of whichever object last became current, always paired
    /// with `Paths.CurrentPropertyFile`.
    ClockProperties CurrentProperties;
    bool NewPropertyFileCreated = false;
    QString FailedSetupPath;  ///< where start-up ended with `SetupResult::Incomplete`; else empty
    mduUILib::PictureStore Pictures;
    QString CommandLine;  ///< one string; empty means the local zone, "/s" the screen-saver run
};
