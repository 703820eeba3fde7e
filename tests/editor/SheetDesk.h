#pragma once

#include "editor/PropertySheet.h"
#include "foundation/PropertyFile.h"
#include "foundation/SetupPaths.h"
#include "support/FakeServices.h"

/// A machine with a user's folders, a default file, and sheets opened on what is in a file.
class SheetDesk {
public:
    FakeServices Machine;
    ModuleState Module;
    Forms Windows;
    Program Running{Machine.Services, Module, Windows};

    SheetDesk() {
        Module.Paths.AppFolder = Machine.AppFolder();
        mduMain::NameProgramFolders(Module.Paths);
        mduMain::NameUserFolders(Module.Paths, QStringLiteral("tester"));
        Machine.WriteFile(QStringLiteral("tester/TimeZones/other.txt"), {});
        WriteDefault("Hands:Colour=Red,Red,Green,Blue\r\nHands:Size=3\r\n");
    }

    QString Folder() const { return Machine.AppFolder() + QLatin1Char('/'); }
    QString ZoneFile(const QString& name) const { return Module.Paths.ZoneFileFolder + name; }
    QByteArray Zone(const QString& name) const {
        return Machine.ReadFile(QStringLiteral("tester/TimeZones/") + name);
    }
    void WriteZone(const QString& name, const QByteArray& content) {
        Machine.WriteFile(QStringLiteral("tester/TimeZones/") + name, content);
    }
    void WriteDefault(const QByteArray& content) {
        Machine.WriteFile(QStringLiteral("ini/Tempolark.ini"), content);
    }

    /// What a clock or the shell does before it opens the window.
    void MakeCurrent(const QString& path) {
        Module.Paths.CurrentPropertyFile = path;
        Module.CurrentProperties.Reset();
        mduLib::ReadPropertyFile(Machine.Files, path, Module.CurrentProperties);
    }

    /// The sheet of the clock "London", whose file holds @p content.
    std::unique_ptr<editor::PropertySheet> Open(const QByteArray& content) {
        WriteZone(QStringLiteral("London.ini"), content);
        MakeCurrent(ZoneFile(QStringLiteral("London.ini")));
        return Sheet(editor::SheetKind::Clock, QStringLiteral("London"));
    }

    std::unique_ptr<editor::PropertySheet> OpenNew() {
        MakeCurrent(Module.Paths.ZoneDefaultFile());
        return Sheet(editor::SheetKind::NewClock, {});
    }

    std::unique_ptr<editor::PropertySheet> OpenShell(const QByteArray& content) {
        Machine.WriteFile(QStringLiteral("tester/TempolarkCentral.ini"), content);
        Module.Paths.CentralFile = Folder() + QStringLiteral("tester/TempolarkCentral.ini");
        MakeCurrent(Module.Paths.CentralFile);
        return Sheet(editor::SheetKind::Shell, QStringLiteral("TempolarkCentral"));
    }

private:
    std::unique_ptr<editor::PropertySheet> Sheet(editor::SheetKind kind, const QString& name) {
        return std::make_unique<editor::PropertySheet>(
            Running, editor::PropertySheet::Source{kind, name, Module.Paths.ZoneDefaultFile()});
    }
};

/// Types a name into the title, letter by letter.
inline void TypeName(editor::PropertySheet& sheet, const QString& name) {
    for (const QChar letter : name) {
        sheet.TitleKey(drawing::TypedKey(letter));
    }
}
