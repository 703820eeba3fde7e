#pragma once

#include "foundation/PropertyLookup.h"
#include "shell/ShellSettings.h"
#include "support/MachineWithZones.h"

/// Settings of the shell on a machine of the test, without a shell.
struct SettingsDesk : MachineWithZones {
    QStringList Told;
    shell::ShellSettings Settings{TheProgram, [this](const QString& text) { Told += text; }};

    SettingsDesk() {
        Machine.Files.MakeFolder(Machine.AppFolder() + QStringLiteral("/tester"));
        Module.Paths.CentralFile = Machine.AppFolder() + File;
    }

    /// The settings as these keys and values, in memory.
    void Hold(const std::vector<std::pair<QString, QString>>& keys) {
        ClockProperties properties;
        for (const auto& [key, value] : keys) {
            mduLib::PutProperty(key, value, properties);
        }
        Settings.Take(properties);
    }
    QByteArray Stored() const { return Machine.ReadFile(File.mid(1)); }
    void Store(const QByteArray& content) { Machine.WriteFile(File.mid(1), content); }

    static inline const QString File = QStringLiteral("/tester/TempolarkCentral.ini");
};
