#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "platform/ProfileOrigin.h"

using namespace Qt::StringLiterals;

namespace {

/// A folder whose one profile is up to date on 15 June 2026.
struct Desk {
    Desk() {
        Write(u"ini/Tempolark.ini"_s, "A=1");
        Write(u"Images/Flags/Norway.jpg"_s, "x");
        Write(u"tool"_s, "one");
        Write(u"zoneinfo/zone.tab"_s, "NO\t+5955+01045\tEurope/Oslo\n");
        Write(u"zoneinfo/zone1970.tab"_s, "DE\t+5230+01322\tEurope/Berlin\n");
        Write(u"zoneinfo/tzdata.zi"_s, "# version 2026a\n");
        Write(u"Timezones/Oslo.ini"_s, "profile");
        Stamp();
    }

    void Stamp() const {
        Write(u"Timezones/made-of.txt"_s, platform::ProfileOrigin(Sources) + "\n0123 Oslo.ini\n");
    }
    void Write(const QString& name, const QByteArray& content) const {
        const QString path = Folder.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), content.size());
    }
    void Remove(const QString& name) const { QVERIFY(QFile::remove(Folder.filePath(name))); }
    bool IsDue() const { return platform::AreProfilesDue(Sources); }

    QTemporaryDir Folder;
    platform::ProfileSources Sources{Folder.path(), Folder.filePath(u"tool"_s),
                                     Folder.filePath(u"zoneinfo"_s), QDate(2026, 6, 15)};
};

}  // namespace

/// When the profiles of cities are to be made anew.
class tst_ProfileOrigin : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ReadsAStamp() {
        const platform::ProfileStamp stamp =
            platform::ParseProfileStamp("2026-06 abc\n12 Oslo.ini\nnothing\n34 New York.ini\n");
        QCOMPARE(stamp.Origin, "2026-06 abc"_ba);
        QCOMPARE(stamp.Sums, (QMap<QString, QByteArray>{{u"Oslo.ini"_s, "12"_ba},
                                                        {u"New York.ini"_s, "34"_ba}}));
    }

    void NothingIsDueWhileAllIsAsItWas() {
        Desk desk;
        QVERIFY(!desk.IsDue());
        desk.Sources.Date = QDate(2026, 6, 30);
        desk.Write(u"Timezones/Oslo.ini"_s, "the user's");
        QVERIFY(!desk.IsDue());
    }

    void FollowsWhatTheyAreMadeOf_data() {
        QTest::addColumn<QString>("file");
        for (const QString& file :
             {u"ini/Tempolark.ini"_s, u"Images/Flags/Oman.jpg"_s, u"tool"_s, u"zoneinfo/zone.tab"_s,
              u"zoneinfo/zone1970.tab"_s, u"zoneinfo/tzdata.zi"_s}) {
            QTest::addRow("%s", qPrintable(file)) << file;
        }
    }

    void FollowsWhatTheyAreMadeOf() {
        QFETCH(QString, file);
        const Desk desk;
        desk.Write(file, "new");
        QVERIFY(desk.IsDue());
        desk.Stamp();
        QVERIFY(!desk.IsDue());
    }

    void FollowsTheMonth() {
        Desk desk;
        desk.Sources.Date = QDate(2026, 7, 1);
        QVERIFY(desk.IsDue());
        desk.Sources.Date = QDate(2027, 6, 15);
        QVERIFY(desk.IsDue());
    }

    void FollowsTheFolder() {
        const Desk desk;
        const Desk other;
        QVERIFY(QFile::remove(other.Sources.StampFile()));
        QVERIFY(QFile::copy(desk.Sources.StampFile(), other.Sources.StampFile()));
        QVERIFY(other.IsDue());
    }

    void MissesALostProfile() {
        const Desk desk;
        desk.Remove(u"Timezones/Oslo.ini"_s);
        QVERIFY(desk.IsDue());
    }

    void ProfilesWithoutAStampAreOld() {
        const Desk desk;
        desk.Remove(u"Timezones/made-of.txt"_s);
        QVERIFY(desk.IsDue());
        desk.Remove(u"Timezones/Oslo.ini"_s);
        desk.Write(u"Timezones/notes.txt"_s, "x");
        QVERIFY(!desk.IsDue());
    }

    void AFolderWithoutProfilesGetsNone() {
        const Desk desk;
        QVERIFY(QDir(desk.Sources.ProfileFolder()).removeRecursively());
        QVERIFY(!desk.IsDue());
    }

    void NothingIsDueWithoutTheTool() {
        const Desk desk;
        desk.Remove(u"tool"_s);
        QVERIFY(!desk.IsDue());
    }
};

QTEST_GUILESS_MAIN(tst_ProfileOrigin)
#include "tst_ProfileOrigin.moc"
