#pragma once

#include "platform/Files.h"
#include "platform/Machine.h"
#include "platform/WallClock.h"
#include "platform/ZoneDatabase.h"

namespace platform {

/// Everything that one machine does differently from the next. `main` makes it once and passes it
/// by reference; it owns nothing and outlives all who hold it.
struct Services {
    WallClock& Clock;
    ZoneDatabase& Zones;
    Files& FileSystem;
    Account& User;
    SettingsStore& Settings;
    SystemActions& Actions;
    Voices& Speech;
    MediaPlayers& Media;
    SoundDevices& Sound;
    Dialogs& Dialog;
    Tray& TrayIcon;
    HelpViewer& Help;
    RandomNumbers& Random;
};

}  // namespace platform
