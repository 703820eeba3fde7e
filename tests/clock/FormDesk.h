#pragma once

#include "clock/ClockKeys.h"
#include "clock/SettingsDesk.h"
#include "shell/FakeShell.h"
#include "support/FakeDialogs.h"
#include "timezones/ZoneKeys.h"

/// The commands and the keys of a clock in a shell, without a window.
struct FormDesk : SettingsDesk {
    FakeShell Shell;
    QObject Owner;
    clockcore::LookDialogs Dialogs{Owner, TheProgram, Data.State, Canvas, Look};
    clockcore::ZoneOnClock Zone{Data, TheProgram, Screen, Look};
    clockcore::FormCommands Commands{
        Data,
        TheProgram,
        {Screen, Parts.TheWindow, Parts.ThePlacement, Files, Look, Dialogs, Settings, Zone, Voice}};
    clockcore::ClockKeys Keys{
        Data, Controls, TheProgram, {Parts.TheWindow, Parts.ThePlacement, Look, Commands, Zone}};

    FormDesk() {
        Screen.TheShell = &Shell;
        Module.Paths.StylesFolder = Machine.AppFolder() + QStringLiteral("/Styles/");
    }

    void StandAlone() {
        Screen.TheShell = nullptr;
        Screen.MDIChild = Parts.TheWindow.MDIChild = false;
    }
    void Run(const QString& name, const QString& caption = {}, int index = 1, bool more = false) {
        Commands.Run({name, index, caption, more});
    }
    /// The file of another zone, like the default but for one value.
    void WriteZone(const QString& name, const QString& key, const QString& value) {
        ClockProperties zone;
        mduLib::ReadPropertyFile(Machine.Files, Module.Paths.ZoneDefaultFile(), zone);
        mduTimeZones::PutZoneKeys(Services, Module.Paths, zone, name);
        mduLib::PutProperty(key, value, zone);
        Machine.WriteFile(QStringLiteral("tester/TimeZones/") + name + QStringLiteral(".ini"),
                          mduLib::PropertyFileContent(zone));
    }
    std::vector<FakeDialogs::Box> TakeBoxes() { return std::exchange(Machine.Dialogs.Boxes, {}); }
};
