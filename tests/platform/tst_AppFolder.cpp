#include <unistd.h>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include "platform/AppFolder.h"

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

private:
    QString Choose() const { return platform::ChooseAppFolder(places_); }

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
    places_.InstalledData = folder_->filePath(u"missing"_s);
    QCOMPARE(Choose(), places_.UserFolder);
    QVERIFY(QDir(places_.UserFolder).isEmpty());
}

QTEST_GUILESS_MAIN(tst_AppFolder)
#include "tst_AppFolder.moc"
