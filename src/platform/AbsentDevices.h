#pragma once

#include "platform/HelpViewer.h"
#include "platform/MediaPlayers.h"
#include "platform/Services.h"
#include "platform/SoundDevices.h"
#include "platform/SystemActions.h"
#include "platform/Tray.h"
#include "platform/Voices.h"

/// A machine that lacks a device: no voices, no player, no sound, no tray. The program runs on it;
/// what needs the device stays silent.
namespace platform {

/// Refuses all that a timer may do to a machine, and tells why.
class NoActions final : public SystemActions {
public:
    QString ExitWindowsEx(unsigned) override { return Reason(); }
    QString LockWorkStation() override { return Reason(); }
    QString Open(const QString&, const QString&) override { return Reason(); }

private:
    static QString Reason() { return QStringLiteral("This machine offers no system actions"); }
};

/// Speech on such a machine is no voice at all, which a clock has to cope with.
class NoVoices final : public Voices {
public:
    std::unique_ptr<Voice> MakeVoice() override { return nullptr; }
};

/// Sounds and music likewise: there is no player to be had.
class NoPlayers final : public MediaPlayers {
public:
    std::unique_ptr<MediaPlayer> MakePlayer() override { return nullptr; }
};

/// Answers 0 outputs, and at once.
class NoSound final : public SoundDevices {
public:
    void Count(const std::function<void(int)>& answer) override { answer(0); }
};

/// An icon that is shown nowhere.
class NoTray final : public Tray {
public:
    void SetIcon(bool, const QString&) override {}
};

/// Shows no page, whichever is asked for, and tells why.
class NoHelp final : public HelpViewer {
public:
    QString Show(const QString&, int) override {
        return QStringLiteral("This machine has nothing to show help with");
    }
};

/// A machine without any of them: that of a script, and the ground that a test builds on. A single
/// device is added with `Services::With`:
///
///     AbsentDevices devices;
///     const Services silent =
///         devices.Beside(clock, zones, files, user, settings, dialogs, random);
///     const Services speaking = silent.With(voices);
struct AbsentDevices {
    NoActions Actions;
    NoVoices Speech;
    NoPlayers Media;
    NoSound Sound;
    NoTray TrayIcon;
    NoHelp Help;

    /// The machine of these parts and no device. All of it must outlive what is given back, this
    /// object included: the absent devices are its members.
    Services Beside(WallClock& clock, ZoneDatabase& zones, Files& files, Account& user,
                    SettingsStore& settings, Dialogs& dialogs, RandomNumbers& random) {
        return {.Clock = clock,
                .Zones = zones,
                .FileSystem = files,
                .User = user,
                .Settings = settings,
                .Actions = Actions,
                .Speech = Speech,
                .Media = Media,
                .Sound = Sound,
                .Dialog = dialogs,
                .TrayIcon = TrayIcon,
                .Help = Help,
                .Random = random};
    }
};

}  // namespace platform
