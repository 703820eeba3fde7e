#include <unistd.h>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include "platform/AppFolder.h"
#include "platform/StockData.h"

using namespace Qt::StringLiterals;

class tst_AppFolder : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void takesTheExecutablesOwnFolder();
    void fillsTheUsersFolderFromInstalledData();
    void leavesAFolderThatTheUserCantWrite();
    void bringsNewerDefaultsOver();
    void leavesWhatIsTheUsers();
    void bringsProfilesWithTheirStampOnce();
    void copiesReadOnlyFiles();
    void goesOnWithoutInstalledData();
    void choosingTouchesNothing();
    void fillsANewOrAnEmptyFolder_data();
    void fillsANewOrAnEmptyFolder();
    void copiesOnlyWhatComesWithTheProgram();
    void leavesAFolderThatIsInUse();
    void goesOnWhereFillingBrokeOff();
    void leavesNothingOfAFillingThatFailed();
    void leavesTheFolderItselfWhereFillingFailed();
    void refusesWhatCantBeAFolder();
    void refusesAFolderThatCantBeWritten();
    void tellsOtherFilesFromItsOwn();
    void fillsTheUsersFolderWhateverItHolds();
    void fillsAFolderThatAPowerCutHasLeft();
    void completesAFolderWithoutItsDefaultFile();
    void completesNothingWithoutData();

private:
    /// The folder that is chosen where none is named, ready for use.
    QString Choose() const {
        const QString folder = platform::ChooseAppFolder(places_);
        return Make(folder).isEmpty() ? folder : QString();
    }

    /// What becomes of a folder before the program uses it.
    QString Make(const QString& folder) const {
        const QString problem = platform::PrepareAppFolder(folder);
        return problem.isEmpty() ? platform::FillAppFolder(folder, places_) : problem;
    }

    /// All files below a folder, hidden ones too.
    static QStringList FilesIn(const QString& folder) {
        QStringList names;
        QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            names += files.next().sliced(folder.size() + 1);
        }
        names.sort();
        return names;
    }

    static void Write(const QString& path, const QByteArray& content, qint64 time) {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), content.size());
        file.flush();
        QVERIFY(file.setFileTime(QDateTime::fromSecsSinceEpoch(time, Qt::UTC),
                                 QFileDevice::FileModificationTime));
    }

    static QByteArray Read(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QString User(const QString& name) const { return places_.UserFolder + u'/' + name; }

    std::unique_ptr<QTemporaryDir> folder_;
    platform::AppFolderPlaces places_;
};

void tst_AppFolder::init() {
    folder_ = std::make_unique<QTemporaryDir>();
    places_ = {folder_->filePath(u"bin"_s), folder_->filePath(u"home/data"_s),
               folder_->filePath(u"share"_s)};
    QDir().mkpath(places_.ExecutableFolder);
    Write(places_.InstalledData + u"/ini/Tempolark.ini"_s, "A=1", 1000000000);
    Write(places_.InstalledData + u"/Images/Background/a.gif"_s, "GIF", 1000000000);
}

void tst_AppFolder::takesTheExecutablesOwnFolder() {
    Write(places_.ExecutableFolder + u"/ini/Tempolark.ini"_s, "A=2", 1000000000);
    QCOMPARE(Choose(), places_.ExecutableFolder);
    QVERIFY(!QFileInfo::exists(places_.UserFolder));
}

void tst_AppFolder::fillsTheUsersFolderFromInstalledData() {
    QCOMPARE(Choose(), places_.UserFolder);
    QCOMPARE(Read(User(u"ini/Tempolark.ini"_s)), "A=1"_ba);
    QCOMPARE(Read(User(u"Images/Background/a.gif"_s)), "GIF"_ba);
    QCOMPARE(QFileInfo(User(u"ini/Tempolark.ini"_s)).lastModified().toSecsSinceEpoch(),
             qint64{1000000000});
}

void tst_AppFolder::leavesAFolderThatTheUserCantWrite() {
    if (geteuid() == 0) {
        QSKIP("every folder is open to the administrator");
    }
    Write(places_.ExecutableFolder + u"/ini/Tempolark.ini"_s, "A=2", 1000000000);
    QFile::setPermissions(places_.ExecutableFolder, QFile::ReadOwner | QFile::ExeOwner);
    const QString chosen = Choose();
    QFile::setPermissions(places_.ExecutableFolder,
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QCOMPARE(chosen, places_.UserFolder);
    QCOMPARE(Read(User(u"ini/Tempolark.ini"_s)), "A=2"_ba);
}

void tst_AppFolder::bringsNewerDefaultsOver() {
    Choose();
    Write(places_.InstalledData + u"/ini/Tempolark.ini"_s, "A=3", 1000000001);
    Write(places_.InstalledData + u"/ini/New.ini"_s, "N=1", 1000000001);
    Choose();
    QCOMPARE(Read(User(u"ini/Tempolark.ini"_s)), "A=3"_ba);
    QCOMPARE(Read(User(u"ini/New.ini"_s)), "N=1"_ba);
    QCOMPARE(QFileInfo(User(u"ini/Tempolark.ini"_s)).lastModified().toSecsSinceEpoch(),
             qint64{1000000001});
}

void tst_AppFolder::leavesWhatIsTheUsers() {
    Write(User(u"bob/TimeZones/Oslo.ini"_s), "Own=1", 900000000);
    Write(User(u"ini/Tempolark.ini"_s), "newer", 1000000002);
    Choose();
    QCOMPARE(Read(User(u"bob/TimeZones/Oslo.ini"_s)), "Own=1"_ba);
    QCOMPARE(Read(User(u"ini/Tempolark.ini"_s)), "newer"_ba);
}

// They are made anew in the user's folder, where they may have been changed.
void tst_AppFolder::bringsProfilesWithTheirStampOnce() {
    const QString oslo = u"Timezones/Oslo.ini"_s;
    const QString stamp = u"Timezones/made-of.txt"_s;
    Write(places_.InstalledData + u'/' + oslo, "Flag File=a", 1000000000);
    Write(places_.InstalledData + u'/' + stamp, "2026", 1000000000);
    Choose();
    QCOMPARE(Read(User(oslo)), "Flag File=a"_ba);
    QCOMPARE(Read(User(stamp)), "2026"_ba);
    Write(User(oslo), "Flag File=mine", 1000000001);
    Write(places_.InstalledData + u'/' + oslo, "Flag File=b", 1000000002);
    Write(places_.InstalledData + u'/' + stamp, "2027", 1000000002);
    Write(places_.InstalledData + u"/Timezones/Rome.ini"_s, "Flag File=c", 1000000002);
    Choose();
    QCOMPARE(Read(User(oslo)), "Flag File=mine"_ba);
    QCOMPARE(Read(User(stamp)), "2026"_ba);
    QCOMPARE(Read(User(u"Timezones/Rome.ini"_s)), "Flag File=c"_ba);
}

void tst_AppFolder::copiesReadOnlyFiles() {
    const QString source = places_.InstalledData + u"/ini/Tempolark.ini"_s;
    QFile::setPermissions(source, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    Choose();
    QCOMPARE(Read(User(u"ini/Tempolark.ini"_s)), "A=1"_ba);
    QVERIFY(QFile::permissions(User(u"ini/Tempolark.ini"_s)) & QFile::WriteOwner);
    QFile::setPermissions(source, QFile::ReadOwner | QFile::WriteOwner);
    Write(source, "A=2", 1000000001);
    QFile::setPermissions(source, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    Choose();
    QCOMPARE(Read(User(u"ini/Tempolark.ini"_s)), "A=2"_ba);
    QDirIterator halves(places_.UserFolder, {u"*.new"_s}, QDir::Files,
                        QDirIterator::Subdirectories);
    QVERIFY(!halves.hasNext());
}

void tst_AppFolder::goesOnWithoutInstalledData() {
    Choose();
    places_.InstalledData = folder_->filePath(u"missing"_s);
    QCOMPARE(Choose(), places_.UserFolder);
    const QString other = folder_->filePath(u"other"_s);
    QCOMPARE(Make(other),
             u"The data that %1 is to be filled with is missing: there is none in %2"_s.arg(
                 other, places_.InstalledData));
}

void tst_AppFolder::choosingTouchesNothing() {
    QCOMPARE(platform::ChooseAppFolder(places_), places_.UserFolder);
    QVERIFY(!QFileInfo::exists(folder_->filePath(u"home"_s)));
}

void tst_AppFolder::fillsANewOrAnEmptyFolder_data() {
    QTest::addColumn<bool>("exists");
    QTest::newRow("new") << false;
    QTest::newRow("empty") << true;
}

void tst_AppFolder::fillsANewOrAnEmptyFolder() {
    QFETCH(bool, exists);
    const QString folder = folder_->filePath(u"far/away/clocks"_s);
    QVERIFY(!exists || QDir().mkpath(folder));
    QCOMPARE(Make(folder), QString());
    QCOMPARE(FilesIn(folder), (QStringList{u"Images/Background/a.gif"_s, u"ini/Tempolark.ini"_s}));
    QCOMPARE(Read(folder + u"/ini/Tempolark.ini"_s), "A=1"_ba);
    QVERIFY(!QFileInfo::exists(places_.UserFolder));
}

/// Beside an executable stand programs, and what its users have set.
void tst_AppFolder::copiesOnlyWhatComesWithTheProgram() {
    const QString& beside = places_.ExecutableFolder;
    Write(beside + u"/ini/Tempolark.ini"_s, "A=2", 1000000000);
    Write(beside + u"/bob/TimeZones/Oslo.ini"_s, "Own=1", 1000000000);
    Write(beside + u"/TempolarkCentral"_s, "ELF", 1000000000);
    const QString folder = folder_->filePath(u"clocks"_s);
    QCOMPARE(Make(folder), QString());
    QCOMPARE(FilesIn(folder), QStringList{u"ini/Tempolark.ini"_s});
    for (const QString& name : QDir(QStringLiteral(TEMPOLARK_SOURCE_DIR "/data"))
                                   .entryList(QDir::AllEntries | QDir::NoDotAndDotDot)) {
        QVERIFY2(platform::StockFolders().contains(name), qPrintable(name));
    }
}

/// Whatever has become of its default files since: what is lost there, other rules restore.
void tst_AppFolder::leavesAFolderThatIsInUse() {
    const QString folder = folder_->filePath(u"clocks"_s);
    QCOMPARE(Make(folder), QString());
    Write(folder + u"/ini/Tempolark.ini"_s, "A=old", 900000000);
    QVERIFY(QFile::remove(folder + u"/Images/Background/a.gif"_s));
    QCOMPARE(Make(folder), QString());
    QCOMPARE(FilesIn(folder), QStringList{u"ini/Tempolark.ini"_s});
    QCOMPARE(Read(folder + u"/ini/Tempolark.ini"_s), "A=old"_ba);
}

void tst_AppFolder::goesOnWhereFillingBrokeOff() {
    const QString folder = folder_->filePath(u"clocks"_s);
    QCOMPARE(platform::PrepareAppFolder(folder), QString());
    Write(folder + u"/Images/Background/a.gif"_s, "GIF", 1000000000);
    QVERIFY(!platform::HoldsOtherFiles(folder, places_));
    QCOMPARE(Make(folder), QString());
    QCOMPARE(FilesIn(folder), (QStringList{u"Images/Background/a.gif"_s, u"ini/Tempolark.ini"_s}));
}

void tst_AppFolder::leavesNothingOfAFillingThatFailed() {
    const QString folder = folder_->filePath(u"clocks"_s);
    QCOMPARE(platform::PrepareAppFolder(folder), QString());
    Write(folder + u"/ini"_s, "in the way", 1000000000);
    QCOMPARE(Make(folder),
             u"The folder %1 can't be filled: %1/ini/Tempolark.ini can't be written"_s.arg(folder));
    QCOMPARE(FilesIn(folder), (QStringList{u".filling"_s, u"ini"_s}));
    QVERIFY(!QFileInfo::exists(folder + u"/Images"_s));
    QVERIFY(QFile::remove(folder + u"/ini"_s));
    QCOMPARE(Make(folder), QString());
    QCOMPARE(FilesIn(folder).size(), 2);
}

/// Files come in the order of the disk: one of these long names stands behind a short one.
void tst_AppFolder::leavesTheFolderItselfWhereFillingFailed() {
    for (const QChar letter : u"abcdefgh"_s) {
        const QString source = folder_->filePath(u"source "_s + letter);
        const QString name = u"/Help/"_s + QString(254, letter);  // there is no room for ".new"
        Write(source + u"/Help/short.htm"_s, "<p>", 1000000000);
        Write(source + name, "<p>", 1000000000);
        const QString folder = folder_->filePath(u"clocks "_s + letter);
        QVERIFY(QDir().mkpath(folder));
        QCOMPARE(platform::CopyStockData(source, folder), folder + name);
        QCOMPARE(FilesIn(folder), QStringList());
        QVERIFY(QFileInfo(folder).isDir());
    }
}

void tst_AppFolder::refusesWhatCantBeAFolder() {
    const QString file = folder_->filePath(u"notes.txt"_s);
    Write(file, "notes", 1000000000);
    QCOMPARE(platform::PrepareAppFolder(file), u"%1 is not a folder"_s.arg(file));
    QCOMPARE(platform::PrepareAppFolder(file + u"/clocks"_s),
             u"The folder %1/clocks can't be made"_s.arg(file));
    QCOMPARE(Read(file), "notes"_ba);
}

void tst_AppFolder::refusesAFolderThatCantBeWritten() {
    if (geteuid() == 0) {
        QSKIP("every folder is open to the administrator");
    }
    const QString folder = folder_->filePath(u"clocks"_s);
    QVERIFY(QDir().mkpath(folder));
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner);
    const QString problem = platform::PrepareAppFolder(folder);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QCOMPARE(problem, u"The folder %1 can't be written"_s.arg(folder));
}

void tst_AppFolder::tellsOtherFilesFromItsOwn() {
    const QString folder = folder_->filePath(u"clocks"_s);
    QVERIFY(!platform::HoldsOtherFiles(folder, places_));
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(!platform::HoldsOtherFiles(folder, places_));
    Write(folder + u"/.profile"_s, "text", 1000000000);
    QVERIFY(platform::HoldsOtherFiles(folder, places_));
    QCOMPARE(Make(folder), QString());
    QCOMPARE(FilesIn(folder), QStringList{u".profile"_s});
    QVERIFY(QDir().mkpath(folder + u"/ini"_s));
    QVERIFY(!platform::HoldsOtherFiles(folder, places_));
}

/// It may be a note, or what a filling without a mark has come to.
void tst_AppFolder::fillsTheUsersFolderWhateverItHolds() {
    Write(User(u"notes.txt"_s), "notes", 1000000000);
    Write(User(u"Images/Background/a.gif"_s), "GIF", 1000000000);
    QVERIFY(!platform::HoldsOtherFiles(places_.UserFolder, places_));
    QCOMPARE(Make(places_.UserFolder), QString());
    QCOMPARE(FilesIn(places_.UserFolder),
             (QStringList{u"Images/Background/a.gif"_s, u"ini/Tempolark.ini"_s, u"notes.txt"_s}));
    QCOMPARE(Read(User(u"notes.txt"_s)), "notes"_ba);
}

void tst_AppFolder::fillsAFolderThatAPowerCutHasLeft() {
    const QString folder = folder_->filePath(u"clocks"_s);
    Write(folder + u"/.running-1000"_s, {}, 1000000000);
    QVERIFY(!platform::HoldsOtherFiles(folder, places_));
    QCOMPARE(Make(folder), QString());
    QCOMPARE(FilesIn(folder), (QStringList{u".running-1000"_s, u"Images/Background/a.gif"_s,
                                           u"ini/Tempolark.ini"_s}));
    const QString other = folder_->filePath(u"other"_s);
    Write(other + u"/.running-1000"_s, {}, 1000000000);
    Write(other + u"/running-1000"_s, "log", 1000000000);
    QVERIFY(platform::HoldsOtherFiles(other, places_));
}

/// An empty `ini` is what a filling may have come to; whoever only looks leaves it.
void tst_AppFolder::completesAFolderWithoutItsDefaultFile() {
    const QString folder = folder_->filePath(u"clocks"_s);
    Write(folder + u"/ini/Own.ini"_s, "O=1", 1000000000);
    QCOMPARE(Make(folder), QString());
    QCOMPARE(FilesIn(folder), QStringList{u"ini/Own.ini"_s});
    QCOMPARE(platform::CompleteAppFolder(folder, places_), QString());
    QCOMPARE(FilesIn(folder),
             (QStringList{u"Images/Background/a.gif"_s, u"ini/Own.ini"_s, u"ini/Tempolark.ini"_s}));
    QCOMPARE(Read(folder + u"/ini/Tempolark.ini"_s), "A=1"_ba);
    QVERIFY(QFile::remove(folder + u"/Images/Background/a.gif"_s));
    QCOMPARE(platform::CompleteAppFolder(folder, places_), QString());
    QVERIFY(!QFile::exists(folder + u"/Images/Background/a.gif"_s));
}

/// What is lost there, other rules tell of.
void tst_AppFolder::completesNothingWithoutData() {
    QVERIFY(QFile::remove(places_.InstalledData + u"/ini/Tempolark.ini"_s));
    const QString folder = folder_->filePath(u"clocks"_s);
    Write(folder + u"/ini/Own.ini"_s, "O=1", 1000000000);
    QVERIFY(!platform::HoldsOtherFiles(folder, places_));
    QCOMPARE(platform::CompleteAppFolder(folder, places_), QString());
    QCOMPARE(FilesIn(folder), QStringList{u"ini/Own.ini"_s});
    Write(User(u"ini/Own.ini"_s), "O=1", 1000000000);
    QCOMPARE(platform::CompleteAppFolder(places_.UserFolder, places_),
             u"The data that %1 is to be filled with is missing: there is none in %2"_s.arg(
                 places_.UserFolder, places_.InstalledData));
}

QTEST_GUILESS_MAIN(tst_AppFolder)
#include "tst_AppFolder.moc"
