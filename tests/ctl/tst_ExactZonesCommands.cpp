#include "ctl/Companion.h"

using namespace Qt::StringLiterals;

namespace {

const QByteArray NewYork =
    "Time Zone:Time Zone Rules=Exact,Exact,As Stored\r\n"
    "Time Zone:Time Zone Id=America/New_York\r\n"
    "Time Zone Standard Name=Winter\r\nTime Zone Standard GMT (Minutes)=300\r\n"
    "Time Zone Daylight Name=Summer\r\nTime Zone Daylight GMT (Minutes)=240\r\n";

struct Desk {
    Companion TheCompanion;
    QString File = TheCompanion.Write(u"zone.ini"_s, NewYork);

    CompanionAnswer Run(const QStringList& time, const QStringList& command,
                        const QString& machine = u"Europe/London"_s) const {
        return TheCompanion.Run(QStringList{u"--app-folder"_s, TheCompanion.Folder.path(),
                                            u"--user"_s, u"ann"_s, u"--local-zone"_s, machine} +
                                time + QStringList{u"zones"_s} + command);
    }
    CompanionAnswer RunUtc(const QString& gmt, const QStringList& command) const {
        return Run({u"--utc"_s, gmt}, command + QStringList{u"--file"_s, File});
    }
};

}  // namespace

class tst_ExactZonesCommands : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ShowsTheMoment_data();
    void ShowsTheMoment();
    void ShowsAFileWithoutIdentifierAsItIs();
    void Describes();
    void NamesAnyMoment_data();
    void NamesAnyMoment();
    void Converts_data();
    void Converts();
    void StaysWithinADayThatIsLivedTwice();
    void RefusesAnotherInstant();
    void AnswersQuestionsOfAFile();
    void RefusesQuestions();
    void AgreesWithAnotherReader();
};

void tst_ExactZonesCommands::ShowsTheMoment_data() {
    QTest::addColumn<QString>("gmt");
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("west");
    QTest::addColumn<double>("fromLocal");
    QTest::newRow("before") << u"2026-03-08T06:59:59"_s << u"Winter"_s << 5.0 << -5.0;
    QTest::newRow("at") << u"2026-03-08T07:00:00"_s << u"Summer"_s << 4.0 << -4.0;
    QTest::newRow("the machine's summer") << u"2026-03-29T01:00:00"_s << u"Summer"_s << 4.0 << -5.0;
    QTest::newRow("far off") << u"2126-07-01T00:00:00"_s << u"Summer"_s << 4.0 << -5.0;
}

void tst_ExactZonesCommands::ShowsTheMoment() {
    QFETCH(QString, gmt);
    QFETCH(QString, name);
    QFETCH(double, west);
    QFETCH(double, fromLocal);
    const Desk desk;
    const CompanionAnswer answer = desk.RunUtc(gmt, {u"show"_s, u"Office"_s});
    QCOMPARE(answer.Status, 0);
    QCOMPARE(answer.Object()[u"CurrentName"_s].toString(), name);
    QCOMPARE(answer.Object()[u"CurrentGMTHours"_s].toDouble(), west);
    QCOMPARE(answer.Object()[u"HoursFromLocal"_s].toDouble(), fromLocal);
}

void tst_ExactZonesCommands::ShowsAFileWithoutIdentifierAsItIs() {
    Desk desk;
    desk.File = desk.TheCompanion.Write(
        u"town.ini"_s,
        "Time Zone Rules=Exact\r\nTime Zone Id=\r\nTime Zone Standard Name=Town\r\n"
        "Time Zone Standard GMT (Minutes)=-345\r\n");
    const CompanionAnswer shown = desk.RunUtc(u"2026-07-01T00:00:00"_s, {u"show"_s, u"Town"_s});
    QCOMPARE(shown.Object()[u"CurrentGMTHours"_s].toDouble(), -5.75);
    const CompanionAnswer told = desk.RunUtc(u"2026-07-01T00:00:00"_s, {u"describe"_s, u"Town"_s});
    QVERIFY(told.Object()[u"text"_s].toString().endsWith(
        u"\r\nThe rules are those stored in its file: the time zone database has no identifier "
        "for it"_s));
}

void tst_ExactZonesCommands::Describes() {
    const Desk desk;
    const CompanionAnswer answer =
        desk.RunUtc(u"2026-06-15T12:00:00"_s, {u"describe"_s, u"Office"_s});
    QCOMPARE(answer.Object()[u"text"_s].toString().section(u"\r\n"_s, 0, 1),
             u"Winter Begins on First Sunday in November (01/11/2026) at 2:00:00, then 5 hour(s) "
             "behind Local Time\r\n"
             "Summer Begins on Second Sunday in March (14/03/2027) at 2:00:00, then 4 hour(s) "
             "behind Local Time"_s);
}

void tst_ExactZonesCommands::NamesAnyMoment_data() {
    QTest::addColumn<QString>("moment");
    QTest::addColumn<QString>("name");
    QTest::newRow("before") << u"2027-03-14T06:59:59"_s << u"Winter"_s;
    QTest::newRow("behind") << u"2027-03-14T07:00:00"_s << u"Summer"_s;
}

void tst_ExactZonesCommands::NamesAnyMoment() {
    QFETCH(QString, moment);
    QFETCH(QString, name);
    const Desk desk;
    const CompanionAnswer answer =
        desk.RunUtc(u"2026-06-15T12:00:00"_s, {u"name-at"_s, u"Office"_s, moment});
    QCOMPARE(answer.Object(), (QJsonObject{{u"name"_s, name}}));
}

void tst_ExactZonesCommands::Converts_data() {
    QTest::addColumn<QStringList>("command");
    QTest::addColumn<QJsonObject>("expected");
    const QString text = u"text"_s;
    QTest::newRow("winter, asked in summer")
        << QStringList{u"15/01/2027 12:00"_s} << QJsonObject{{text, u"15/01/2027 7:00:00"_s}};
    QTest::newRow("left out") << QStringList{u"14/03/2027 2:30"_s, u"--from-zone"_s}
                              << QJsonObject{{text, u"does not exist"_s}, {u"gap"_s, true}};
    QTest::newRow("twice") << QStringList{u"01/11/2026 1:30"_s, u"--from-zone"_s}
                           << QJsonObject{{text, u"01/11/2026 5:30:00"_s},
                                          {u"texts"_s, QJsonArray{u"01/11/2026 5:30:00"_s,
                                                                  u"01/11/2026 6:30:00"_s}}};
}

void tst_ExactZonesCommands::Converts() {
    QFETCH(QStringList, command);
    QFETCH(QJsonObject, expected);
    const Desk desk;
    const CompanionAnswer answer =
        desk.RunUtc(u"2026-06-15T12:00:00"_s, QStringList{u"convert"_s, u"Office"_s} + command);
    QCOMPARE(answer.Status, 0);
    QCOMPARE(answer.Object(), expected);
}

// The same reading of the machine's clock, an hour apart.
void tst_ExactZonesCommands::StaysWithinADayThatIsLivedTwice() {
    const Desk desk;
    const auto hours = [&](const QString& gmt) {
        return desk.RunUtc(gmt, {u"show"_s, u"Office"_s}).Object()[u"HoursFromLocal"_s].toDouble();
    };
    QCOMPARE(hours(u"2026-10-25T00:30:00"_s), -5.0);
    QCOMPARE(hours(u"2026-10-25T01:30:00"_s), -4.0);
}

void tst_ExactZonesCommands::RefusesAnotherInstant() {
    const Desk desk;
    const CompanionAnswer answer = desk.Run({u"--utc"_s, u"2026-10-25"_s}, {u"local"_s});
    QCOMPARE(answer.Status, 2);
    QVERIFY(answer.Messages.contains("--utc wants YYYY-MM-DDTHH:MM:SS, not 2026-10-25"));
}

void tst_ExactZonesCommands::AnswersQuestionsOfAFile() {
    const Desk desk;
    const QString questions = desk.TheCompanion.Write(u"questions.txt"_s,
                                                      "2026-10-25T01:30:00 America/New_York\n"
                                                      "2026-03-29T01:00:00 Asia/Kathmandu\n"
                                                      "2026-03-29T01:00:00 Mars/Phobos\n");
    const CompanionAnswer answer = desk.Run({}, {u"instants"_s, questions});
    QCOMPARE(answer.Status, 1);
    QCOMPARE(answer.Output,
             QByteArray("{\"CurrentGMTHours\":4,\"CurrentName\":\"Daylight\",\"HoursFromLocal\":-4,"
                        "\"local\":\"25/10/2026 1:30:00\",\"texts\":[\"24/10/2026 20:30:00\","
                        "\"24/10/2026 21:30:00\"],\"zone\":\"24/10/2026 21:30:00\"}\n"
                        "{\"CurrentGMTHours\":-5.75,\"CurrentName\":\"Standard\","
                        "\"HoursFromLocal\":4.75,\"local\":\"29/03/2026 2:00:00\","
                        "\"texts\":[\"29/03/2026 6:45:00\"],\"zone\":\"29/03/2026 6:45:00\"}\n"
                        "null\n"));
}

void tst_ExactZonesCommands::RefusesQuestions() {
    const Desk desk;
    QCOMPARE(desk.Run({}, {u"instants"_s, desk.TheCompanion.Folder.filePath(u"none"_s)}).Status, 1);
    const QString questions = desk.TheCompanion.Write(u"questions.txt"_s, "yesterday UTC\n");
    const CompanionAnswer answer = desk.Run({}, {u"instants"_s, questions});
    QCOMPARE(answer.Status, 1);
    QCOMPARE(answer.Output, QByteArray("null\n"));
}

// A sample: the script asks all zones of the machine's database and more years.
void tst_ExactZonesCommands::AgreesWithAnotherReader() {
    QProcess script;
    script.setProcessChannelMode(QProcess::MergedChannels);
    script.start(u"/usr/bin/python3"_s,
                 {QStringLiteral(TEMPOLARK_SOURCE_DIR "/tools/check_exact_zones.py"),
                  u"--companion"_s, QStringLiteral(TEMPOLARK_BIN_DIR "/tempolarkctl"), u"--from"_s,
                  u"2010"_s, u"--to"_s, u"2014"_s, u"--zones"_s, u"7"_s});
    QVERIFY(script.waitForFinished(300'000));
    const QByteArray told = script.readAll();
    QVERIFY2(script.exitCode() == 0, told);
    QVERIFY2(told.trimmed().endsWith(" questions on 7 machines: 0 differ"), told);
}

QTEST_GUILESS_MAIN(tst_ExactZonesCommands)
#include "tst_ExactZonesCommands.moc"
