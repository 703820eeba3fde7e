#pragma once

#include <QObject>

#include "clock/ClockLook.h"
#include "clock/FakeScreen.h"
#include "clock/RecordingParts.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "support/FakeFace.h"
#include "support/MachineWithZones.h"

/// A clock in UTC without a window, whose look is applied to parts that write down what is asked of
/// them. It runs; its file is that of the default.
struct LookDesk : MachineWithZones {
    clockcore::ClockData Data;
    mduUILib::ClockControls Controls;
    RecordingParts Parts;
    FakeScreen Screen;
    FakeCanvas Canvas{300, 200, 1};
    clockcore::ClockFiles Files{Data, TheProgram,
                                [this](const QString& text) { Screen.ShowStatus(text); }};
    clockcore::StyleFiles Styles{TheProgram};
    clockcore::ClockTick Tick{Data, Parts.All(), Module, Machine.Clock};
    clockcore::ClockLook Look{Data,
                              Controls,
                              TheProgram,
                              Files,
                              Styles,
                              {Screen, Canvas, Parts.TheWindow, Parts.ThePlacement, Parts.TheFace,
                               Parts.TheDial, Parts.TheDigital, Parts.TheBackground,
                               Parts.TheOverlays, Parts.TheVoice, Parts.TheSpoken, Tick}};

    LookDesk() {
        using namespace Qt::StringLiterals;
        ClockProperties central;
        mduMain::SetupFiles(Module, Services, u"UTC"_s, central);
        Files.LoadForShell(u"UTC"_s);
        Files.FillZone(u"UTC"_s);
        Data.State = clockcore::ClockState::Running;
    }

    QString Calls() { return std::exchange(Parts.Log, {}).join(u'|'); }
    QString Value(const QString& key) const { return mduLib::GetProperty(key, Data.Properties()); }
    void Set(const QString& key, const QString& value) {
        mduLib::PutProperty(key, value, Data.EditProperties());
    }
    /// A value of a file as it stands on the disk.
    QString Stored(const QString& path, const QString& key) const {
        ClockProperties properties;
        mduLib::ReadPropertyFile(Machine.Files, path, properties);
        return mduLib::GetProperty(key, properties);
    }
    /// A style like the default, with one value of its own. @return its path
    QString WriteStyle(const QString& name, const QString& key, const QString& value) {
        ClockProperties style;
        mduLib::ReadPropertyFile(Machine.Files, Module.Paths.ZoneDefaultFile(), style);
        mduLib::PutProperty(key, value, style);
        return Machine.WriteFile(QStringLiteral("Styles/") + name,
                                 mduLib::PropertyFileContent(style));
    }
};
