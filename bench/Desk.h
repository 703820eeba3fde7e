#pragma once

#include <QDir>
#include <QFile>
#include <QMdiArea>
#include <QTemporaryDir>

#include "foundation/Program.h"
#include "foundation/SetupPaths.h"
#include "platform/AbsentDevices.h"
#include "platform/LocalFiles.h"
#include "platform/SystemClock.h"
#include "platform/SystemServices.h"
#include "platform/TzZoneDatabase.h"
#include "platform/ui/DesktopDialogs.h"

/// A program folder with the default files, and a shell's frame to launch into.
struct Desk {
    QTemporaryDir Folder;
    platform::SystemClock Clock;
    platform::TzZoneDatabase Zones{Clock};
    platform::LocalFiles Files;
    platform::NamedAccount User{QStringLiteral("bench")};
    platform::FileSettings Settings{Folder.filePath(QStringLiteral("Settings.ini"))};
    platform::NoActions Actions;
    platform::NoVoices Voices;
    platform::NoPlayers Players;
    platform::NoSound Sound;
    platform::DesktopDialogs Dialogs;
    platform::NoTray Tray;
    platform::NoHelp Help;
    platform::SystemRandom Random{1};
    platform::Services Services{Clock,   Zones, Files,   User, Settings, Actions, Voices,
                                Players, Sound, Dialogs, Tray, Help,     Random};
    ModuleState Module;
    Forms Windows;
    QMdiArea Area;

    Desk() {
        QDir().mkdir(Folder.filePath(QStringLiteral("ini")));
        const QDir defaults(QStringLiteral(TEMPOLARK_SOURCE_DIR "/data/ini"));
        for (const QString& name : defaults.entryList(QDir::Files)) {
            QFile::copy(defaults.filePath(name), Folder.filePath(QStringLiteral("ini/") + name));
        }
        Module.Paths.AppFolder = Folder.path();
        ClockProperties central;
        mduMain::SetupFiles(Module, Services, QStringLiteral("UTC"), central);
        Area.resize(1000, 700);
        Area.show();
    }
};
