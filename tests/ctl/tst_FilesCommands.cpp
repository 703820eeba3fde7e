#include "ctl/Companion.h"

using namespace Qt::StringLiterals;

class tst_FilesCommands : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void setsUpAZone();
    void setsUpTheLocalZone_data();
    void setsUpTheLocalZone();
    void setsUpWithoutAUser();
    void setsUpTheScreenSaver();
    void refusesANameThatIsNoFileName();
    void tellsOfALostDefault();
    void tellsOfADataFolderThatCantBeMade();
    void writesNothingOutsideTheProgramFolder();
    void fillsAFolderThatIsNew();
    void refusesAFileForAFolder();
    void leavesOtherFoldersAsTheyAre();
    void makesNoFolderThatItDoesNotUse();

private:
    CompanionAnswer Setup(const QStringList& options, const QStringList& zone) const {
        return companion_->Run(QStringList{u"--app-folder"_s, u"app"_s} + options +
                               QStringList{u"files"_s, u"setup"_s} + zone);
    }

    /// A path below the program folder, as the companion tells it.
    QString Below(const QString& path) const {
        return companion_->Folder.filePath(u"app/"_s + path);
    }

    QString PathOf(const CompanionAnswer& answer, const QString& name) const {
        return answer.Object().value(name).toString();
    }

    std::unique_ptr<Companion> companion_;
};

void tst_FilesCommands::init() {
    companion_ = std::make_unique<Companion>();
    companion_->Write(u"app/ini/Tempolark.ini"_s, "Clocks=Analogue\r\n");
    companion_->Write(u"app/ini/TempolarkCentral.ini"_s, "Status Bar=Yes\r\n");
    companion_->Write(u"app/ini/Shortcuts.txt"_s, "Clocks=F2\r\n");
    companion_->Write(u"app/ini/Action.txt"_s, "\r\n");
}

void tst_FilesCommands::setsUpAZone() {
    const CompanionAnswer answer = Setup({u"--user"_s, u"bob"_s}, {u" Tokyo Standard Time "_s});
    QCOMPARE(answer.Status, 0);
    QCOMPARE(PathOf(answer, u"AppFolder"_s), companion_->Folder.filePath(u"app"_s));
    QCOMPARE(PathOf(answer, u"UserName"_s), u"bob"_s);
    QCOMPARE(PathOf(answer, u"DataFolder"_s), Below(u"bob"_s));
    QCOMPARE(PathOf(answer, u"TimersFolder"_s), Below(u"bob/Timers/"_s));
    QCOMPARE(PathOf(answer, u"TimerFile"_s), Below(u"bob/Timers/Tokyo Standard TimeTimer.txt"_s));
    QCOMPARE(PathOf(answer, u"CentralFile"_s), Below(u"bob/TempolarkCentral.ini"_s));
    QCOMPARE(PathOf(answer, u"OpenedFormsFile"_s), Below(u"bob/OpenedForms.txt"_s));
    QCOMPARE(PathOf(answer, u"ZoneDefaultFile"_s), Below(u"ini/Tempolark.ini"_s));
    QCOMPARE(PathOf(answer, u"AppEXEName"_s), Below(u"TempolarkCentral.exe"_s));
    QCOMPARE(companion_->Read(u"app/bob/TimeZones/Tokyo Standard Time.ini"_s),
             "Clocks=Analogue\r\n"_ba);
    QCOMPARE(companion_->Read(u"app/bob/TempolarkCentral.ini"_s), "Status Bar=Yes\r\n"_ba);
    QCOMPARE(companion_->Read(u"app/bob/Shortcuts.txt"_s), "Clocks=F2\r\n"_ba);
}

void tst_FilesCommands::setsUpTheLocalZone_data() {
    QTest::addColumn<QStringList>("zone");
    QTest::newRow("no command line") << QStringList();
    QTest::newRow("empty command line") << QStringList{QString()};
}

void tst_FilesCommands::setsUpTheLocalZone() {
    QFETCH(QStringList, zone);
    const CompanionAnswer answer =
        Setup({u"--user"_s, u"bob"_s, u"--now"_s, u"2026-06-15T12:00:00"_s, u"--local-zone"_s,
               u"America/Los_Angeles"_s},
              zone);
    QCOMPARE(answer.Status, 0);
    QCOMPARE(PathOf(answer, u"CurrentPropertyFile"_s),
             Below(u"bob/TimeZones/Pacific Standard Time.ini"_s));
}

void tst_FilesCommands::setsUpWithoutAUser() {
    const CompanionAnswer answer = Setup({u"--user"_s, QString()}, {u"Oslo"_s});
    QCOMPARE(answer.Status, 0);
    QCOMPARE(PathOf(answer, u"DataFolder"_s), QString());
    QCOMPARE(PathOf(answer, u"TimersFolder"_s), Below(u"Timer/"_s));
    QCOMPARE(PathOf(answer, u"TimerFile"_s), QString());
    QCOMPARE(PathOf(answer, u"ShortcutsFile"_s), Below(u"ini/Shortcuts.txt"_s));
    QCOMPARE(PathOf(answer, u"CentralFile"_s), Below(u"TempolarkCentral.ini"_s));
}

void tst_FilesCommands::setsUpTheScreenSaver() {
    const CompanionAnswer answer = Setup({u"--user"_s, u"bob"_s}, {u"/s"_s});
    QCOMPARE(answer.Status, 0);
    QCOMPARE(PathOf(answer, u"CurrentPropertyFile"_s), Below(u"bob/TimeZones/s.ini"_s));
}

void tst_FilesCommands::refusesANameThatIsNoFileName() {
    const CompanionAnswer answer = Setup({u"--user"_s, u"bob"_s}, {u"../../evil"_s});
    QCOMPARE(answer.Status, 1);
    QCOMPARE(PathOf(answer, u"CurrentPropertyFile"_s),
             Below(u"bob/TimeZones/TempolarkCentral.ini"_s));
    QVERIFY(answer.Messages.contains("path separator"));
}

void tst_FilesCommands::tellsOfALostDefault() {
    QFile::remove(Below(u"ini/Tempolark.ini"_s));
    const CompanionAnswer answer = Setup({u"--user"_s, u"bob"_s}, {u"Oslo"_s});
    QCOMPARE(answer.Status, 1);
    QCOMPARE(answer.Messages, ("Tempolark System Error: " + Below(u"ini/Tempolark.ini"_s).toUtf8() +
                               " is not found\n"));
    QCOMPARE(PathOf(answer, u"CurrentPropertyFile"_s), Below(u"bob/TimeZones/Oslo.ini"_s));
}

void tst_FilesCommands::tellsOfADataFolderThatCantBeMade() {
    companion_->Write(u"app/bob"_s, "a plain file");
    const CompanionAnswer answer = Setup({u"--user"_s, u"bob"_s}, {u"Oslo"_s});
    QCOMPARE(answer.Status, 1);
    QCOMPARE(answer.Messages, Below(u"bob"_s).toUtf8() + " can't be made\n");
    QCOMPARE(PathOf(answer, u"DataFolder"_s), Below(u"bob"_s));
    QCOMPARE(PathOf(answer, u"AutoStartFile"_s), QString());
    QCOMPARE(companion_->Read(u"app/bob"_s), "a plain file"_ba);
}

void tst_FilesCommands::writesNothingOutsideTheProgramFolder() {
    for (const QString& user : {u"../bob"_s, QString(), u".."_s, u"/tmp/bob"_s}) {
        QVERIFY(Setup({u"--user"_s, user}, {u"Oslo"_s}).Status == 0);
    }
    QCOMPARE(QDir(companion_->Folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList{u"app"_s});
}

void tst_FilesCommands::fillsAFolderThatIsNew() {
    const CompanionAnswer answer = companion_->Run(
        {u"--app-folder"_s, u"new"_s, u"--user"_s, u"bob"_s, u"files"_s, u"setup"_s, u"Oslo"_s});
    QCOMPARE(answer.Status, 0);
    QCOMPARE(answer.Messages, QByteArray());
    QStringList folders = QDir(companion_->Folder.filePath(u"new"_s))
                              .entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
    folders.sort();
    QCOMPARE(folders, (QStringList{u"Help"_s, u"Images"_s, u"Music"_s, u"SoundFiles"_s, u"Styles"_s,
                                   u"Timezones"_s, u"bob"_s, u"ini"_s}));
    QVERIFY(companion_->Read(u"new/bob/TimeZones/Oslo.ini"_s) ==
            companion_->Read(u"new/ini/Tempolark.ini"_s));
    QVERIFY(!companion_->Read(u"new/bob/Shortcuts.txt"_s).isEmpty());
}

void tst_FilesCommands::refusesAFileForAFolder() {
    const QString path = companion_->Write(u"notes.txt"_s, "notes");
    const CompanionAnswer answer =
        companion_->Run({u"--app-folder"_s, u"notes.txt"_s, u"files"_s, u"setup"_s});
    QCOMPARE(answer.Status, 1);
    QCOMPARE(answer.Messages, path.toUtf8() + " is not a folder\n");
    QCOMPARE(answer.Output, QByteArray());
    QCOMPARE(companion_->Read(u"notes.txt"_s), "notes"_ba);
}

/// A folder with something in it is as its owner wants it, whole or not.
void tst_FilesCommands::leavesOtherFoldersAsTheyAre() {
    companion_->Write(u"part/Styles/Mine.ini"_s, "Clocks=Digital\r\n");
    const CompanionAnswer answer = companion_->Run(
        {u"--app-folder"_s, u"part"_s, u"zones"_s, u"list"_s, u"--source"_s, u"profiles"_s});
    QCOMPARE(answer.Status, 0);
    QCOMPARE(QDir(companion_->Folder.filePath(u"part"_s)).entryList(QDir::Dirs | QDir::NoDot),
             (QStringList{u".."_s, u"Styles"_s}));
}

void tst_FilesCommands::makesNoFolderThatItDoesNotUse() {
    for (const QStringList& command :
         {QStringList{u"values"_s, u"yes-no"_s, u"Yes"_s}, QStringList{u"zones"_s, u"local"_s}}) {
        const CompanionAnswer answer =
            companion_->Run(QStringList{u"--app-folder"_s, u"new"_s} + command);
        QCOMPARE(answer.Status, 0);
        QVERIFY(!QFileInfo::exists(companion_->Folder.filePath(u"new"_s)));
    }
}

QTEST_GUILESS_MAIN(tst_FilesCommands)
#include "tst_FilesCommands.moc"
