#pragma once

#include "platform/ServiceParts.h"

namespace platform {

class Account;
class Dialogs;
class Files;
class HelpViewer;
class MediaPlayers;
class RandomNumbers;
class SettingsStore;
class SoundDevices;
class SystemActions;
class Tray;
class Voices;
class WallClock;
class ZoneDatabase;

/// Everything that one machine does differently from the next. `main` makes it once and passes it
/// by reference; it owns nothing and outlives all who hold it. Each service has a header of its
/// own, which those include who ask something of it: none of them is included here.
///
/// A machine with parts of its own is a copy of another one:
///
///     const platform::Services services = machine.With(files, dialogs);
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

    /// The services in the order above, as references.
    constexpr auto Row() const {
        return std::tie(Clock, Zones, FileSystem, User, Settings, Actions, Speech, Media, Sound,
                        Dialog, TrayIcon, Help, Random);
    }

    /// A copy with these parts in place of the machine's own; each finds its place by its type and
    /// must outlive the copy. What is no service, or two parts for one place, does not compile.
    template <PartOf<Services>... Parts>
    Services With(Parts&... parts) const {
        return std::apply(
            [&parts...](auto&... own) { return Services{ChosenPart(own, parts...)...}; }, Row());
    }
};

}  // namespace platform
