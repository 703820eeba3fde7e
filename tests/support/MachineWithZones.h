#pragma once

#include <QFile>

#include "foundation/Program.h"
#include "foundation/SetupPaths.h"
#include "platform/Services.h"
#include "platform/TzZoneDatabase.h"
#include "support/FakeServices.h"

/// A machine in GMT at noon of 15 June 2026 with the real zone database and the default files of
/// the program, which are an hour old.
class MachineWithZones {
public:
    MachineWithZones() {
        using namespace Qt::StringLiterals;
        for (const QString& name :
             {u"Tempolark.ini"_s, u"TempolarkCentral.ini"_s, u"Shortcuts.txt"_s, u"Action.txt"_s}) {
            QFile file(QStringLiteral(TEMPOLARK_SOURCE_DIR "/data/ini/") + name);
            if (!file.open(QIODevice::ReadOnly)) {
                qFatal("no default file");
            }
            Machine.WriteFile(u"ini/"_s + name, file.readAll());
            Machine.SetAge(u"ini/"_s + name, 3600);
        }
        Module.Paths.AppFolder = Machine.AppFolder();
    }

    FakeServices Machine;
    platform::TzZoneDatabase Zones{Machine.Clock, "UTC"};
    platform::Services Services = Machine.Services.With(Zones);
    ModuleState Module;
    Forms Windows;
    Program TheProgram{Services, Module, Windows};
};
