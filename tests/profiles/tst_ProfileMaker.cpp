#include "profiles/ProfileMaker.h"

namespace {

const QString Summer = u"2026-07-01"_s;

}  // namespace

/// What the maker of profiles writes, and when.
class tst_ProfileMaker : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void TellsAllOfACity();
    void TellsTheSouth();
    void TellsAZoneWithoutChanges();
    void HasTheGreatCapitals();
    void HoldsForTheYearOfTheDate();
    void DoesNothingTwice();
    void RestoresALostProfile();
    void FollowsTheDefaultFile();
    void TakesAwayWhatTheTableHasLost();
    void KeepsWhatTheUserHasChanged();
    void RenewsAChangedProfileAgainAndAgain();
    void KeepsAFileOfAnotherZone();
    void KeepsAChangedProfileThatTheTableHasLost();
    void GoesWhereItIsCopied();
    void TellsCitiesOfOneNameApart();
    void PassesOverOtherLines();
    void RefusesOrders_data();
    void RefusesOrders();
    void FailsWithoutADefaultFile();

private:
    const ProfileMaker made_;
};

void tst_ProfileMaker::initTestCase() {
    QCOMPARE(made_.Run(Summer), 0);
}

void tst_ProfileMaker::TellsAllOfACity() {
    QCOMPARE(made_.Read(u"Berlin"_s),
             QByteArray("Clock:Clocks=Analogue,Analogue,Digital\r\n"
                        "Time Zone:Flag File=.\\Images\\Flags\\Germany.jpg\r\n"
                        "Time Zone:Time Zone Standard Name=Berlin\r\n"
                        "Time Zone:Time Zone Standard Start Time=25/10/2026 3:00:00\r\n"
                        "Time Zone:Time Zone Standard GMT (Minutes)=-60\r\n"
                        "Time Zone:Time Zone Daylight Name=Berlin Daylight Time\r\n"
                        "Time Zone:Time Zone Daylight Start Time=29/03/2026 2:00:00\r\n"
                        "Time Zone:Time Zone Daylight GMT (Minutes)=-120\r\n"
                        "Zone:Latitude=52.5200\r\n"
                        "Zone:Longitude=13.4000\r\n"
                        "Zone:Country=Germany\r\n"
                        "Zone:City=Berlin\r\n"));
}

// Canberra lies in the zone of Sydney, whose summer spans the new year.
void tst_ProfileMaker::TellsTheSouth() {
    const QByteArray profile = made_.Read(u"Canberra"_s);
    QVERIFY(profile.contains("Flag File=.\\Images\\Flags\\Australia.jpg\r\n"));
    QVERIFY(profile.contains("Standard Start Time=05/04/2026 3:00:00\r\n"));
    QVERIFY(profile.contains("Standard GMT (Minutes)=-600\r\n"));
    QVERIFY(profile.contains("Daylight Start Time=04/10/2026 2:00:00\r\n"));
    QVERIFY(profile.contains("Daylight GMT (Minutes)=-660\r\n"));
    QVERIFY(profile.contains("Zone:Latitude=-35.2800\r\n"));
}

void tst_ProfileMaker::TellsAZoneWithoutChanges() {
    const QByteArray profile = made_.Read(u"Kathmandu"_s);
    QVERIFY(profile.contains("Standard Start Time=0.0.0 0:00:00\r\n"));
    QVERIFY(profile.contains("Standard GMT (Minutes)=-345\r\n"));
    QVERIFY(profile.contains("Daylight Start Time=0.0.0 0:00:00\r\n"));
    QVERIFY(profile.contains("Daylight GMT (Minutes)=-345\r\n"));
    QVERIFY(profile.contains("Flag File=\r\n"));
}

// The tz database names none of these.
void tst_ProfileMaker::HasTheGreatCapitals() {
    for (const QString& city :
         {u"Washington"_s, u"Canberra"_s, u"Ottawa"_s, u"New Delhi"_s, u"Beijing"_s, u"Brasilia"_s,
          u"Bern"_s, u"Ankara"_s, u"Wellington"_s, u"Hanoi"_s, u"Rabat"_s, u"Mumbai"_s}) {
        QVERIFY2(made_.Has(city), qPrintable(city));
    }
}

// A new year is noticed: the last Sunday of March 2027 is the 28th.
void tst_ProfileMaker::HoldsForTheYearOfTheDate() {
    const ProfileMaker maker;
    QCOMPARE(maker.Run(Summer), 0);
    QCOMPARE(maker.Run(u"2027-01-02"_s), 0);
    QVERIFY(maker.Read(u"Berlin"_s).contains("Daylight Start Time=28/03/2027 2:00:00\r\n"));
}

void tst_ProfileMaker::DoesNothingTwice() {
    const ProfileMaker maker;
    QCOMPARE(maker.Run(Summer), 0);
    maker.Write(u"Timezones/Berlin.ini"_s, "own");
    QCOMPARE(maker.Run(u"2026-07-31"_s), 0);
    QCOMPARE(maker.Read(u"Berlin"_s), QByteArray("own"));
}

void tst_ProfileMaker::RestoresALostProfile() {
    const ProfileMaker maker;
    QCOMPARE(maker.Run(Summer), 0);
    QVERIFY(QFile::remove(maker.Path(u"Oslo"_s)));
    QCOMPARE(maker.Run(Summer), 0);
    QVERIFY(maker.Has(u"Oslo"_s));
}

void tst_ProfileMaker::FollowsTheDefaultFile() {
    const ProfileMaker maker;
    QCOMPARE(maker.Run(Summer), 0);
    maker.Write(u"ini/Tempolark.ini"_s, "Clock:New=1\r\n");
    QCOMPARE(maker.Run(Summer), 0);
    const QByteArray profile = maker.Read(u"Rome"_s);
    QVERIFY(profile.startsWith("Clock:New=1\r\n"));
    QVERIFY(profile.contains("Time Zone:Time Zone Standard Name=Rome\r\n"));
}

void tst_ProfileMaker::TakesAwayWhatTheTableHasLost() {
    const ProfileMaker maker;
    QCOMPARE(maker.RunWithTable("ZZ\t+0000+00000\tEtc/GMT\n"), 0);
    QVERIFY(maker.Has(u"GMT"_s));
    maker.Write(u"Timezones/Mine.ini"_s, "own");
    QCOMPARE(maker.RunWithTable("ZZ\t+0000+00000\tEtc/UTC\n"), 0);
    QVERIFY(!maker.Has(u"GMT"_s));
    QVERIFY(maker.Has(u"UTC"_s));
    QCOMPARE(maker.Read(u"Mine"_s), QByteArray("own"));
}

// The zone's six keys are renewed in their lines; a flag, a word of one's own and a blank line
// stay.
void tst_ProfileMaker::KeepsWhatTheUserHasChanged() {
    const ProfileMaker maker;
    QCOMPARE(maker.Run(Summer), 0);
    maker.Write(u"Timezones/Berlin.ini"_s,
                "Time Zone:Flag File=.\\mine.png\r\n\r\n"
                "Time Zone:Time Zone Standard Name=Berlin\r\n"
                "Time Zone:Time Zone Standard Start Time=25/10/2026 3:00:00\r\n"
                "time zone standard gmt (minutes) =-1\n"
                "Time Zone Daylight Start Time=29/03/2026 2:00:00\r\n"
                "Time Zone Daylight Start Time=the second of its name\r\n"
                "my own word\r\n"
                "Clock:Gr\xf6\xdf"
                "e=Time Zone Daylight Name=");
    QCOMPARE(maker.Run(u"2027-01-02"_s), 0);
    QCOMPARE(maker.Read(u"Berlin"_s),
             QByteArray("Time Zone:Flag File=.\\mine.png\r\n\r\n"
                        "Time Zone:Time Zone Standard Name=Berlin\r\n"
                        "Time Zone:Time Zone Standard Start Time=31/10/2027 3:00:00\r\n"
                        "time zone standard gmt (minutes) =-60\n"
                        "Time Zone Daylight Start Time=28/03/2027 2:00:00\r\n"
                        "Time Zone Daylight Start Time=the second of its name\r\n"
                        "my own word\r\n"
                        "Clock:Gr\xf6\xdf"
                        "e=Time Zone Daylight Name="));
    QVERIFY(maker.Read(u"Rome"_s).contains("Daylight Start Time=28/03/2027 2:00:00\r\n"));
}

void tst_ProfileMaker::RenewsAChangedProfileAgainAndAgain() {
    const ProfileMaker maker;
    QCOMPARE(maker.Run(Summer), 0);
    maker.Write(u"Timezones/Rome.ini"_s, maker.Read(u"Rome"_s).replace("Analogue", "Digital"));
    QCOMPARE(maker.Run(u"2027-01-02"_s), 0);
    QCOMPARE(maker.Run(u"2028-01-02"_s), 0);
    QVERIFY(maker.Read(u"Rome"_s).contains("Clock:Clocks=Digital,Digital,Digital\r\n"));
    QVERIFY(maker.Read(u"Rome"_s).contains("Daylight Start Time=26/03/2028 2:00:00\r\n"));
    QVERIFY(maker.Read(u"Oslo"_s).contains("Clock:Clocks=Analogue,Analogue,Digital\r\n"));
}

void tst_ProfileMaker::KeepsAFileOfAnotherZone() {
    const ProfileMaker maker;
    const QByteArray own =
        "Time Zone Standard Name=My Rome\r\nTime Zone Standard GMT (Minutes)=7\r\n";
    const QByteArray nameless = "Time Zone Standard GMT (Minutes)=7\r\n";
    maker.Write(u"Timezones/Rome.ini"_s, own);
    maker.Write(u"Timezones/Oslo.ini"_s, nameless);
    QCOMPARE(maker.Run(Summer), 0);
    QCOMPARE(maker.Read(u"Rome"_s), own);
    QCOMPARE(maker.Read(u"Oslo"_s), nameless);
    QCOMPARE(maker.Run(u"2027-01-02"_s), 0);
    QCOMPARE(maker.Read(u"Rome"_s), own);
    QCOMPARE(maker.Read(u"Oslo"_s), nameless);
}

void tst_ProfileMaker::KeepsAChangedProfileThatTheTableHasLost() {
    const ProfileMaker maker;
    QCOMPARE(maker.RunWithTable("ZZ\t+0000+00000\tEtc/GMT\n"), 0);
    maker.Write(u"Timezones/GMT.ini"_s, "own");
    QCOMPARE(maker.RunWithTable("ZZ\t+0000+00000\tEtc/UTC\n"), 0);
    QCOMPARE(maker.Read(u"GMT"_s), QByteArray("own"));
}

// A copy has all that is to be seen of the folder, and may have kept older profiles in it.
void tst_ProfileMaker::GoesWhereItIsCopied() {
    const ProfileMaker maker;
    QCOMPARE(maker.Run(Summer), 0);
    const ProfileMaker copy;
    QDir().mkpath(copy.Folder.filePath(u"Timezones"_s));
    const QDir made(maker.Folder.filePath(u"Timezones"_s));
    for (const QString& name : made.entryList(QDir::Files)) {
        QVERIFY(QFile::copy(made.filePath(name), copy.Folder.filePath(u"Timezones/"_s + name)));
    }
    QVERIFY(QFile::exists(copy.Folder.filePath(u"Timezones/made-of.txt"_s)));
    copy.Write(u"Timezones/Rome.ini"_s, copy.Read(u"Rome"_s).replace("/2026", "/2025"));
    QCOMPARE(copy.Run(Summer), 0);
    QCOMPARE(copy.Read(u"Rome"_s), maker.Read(u"Rome"_s));
    QCOMPARE(copy.Run(u"2027-01-02"_s), 0);
    QVERIFY(copy.Read(u"Berlin"_s).contains("Daylight Start Time=28/03/2027 2:00:00\r\n"));
}

void tst_ProfileMaker::TellsCitiesOfOneNameApart() {
    const ProfileMaker maker;
    QCOMPARE(maker.RunWithTable("US\t+3946-08610\tAmerica/Indiana/Indianapolis\n"
                                "US\t+3946-08610\tAmerica/Indianapolis\n"
                                "US\t+3946-08610\tAmerica/Indianapolis\n"
                                "CY\t+3507+03357\tAsia/Nicosia\n"
                                "TR\t+3507+03357\tEurope/Nicosia\n"),
             0);
    QVERIFY(maker.Read(u"Nicosia"_s).contains("Zone:Country=Cyprus\r\n"));
    QVERIFY(maker.Read(u"Nicosia (Turkey)"_s).contains("Standard Name=Nicosia (Turkey)\r\n"));
    QVERIFY(maker.Has(u"Indianapolis"_s));
    QVERIFY(maker.Has(u"Indianapolis (America)"_s));
    QCOMPARE(maker.Names().filter(u"Indianapolis"_s).size(), 2);
}

void tst_ProfileMaker::PassesOverOtherLines() {
    const ProfileMaker maker;
    QCOMPARE(maker.RunWithTable("# a comment\n\nAU\t-3133+15905\n"
                                "AU\there\tAustralia/Lord_Howe\n"
                                "AU\t-3352+15113\tAustralia/Nowhere\n"
                                "#AU\t-3155+11551\tAustralia/Perth\n"
                                "AU\t-1228+13050\tAustralia/Darwin\tNorthern Territory\r\n"),
             0);
    QVERIFY(maker.Has(u"Darwin"_s));
    QVERIFY(!maker.Has(u"Lord Howe"_s));
    QVERIFY(!maker.Has(u"Nowhere"_s));
    QVERIFY(!maker.Has(u"Perth"_s));
}

void tst_ProfileMaker::RefusesOrders_data() {
    QTest::addColumn<QStringList>("words");
    QTest::newRow("nothing") << QStringList();
    QTest::newRow("unknown") << QStringList{u"."_s, u"--fast"_s, u"yes"_s};
    QTest::newRow("no value") << QStringList{u"."_s, u"--date"_s};
    QTest::newRow("no date") << QStringList{u"."_s, u"--date"_s, u"2026-02-30"_s};
}

void tst_ProfileMaker::RefusesOrders() {
    QFETCH(QStringList, words);
    const QTemporaryDir folder;
    QProcess process;
    process.setWorkingDirectory(folder.path());
    process.start(QStringLiteral(TEMPOLARK_BIN_DIR "/tempolark-profiles"), words);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 2);
    QVERIFY(process.readAllStandardError().startsWith("usage: tempolark-profiles APP-FOLDER"));
    QVERIFY(QDir(folder.path()).isEmpty());
}

void tst_ProfileMaker::FailsWithoutADefaultFile() {
    const ProfileMaker maker;
    QVERIFY(QFile::remove(maker.Folder.filePath(u"ini/Tempolark.ini"_s)));
    QCOMPARE(maker.Run(Summer), 1);
    QCOMPARE(maker.Names(), QStringList());
}

QTEST_GUILESS_MAIN(tst_ProfileMaker)
#include "tst_ProfileMaker.moc"
