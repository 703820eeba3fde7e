#include <QTest>

#include "foundation/SetupPaths.h"
#include "platform/Accounts.h"
#include "support/FakeDialogs.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;

namespace {

/// A program folder with its default files, which are a hundred seconds old.
class Installed {
public:
    explicit Installed(const QString& userName = u"tester"_s) {
        Machine.User = platform::NamedAccount(userName);
        State.Paths.AppFolder = Machine.AppFolder();
        for (const auto& [name, content] :
             {std::pair{u"ini/Tempolark.ini"_s, "Clock:Clocks=Analogue,Analogue,Digital\r\n"_ba},
              {u"ini/TempolarkCentral.ini"_s, "Shell:Status Bar=Yes,Yes,No\r\n"_ba},
              {u"ini/Shortcuts.txt"_s, "Clocks=Ctrl+F3\r\n"_ba},
              {u"ini/Action.txt"_s, "editor,\r\n"_ba}}) {
            Machine.WriteFile(name, content);
            Machine.SetAge(name, 100);
        }
    }

    mduMain::SetupResult Setup(QString zoneName) {
        return mduMain::SetupPaths(State, Machine.Services, zoneName);
    }
    mduMain::SetupResult SetupAll(const QString& zoneName) {
        return mduMain::SetupFiles(State, Machine.Services, zoneName, Central);
    }

    /// A path below the program folder.
    QString Below(const QString& path) const { return Machine.AppFolder() + u'/' + path; }
    bool Exists(const QString& path) const { return QFile::exists(Below(path)); }

    void WriteOld(const QString& path, const QByteArray& content) {
        Machine.WriteFile(path, content);
        Machine.SetAge(path, 101);
    }

    FakeServices Machine;
    ModuleState State;
    ClockProperties Central;
};

}  // namespace

class tst_SetupPaths : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fillsTheTable();
    void fillsTheTableWithoutAUser();
    void makesTheFilesOfANewAccount();
    void writesNothingOfAUserWithoutOne();
    void trimsTheZoneName();
    void choosesTheCurrentFile_data();
    void choosesTheCurrentFile();
    void keepsAnActionList();
    void mergesOlderShortcuts();
    void keepsShortcutsOfTheSameSecond();
    void mergesAnOlderZoneFile();
    void tellsOfANewZoneFile();
    void restoresALostDefault();
    void mergesNoOtherZoneWithARestoredDefault();
    void tellsOfADefaultThatCantBeRestored();
    void tellsOfAZoneFileThatCantBeMade();
    void namesFoldersWithoutMakingThem_data();
    void namesFoldersWithoutMakingThem();
    void endsWithoutAnyDefault();
    void refreshesTheCurrentFile();
    void survivesADataFolderThatCantBeMade();
    void stopsWhereAStepFails();
    void goesOnWithoutDefaultLists();
    void endsInAnEmptyProgramFolder();
    void keepsAccountsBelowTheProgramFolder();
    void readsTheLists();
    void mergesTheShellsFile();
    void setsUpWithoutTheShellsDefault();
};

void tst_SetupPaths::fillsTheTable() {
    Installed app;
    QCOMPARE(app.SetupAll(u"Tokyo"_s), mduMain::SetupResult::Done);
    const PathTable& paths = app.State.Paths;
    QCOMPARE(paths.UserName, u"tester"_s);
    QCOMPARE(paths.DataFolder, app.Below(u"tester"_s));
    QCOMPARE(paths.SoundFilesFolder, app.Below(u"SoundFiles/"_s));
    QCOMPARE(paths.ImagesFolder, app.Below(u"Images/"_s));
    QCOMPARE(paths.ProfileFolder, app.Below(u"Timezones/"_s));
    QCOMPARE(paths.StylesFolder, app.Below(u"Styles/"_s));
    QCOMPARE(paths.MusicFolder, app.Below(u"Music/"_s));
    QCOMPARE(paths.ZoneFileFolder, app.Below(u"tester/TimeZones/"_s));
    QCOMPARE(paths.TimersFolder, app.Below(u"tester/Timers/"_s));
    QCOMPARE(paths.TimerFile, app.Below(u"tester/Timers/TokyoTimer.txt"_s));
    QCOMPARE(paths.ActionFile, app.Below(u"tester/Action.txt"_s));
    QCOMPARE(paths.AutoStartFile, app.Below(u"tester/AutoStart.txt"_s));
    QCOMPARE(paths.ShortcutsFile, app.Below(u"tester/Shortcuts.txt"_s));
    QCOMPARE(paths.CentralFile, app.Below(u"tester/TempolarkCentral.ini"_s));
    QCOMPARE(paths.CurrentPropertyFile, app.Below(u"tester/TimeZones/Tokyo.ini"_s));
}

void tst_SetupPaths::fillsTheTableWithoutAUser() {
    Installed app{QString()};
    QCOMPARE(app.SetupAll(u"Tokyo"_s), mduMain::SetupResult::Done);
    const PathTable& paths = app.State.Paths;
    QCOMPARE(paths.UserName, QString());
    QCOMPARE(paths.DataFolder, QString());
    QCOMPARE(paths.ZoneFileFolder, app.Below(u"TimeZones/"_s));
    QCOMPARE(paths.TimersFolder, app.Below(u"Timer/"_s));
    QCOMPARE(paths.TimerFile, QString());
    QCOMPARE(paths.ActionFile, app.Below(u"ini/Action.txt"_s));
    QCOMPARE(paths.AutoStartFile, app.Below(u"AutoStart.txt"_s));
    QCOMPARE(paths.ShortcutsFile, app.Below(u"ini/Shortcuts.txt"_s));
    QCOMPARE(paths.CentralFile, app.Below(u"TempolarkCentral.ini"_s));
    QCOMPARE(paths.CurrentPropertyFile, app.Below(u"TimeZones/Tokyo.ini"_s));
    QVERIFY(app.Exists(u"TimeZones/Tokyo.ini"_s));
}

void tst_SetupPaths::makesTheFilesOfANewAccount() {
    Installed app;
    QCOMPARE(app.SetupAll(u"Tokyo"_s), mduMain::SetupResult::Done);
    for (const QString& folder :
         {u"tester/TimeZones"_s, u"tester/Timers"_s, u"Timezones"_s, u"Styles"_s, u"Music"_s}) {
        QVERIFY2(QDir(app.Below(folder)).exists(), qPrintable(folder));
    }
    QCOMPARE(app.Machine.ReadFile(u"tester/Action.txt"_s), "editor,\r\n"_ba);
    QCOMPARE(app.Machine.ReadFile(u"tester/Shortcuts.txt"_s), "Clocks=Ctrl+F3\r\n"_ba);
    QVERIFY(!app.Exists(u"tester/AutoStart.txt"_s));
    QVERIFY(!app.Exists(u"SoundFiles"_s));
    QVERIFY(!app.Exists(u"Images"_s));
}

void tst_SetupPaths::writesNothingOfAUserWithoutOne() {
    Installed app{QString()};
    app.Setup(u"Tokyo"_s);
    QVERIFY(!app.Exists(u"Timer"_s));
    QVERIFY(!app.Exists(u"Action.txt"_s));
    QVERIFY(!app.Exists(u"Shortcuts.txt"_s));
    QCOMPARE(app.Machine.Files.Writes, QStringList{app.Below(u"TimeZones/Tokyo.ini"_s)});
}

void tst_SetupPaths::trimsTheZoneName() {
    Installed app;
    QString zone = u"  Tokyo "_s;
    mduMain::SetupPaths(app.State, app.Machine.Services, zone);
    QCOMPARE(zone, u"Tokyo"_s);
    QVERIFY(app.Exists(u"tester/TimeZones/Tokyo.ini"_s));
}

void tst_SetupPaths::choosesTheCurrentFile_data() {
    QTest::addColumn<QString>("zone");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("timers");
    const QString fallBack = u"TempolarkCentral.ini"_s;
    QTest::newRow("zone") << u"Tokyo"_s << u"Tokyo.ini"_s << u"TokyoTimer.txt"_s;
    QTest::newRow("not ASCII") << u"Montréal 時間"_s << u"Montréal 時間.ini"_s
                               << u"Montréal 時間Timer.txt"_s;
    QTest::newRow("with its extension")
        << u"Tokyo.INI"_s << u"Tokyo.INI"_s << u"Tokyo.INITimer.txt"_s;
    QTest::newRow("none") << QString() << fallBack << u"Timer.txt"_s;
    QTest::newRow("blanks") << u"   "_s << fallBack << u"Timer.txt"_s;
    QTest::newRow("screen saver") << u"/s"_s << u"s.ini"_s << u"sTimer.txt"_s;
    QTest::newRow("slash") << u"../Tokyo"_s << fallBack << u"Timer.txt"_s;
    QTest::newRow("backslash") << u"a\\b"_s << fallBack << u"Timer.txt"_s;
    QTest::newRow("parent") << u".."_s << fallBack << u"Timer.txt"_s;
    QTest::newRow("300 characters") << QString(300, u'a') << fallBack << u"Timer.txt"_s;
    QTest::newRow("line end") << u"a\nb"_s << fallBack << u"Timer.txt"_s;
}

void tst_SetupPaths::choosesTheCurrentFile() {
    Installed app;
    QFETCH(QString, zone);
    QFETCH(QString, file);
    QFETCH(QString, timers);
    QCOMPARE(app.Setup(zone), mduMain::SetupResult::Done);
    QCOMPARE(app.State.Paths.CurrentPropertyFile, app.Below(u"tester/TimeZones/"_s + file));
    QCOMPARE(app.State.Paths.TimerFile, app.Below(u"tester/Timers/"_s + timers));
    QCOMPARE(QDir(app.Below(u"tester/TimeZones"_s)).entryList(QDir::Files), QStringList{file});
}

void tst_SetupPaths::keepsAnActionList() {
    Installed app;
    app.WriteOld(u"tester/Action.txt"_s, "mine,");
    app.Setup(u"Tokyo"_s);
    QCOMPARE(app.Machine.ReadFile(u"tester/Action.txt"_s), "mine,"_ba);
}

void tst_SetupPaths::mergesOlderShortcuts() {
    Installed app;
    app.WriteOld(u"tester/Shortcuts.txt"_s, "Clocks=Alt+F7\r\nGone=F2\r\n");
    app.Setup(u"Tokyo"_s);
    QCOMPARE(app.Machine.ReadFile(u"tester/Shortcuts.txt"_s), "Clocks=Alt+F7\r\n"_ba);
}

void tst_SetupPaths::keepsShortcutsOfTheSameSecond() {
    Installed app;
    app.WriteOld(u"tester/Shortcuts.txt"_s, "Gone=F2\r\n");
    app.Machine.SetAge(u"ini/Shortcuts.txt"_s, 102);
    app.Setup(u"Tokyo"_s);
    QCOMPARE(app.Machine.ReadFile(u"tester/Shortcuts.txt"_s), "Gone=F2\r\n"_ba);
}

void tst_SetupPaths::mergesAnOlderZoneFile() {
    Installed app;
    app.WriteOld(u"tester/TimeZones/Tokyo.ini"_s, "Clock:Clocks=Digital,Digital\r\nGone=1\r\n");
    app.Setup(u"Tokyo"_s);
    QCOMPARE(app.Machine.ReadFile(u"tester/TimeZones/Tokyo.ini"_s),
             "Clock:Clocks=Digital,Analogue,Digital\r\n"_ba);
    QVERIFY(!app.State.NewPropertyFileCreated);
}

void tst_SetupPaths::tellsOfANewZoneFile() {
    Installed app;
    app.Setup(u"Tokyo"_s);
    QVERIFY(app.State.NewPropertyFileCreated);
    QCOMPARE(app.Machine.ReadFile(u"tester/TimeZones/Tokyo.ini"_s),
             "Clock:Clocks=Analogue,Analogue,Digital\r\n"_ba);
}

void tst_SetupPaths::restoresALostDefault() {
    Installed app;
    app.WriteOld(u"tester/TimeZones/Tokyo.ini"_s, "Mine=1\r\n");
    QFile::remove(app.Below(u"ini/Tempolark.ini"_s));
    QCOMPARE(app.Setup(u"Tokyo"_s), mduMain::SetupResult::Done);
    QCOMPARE(app.Machine.ReadFile(u"ini/Tempolark.ini"_s), "Mine=1\r\n"_ba);
    QCOMPARE(app.Machine.ReadFile(u"tester/TimeZones/Tokyo.ini"_s), "Mine=1\r\n"_ba);
    QVERIFY(app.Machine.Dialogs.Boxes.empty());
}

void tst_SetupPaths::mergesNoOtherZoneWithARestoredDefault() {
    Installed app;
    app.WriteOld(u"tester/TimeZones/Tokyo.ini"_s, "Zone=Tokyo\r\n");
    app.WriteOld(u"tester/TimeZones/Oslo.ini"_s, "Own=1\r\n");
    const qint64 aged =
        QFileInfo(app.Below(u"tester/TimeZones/Tokyo.ini"_s)).lastModified().toSecsSinceEpoch();
    QFile::remove(app.Below(u"ini/Tempolark.ini"_s));
    app.Setup(u"Tokyo"_s);
    QCOMPARE(QFileInfo(app.Below(u"ini/Tempolark.ini"_s)).lastModified().toSecsSinceEpoch(), aged);
    app.State.Paths.CurrentPropertyFile = app.Below(u"tester/TimeZones/Oslo.ini"_s);
    QVERIFY(!mduMain::RefreshCurrentPropertyFile(app.State, app.Machine.Services));
    QCOMPARE(app.Machine.ReadFile(u"tester/TimeZones/Oslo.ini"_s), "Own=1\r\n"_ba);
}

void tst_SetupPaths::tellsOfADefaultThatCantBeRestored() {
    Installed app;
    app.WriteOld(u"tester/TimeZones/Tokyo.ini"_s, "Mine=1\r\n");
    QFile::remove(app.Below(u"ini/Tempolark.ini"_s));
    app.Machine.Files.Unwritable = {app.Below(u"ini/Tempolark.ini"_s)};
    QCOMPARE(app.Setup(u"Tokyo"_s), mduMain::SetupResult::Incomplete);
    QCOMPARE(app.State.FailedSetupPath, app.Below(u"ini/Tempolark.ini"_s));
}

void tst_SetupPaths::tellsOfAZoneFileThatCantBeMade() {
    Installed app;
    const QString file = app.Below(u"tester/TimeZones/Tokyo.ini"_s);
    app.Machine.Files.Unwritable = {file};
    QCOMPARE(app.SetupAll(u"Tokyo"_s), mduMain::SetupResult::Incomplete);
    QCOMPARE(app.State.FailedSetupPath, file);
    QVERIFY(!app.State.NewPropertyFileCreated);
    QCOMPARE(app.State.Paths.CentralFile, app.Below(u"tester/TempolarkCentral.ini"_s));
    app.Machine.Files.Unwritable.clear();
    QCOMPARE(app.SetupAll(u"Tokyo"_s), mduMain::SetupResult::Done);
    QCOMPARE(app.State.FailedSetupPath, QString());
}

void tst_SetupPaths::namesFoldersWithoutMakingThem_data() {
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("data");
    QTest::addColumn<QString>("zones");
    QTest::addColumn<QString>("timers");
    QTest::newRow("user") << u"bob"_s << u"/p/bob"_s << u"/p/bob/TimeZones/"_s
                          << u"/p/bob/Timers/"_s;
    QTest::newRow("separator") << u"D\\bob"_s << u"/p/D_bob"_s << u"/p/D_bob/TimeZones/"_s
                               << u"/p/D_bob/Timers/"_s;
    QTest::newRow("none") << QString() << QString() << u"/p/TimeZones/"_s << u"/p/Timer/"_s;
}

void tst_SetupPaths::namesFoldersWithoutMakingThem() {
    PathTable paths;
    paths.AppFolder = u"/p"_s;
    QFETCH(QString, user);
    mduMain::NameUserFolders(paths, user);
    QTEST(paths.DataFolder, "data");
    QTEST(paths.ZoneFileFolder, "zones");
    QTEST(paths.TimersFolder, "timers");
    QVERIFY(!QFileInfo::exists(u"/p"_s));
}

void tst_SetupPaths::endsWithoutAnyDefault() {
    Installed app;
    QFile::remove(app.Below(u"ini/Tempolark.ini"_s));
    app.Machine.Dialogs.BoxAnswers = {1};
    QCOMPARE(app.SetupAll(u"Tokyo"_s), mduMain::SetupResult::DefaultFileLost);
    const FakeDialogs::Box& box = app.Machine.Dialogs.Boxes.at(0);
    QCOMPARE(box.Text, app.Below(u"ini/Tempolark.ini is not found"_s));
    QCOMPARE(box.Flags, 16);
    QCOMPARE(box.Title, u"Tempolark System Error"_s);
    QVERIFY(!app.Exists(u"tester/TempolarkCentral.ini"_s));
}

void tst_SetupPaths::refreshesTheCurrentFile() {
    Installed app;
    app.Setup(u"Tokyo"_s);
    app.State.NewPropertyFileCreated = false;
    app.State.Paths.CurrentPropertyFile = app.Below(u"tester/TimeZones/Oslo.ini"_s);
    QVERIFY(!mduMain::RefreshCurrentPropertyFile(app.State, app.Machine.Services));
    QVERIFY(app.Exists(u"tester/TimeZones/Oslo.ini"_s));
    QVERIFY(!app.State.NewPropertyFileCreated);
    app.WriteOld(u"tester/TimeZones/Oslo.ini"_s, "Clock:Clocks=Digital\r\n");
    QVERIFY(mduMain::RefreshCurrentPropertyFile(app.State, app.Machine.Services));
    QVERIFY(!mduMain::RefreshCurrentPropertyFile(app.State, app.Machine.Services));
    app.WriteOld(u"tester/TimeZones/Oslo.ini"_s, "Mine=1\r\n");
    app.Machine.Files.Unwritable = {app.State.Paths.CurrentPropertyFile};
    QVERIFY(!mduMain::RefreshCurrentPropertyFile(app.State, app.Machine.Services));
    QCOMPARE(app.Machine.ReadFile(u"tester/TimeZones/Oslo.ini"_s), "Mine=1\r\n"_ba);
}

void tst_SetupPaths::survivesADataFolderThatCantBeMade() {
    Installed app;
    app.Machine.WriteFile(u"tester"_s, "a plain file");
    QCOMPARE(app.SetupAll(u"Tokyo"_s), mduMain::SetupResult::Incomplete);
    QCOMPARE(app.State.FailedSetupPath, app.Below(u"tester"_s));
    QCOMPARE(app.State.Paths.ZoneFileFolder, app.Below(u"tester/TimeZones/"_s));
    QCOMPARE(app.State.Paths.ActionFile, app.Below(u"tester/Action.txt"_s));
    QCOMPARE(app.State.Paths.AutoStartFile, QString());  // the copy of the actions has failed
    QCOMPARE(app.Machine.ReadFile(u"tester"_s), "a plain file"_ba);
    QCOMPARE(app.State.ShortcutList, ClockProperties());
    QCOMPARE(app.Central[1].Value, u"Yes,Yes,No"_s);  // the default
}

void tst_SetupPaths::stopsWhereAStepFails() {
    Installed app;
    app.Machine.Files.Unwritable = {app.Below(u"tester/Shortcuts.txt"_s)};
    QCOMPARE(app.Setup(u"Tokyo"_s), mduMain::SetupResult::Incomplete);
    QCOMPARE(app.State.FailedSetupPath, app.Below(u"tester/Shortcuts.txt"_s));
    QCOMPARE(app.State.Paths.ShortcutsFile, app.Below(u"tester/Shortcuts.txt"_s));
    QCOMPARE(app.State.Paths.CurrentPropertyFile, QString());
    QVERIFY(app.Machine.Dialogs.Boxes.empty());
}

void tst_SetupPaths::goesOnWithoutDefaultLists() {
    Installed app;
    QFile::remove(app.Below(u"ini/Shortcuts.txt"_s));
    QFile::remove(app.Below(u"ini/Action.txt"_s));
    app.Setup(u"Tokyo"_s);
    QVERIFY(!app.Exists(u"tester/Shortcuts.txt"_s));
    QVERIFY(!app.Exists(u"tester/Action.txt"_s));
    QVERIFY(app.Exists(u"tester/TimeZones/Tokyo.ini"_s));
    app.Machine.WriteFile(u"tester/Shortcuts.txt"_s, "Mine=F2\r\n");
    app.Setup(u"Oslo"_s);
    QCOMPARE(app.Machine.ReadFile(u"tester/Shortcuts.txt"_s), "Mine=F2\r\n"_ba);
    QVERIFY(app.Exists(u"tester/TimeZones/Oslo.ini"_s));
}

void tst_SetupPaths::endsInAnEmptyProgramFolder() {
    Installed app;
    QVERIFY(QDir(app.Below(u"ini"_s)).removeRecursively());
    app.Machine.Dialogs.BoxAnswers = {1};
    QCOMPARE(app.SetupAll(u"Tokyo"_s), mduMain::SetupResult::DefaultFileLost);
    QCOMPARE(app.Machine.Dialogs.Boxes.size(), 1U);
}

void tst_SetupPaths::keepsAccountsBelowTheProgramFolder() {
    for (const QString& user : {u"DOMAIN\\tester"_s, u"../tester"_s, u".."_s}) {
        Installed app{user};
        app.Setup(u"Tokyo"_s);
        QCOMPARE(app.State.Paths.UserName, user);
        QCOMPARE(QFileInfo(app.State.Paths.DataFolder).path(), app.Machine.AppFolder());
        QVERIFY(!app.State.Paths.DataFolder.endsWith(u".."_s));
        QVERIFY(QFile::exists(app.State.Paths.CurrentPropertyFile));
    }
}

void tst_SetupPaths::readsTheLists() {
    Installed app;
    app.Machine.WriteFile(u"tester/AutoStart.txt"_s, "Tokyo=Tokyo.ini\r\nOslo=Oslo.ini\r\n");
    app.State.ShortcutList.Resize(9);
    app.SetupAll(u"Tokyo"_s);
    QCOMPARE(app.State.ShortcutList.UpperBound(), 1);
    QCOMPARE(app.State.ShortcutList[1].Value, u"Ctrl+F3"_s);
    QCOMPARE(app.State.AutoStartList.UpperBound(), 2);
    QCOMPARE(app.State.AutoStartList[2].Name, u"Oslo"_s);
    QCOMPARE(app.Central[1], (ClockProperty{u"Shell"_s, u"Status Bar"_s, u"Yes,Yes,No"_s}));
    QCOMPARE(app.State.CurrentProperties, app.Central);
}

void tst_SetupPaths::mergesTheShellsFile() {
    Installed app;
    app.WriteOld(u"tester/TempolarkCentral.ini"_s, "Shell:Status Bar=No,No\r\nGone=1\r\n");
    app.SetupAll(u"Tokyo"_s);
    QCOMPARE(app.Machine.ReadFile(u"tester/TempolarkCentral.ini"_s),
             "Shell:Status Bar=No,Yes,No\r\n"_ba);
}

void tst_SetupPaths::setsUpWithoutTheShellsDefault() {
    Installed app;
    QFile::remove(app.Below(u"ini/TempolarkCentral.ini"_s));
    QCOMPARE(app.SetupAll(u"Tokyo"_s), mduMain::SetupResult::Done);
    QCOMPARE(app.Central, ClockProperties());
    app.WriteOld(u"tester/TempolarkCentral.ini"_s, "Mine=1\r\n");
    app.SetupAll(u"Tokyo"_s);
    QCOMPARE(app.Machine.ReadFile(u"tester/TempolarkCentral.ini"_s), "Mine=1\r\n"_ba);
}

QTEST_GUILESS_MAIN(tst_SetupPaths)
#include "tst_SetupPaths.moc"
