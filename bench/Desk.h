#pragma once

#include <QDir>
#include <QFile>
#include <QMdiArea>
#include <QTemporaryDir>

#include "foundation/Program.h"
#include "foundation/SetupPaths.h"
#include "platform/AbsentDevices.h"
#include "platform/Accounts.h"
#include "platform/FileSettings.h"
#include "platform/LocalFiles.h"
#include "platform/SystemClock.h"
#include "platform/SystemRandom.h"
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
    platform::AbsentDevices Devices;
    platform::DesktopDialogs Dialogs;
    platform::SystemRandom Random{1};
    platform::Services Services =
        Devices.Beside(Clock, Zones, Files, User, Settings, Dialogs, Random);
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
