#include "ctl/Companion.h"

using namespace Qt::StringLiterals;

namespace {

/// A machine in Kolkata, at noon of a summer's day.
QStringList At(const Companion& companion, const QStringList& command) {
    return QStringList{
               u"--app-folder"_s, companion.Folder.path(),  u"--user"_s,       u"ann"_s,
               u"--now"_s,        u"2026-07-01T12:00:00"_s, u"--local-zone"_s, u"Asia/Kolkata"_s,
               u"zones"_s} +
           command;
}

CompanionAnswer Run(const Companion& companion, const QStringList& command) {
    return companion.Run(At(companion, command));
}

QJsonObject Date(int year, int month, int weekday, int day, int hour) {
    return {{u"wYear"_s, year}, {u"wMonth"_s, month},   {u"wDayOfWeek"_s, weekday},
            {u"wDay"_s, day},   {u"wHour"_s, hour},     {u"wMinute"_s, 0},
            {u"wSecond"_s, 0},  {u"wMilliseconds"_s, 0}};
}

const QByteArray Town =
    "Time Zone Standard Name=Town Time\r\nTime Zone Standard GMT (Minutes)=-345\r\n";

}  // namespace

class tst_ZonesCommands : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ShowsAZone();
    void ShowsAnUnknownZone();
    void TellsOfAMistypedName_data();
    void TellsOfAMistypedName();
    void TellsTheEditionBesideTheList();
    void ShowsAZoneThroughAFile();
    void KeepsAFileThatItCannotRead();
    void KeepsABinaryFile();
    void TellsWhenTheFileCannotBeWritten();
    void DescribesAZone();
    void DescribesAZoneThroughAFile();
    void ShowsTheLocalZone();
    void ListsTheDatabase();
    void ListsProfiles();
    void ListsSelectedZones();
    void TellsNames_data();
    void TellsNames();
    void TakesTimesOfAnyZone();
    void Converts_data();
    void Converts();
    void TellsRuleDates();
    void RefusesOtherArguments_data();
    void RefusesOtherArguments();
};

void tst_ZonesCommands::ShowsAZone() {
    const CompanionAnswer answer = Run(Companion(), {u"show"_s, u"GMT Standard Time"_s});
    QCOMPARE(answer.Status, 0);
    const QJsonObject expected = {
        {u"Bias"_s, 0},
        {u"KeyName"_s, u"GMT Standard Time"_s},
        {u"StandardName"_s, u"GMT Standard Time"_s},
        {u"StandardDate"_s, Date(0, 10, 0, 5, 2)},
        {u"StandardBias"_s, 0},
        {u"DaylightName"_s, u"GMT Daylight Time"_s},
        {u"DaylightDate"_s, Date(0, 3, 0, 5, 1)},
        {u"DaylightBias"_s, -60},
        {u"DisplayName"_s, u"(GMT+00:00) London, Dublin, Lisbon, Edinburgh, Las Palmas"_s},
        {u"CurrentName"_s, u"GMT Daylight Time"_s},
        {u"CurrentGMTHours"_s, -1},
        {u"HoursFromLocal"_s, -4.5}};
    QCOMPARE(answer.Object(), expected);
}

void tst_ZonesCommands::ShowsAnUnknownZone() {
    const CompanionAnswer answer = Run(Companion(), {u"show"_s, u"Nowhere"_s});
    QCOMPARE(answer.Status, 0);
    QCOMPARE(answer.Object()[u"StandardName"_s], u"Nowhere"_s);
    QCOMPARE(answer.Object()[u"KeyName"_s], QString());
    QCOMPARE(answer.Object()[u"HoursFromLocal"_s], -5.5);
}

void tst_ZonesCommands::TellsOfAMistypedName_data() {
    QTest::addColumn<QStringList>("command");
    QTest::addColumn<QByteArray>("messages");
    const QByteArray told =
        "No time zone is called \"tokyo\": it counts as GMT. The nearest is \"Tokyo Standard "
        "Time\"\n";
    QTest::newRow("show") << QStringList{u"show"_s, u"tokyo"_s} << told;
    QTest::newRow("describe") << QStringList{u"describe"_s, u"tokyo"_s} << told;
    QTest::newRow("convert") << QStringList{u"convert"_s, u"tokyo"_s, u"12:30"_s} << told;
    QTest::newRow("name-at") << QStringList{u"name-at"_s, u"tokyo"_s, u"2026-07-01T12:00:00"_s}
                             << told;
    QTest::newRow("right") << QStringList{u"show"_s, u"Tokyo Standard Time"_s} << QByteArray();
    QTest::newRow("nothing like it")
        << QStringList{u"show"_s, u"Zzzzzzz"_s}
        << QByteArray("No time zone is called \"Zzzzzzz\": it counts as GMT\n");
}

// The record stays what it is for a name that no zone has, and the command is done.
void tst_ZonesCommands::TellsOfAMistypedName() {
    QFETCH(QStringList, command);
    const Companion companion;
    const CompanionAnswer answer = Run(companion, command);
    QCOMPARE(answer.Status, 0);
    QTEST(answer.Messages, "messages");
    QVERIFY(!answer.Object().isEmpty());
    const QString file = companion.Write(u"zone.ini"_s, "Time Zone Standard GMT (Minutes)=90\r\n");
    QCOMPARE(Run(companion, {u"show"_s, u"tokyo"_s, u"--file"_s, file}).Messages, QByteArray());
}

void tst_ZonesCommands::TellsTheEditionBesideTheList() {
    const QByteArray edition = "Time zone database: edition 2026a\n";
    const CompanionAnswer answer = Run(Companion(), {u"list"_s});
    QCOMPARE(answer.Messages, edition);
    QVERIFY(answer.Json().isArray());
    QCOMPARE(
        Companion().Run({u"--now"_s, u"2027-05-01T12:00:00"_s, u"zones"_s, u"list"_s}).Messages,
        edition +
            "The time zone database of this machine (edition 2026a) is older than a year: "
            "clocks may be wrong. The package tzdata brings a new one\n");
}

void tst_ZonesCommands::ShowsAZoneThroughAFile() {
    const Companion companion;
    const QString path = companion.Write(u"zone.ini"_s, "Time Zone Standard GMT (Minutes)=90\r\n");
    const CompanionAnswer answer =
        Run(companion, {u"show"_s, u"Tokyo Standard Time"_s, u"--file"_s, path});
    QCOMPARE(answer.Status, 0);
    QCOMPARE(answer.Object()[u"StandardBias"_s], 90);
    QCOMPARE(answer.Object()[u"DaylightBias"_s], -540);
    QCOMPARE(companion.Read(u"zone.ini"_s),
             QByteArray("Time Zone Standard GMT (Minutes)=90\r\n"
                        "Time Zone Standard Name=Tokyo Standard Time\r\n"
                        "Time Zone Standard Start Time=0.0.0 0:00:00\r\n"
                        "Time Zone Daylight Name=Tokyo Daylight Time\r\n"
                        "Time Zone Daylight Start Time=0.0.0 0:00:00\r\n"
                        "Time Zone Daylight GMT (Minutes)=-540\r\n"));
}

// A folder can't be read as a file.
void tst_ZonesCommands::KeepsAFileThatItCannotRead() {
    const Companion companion;
    const CompanionAnswer answer =
        Run(companion, {u"show"_s, u"UTC"_s, u"--file"_s, companion.Folder.path()});
    QCOMPARE(answer.Status, 1);
    QVERIFY(answer.Messages.contains("can't be read"));
    QCOMPARE(answer.Object()[u"StandardName"_s], u"UTC"_s);
}

void tst_ZonesCommands::KeepsABinaryFile() {
    const Companion companion;
    const QByteArray bytes("\x7f\0ELF\n", 6);
    const QString path = companion.Write(u"picture.bin"_s, bytes);
    const CompanionAnswer answer = Run(companion, {u"show"_s, u"UTC"_s, u"--file"_s, path});
    QCOMPARE(answer.Status, 1);
    QVERIFY(answer.Messages.contains("can't be read"));
    QCOMPARE(companion.Read(u"picture.bin"_s), bytes);
}

void tst_ZonesCommands::TellsWhenTheFileCannotBeWritten() {
    const Companion companion;
    const QString path = companion.Folder.filePath(u"no folder/zone.ini"_s);
    const CompanionAnswer answer = Run(companion, {u"show"_s, u"UTC"_s, u"--file"_s, path});
    QCOMPARE(answer.Status, 1);
    QCOMPARE(answer.Object()[u"StandardName"_s], u"UTC"_s);
}

void tst_ZonesCommands::DescribesAZone() {
    const CompanionAnswer answer = Run(Companion(), {u"describe"_s, u"GMT Standard Time"_s});
    QCOMPARE(answer.Status, 0);
    QCOMPARE(answer.Object()[u"text"_s].toString(),
             u"GMT Standard Time Begins on  Last Sunday in October (25/10/2026) at 2:00:00\r\n"
             "GMT Daylight Time Begins on  Last Sunday in March (29/03/2026) at 1:00:00\r\n"
             "\r\n"
             "GMT Standard Time is 0 hour(s) after Greenwich Standard Time\r\n"
             "GMT Daylight Time is 1 hour(s) after Greenwich Standard Time\r\n"
             "\r\n"
             "GMT Standard Time is 4 hour(s) and 30 Minutes  later than Local Time"_s);
}

void tst_ZonesCommands::DescribesAZoneThroughAFile() {
    const Companion companion;
    const QString path = companion.Write(u"zone.ini"_s, "Time Zone Standard GMT (Minutes)=90\r\n");
    const CompanionAnswer answer =
        Run(companion, {u"describe"_s, u"Tokyo Standard Time"_s, u"--file"_s, path});
    QCOMPARE(answer.Status, 0);
    QCOMPARE(answer.Object()[u"text"_s].toString(),
             u"\r\nTokyo Standard Time is 1 hour(s) and 30 Minutes before "
             "Greenwich Standard Time\r\n\r\n"
             "Tokyo Standard Time is 7 hour(s)  later than Local Time"_s);
}

void tst_ZonesCommands::ShowsTheLocalZone() {
    const CompanionAnswer answer = Run(Companion(), {u"local"_s});
    QCOMPARE(answer.Status, 0);
    QCOMPARE(answer.Object()[u"StandardName"_s], u"India Standard Time"_s);
    QCOMPARE(answer.Object()[u"CurrentName"_s], u"India Standard Time"_s);
    QCOMPARE(answer.Object()[u"CurrentGMTHours"_s], -5.5);
    QCOMPARE(answer.Object()[u"HoursFromLocal"_s], -5.5);
}

void tst_ZonesCommands::ListsTheDatabase() {
    const CompanionAnswer answer = Run(Companion(), {u"list"_s});
    QCOMPARE(answer.Status, 0);
    const QJsonArray records = answer.Array();
    QCOMPARE(records.size(), 142);  // 139 zones in an array that grows by 20
    QCOMPARE(records[0].toObject()[u"StandardName"_s], u"Dateline Standard Time"_s);
    QCOMPARE(records[138].toObject()[u"StandardName"_s], u"Line Islands Standard Time"_s);
    QVERIFY(records[139].isNull());
    QCOMPARE(Run(Companion(), {u"list"_s, u"--source"_s, u"windows"_s}).Array(), records);
}

void tst_ZonesCommands::ListsProfiles() {
    const Companion companion;
    const QString path = companion.Write(u"Timezones/Town.ini"_s, Town);
    companion.Write(u"Timezones/Empty.ini"_s, "");
    const CompanionAnswer answer = Run(companion, {u"list"_s, u"--source"_s, u"profiles"_s});
    QCOMPARE(answer.Status, 0);
    QCOMPARE(answer.Array().size(), 20);
    QVERIFY(answer.Array()[0].isNull());
    const QJsonObject town = answer.Array()[1].toObject();
    QCOMPARE(town[u"KeyName"_s], path);
    QCOMPARE(town[u"DisplayName"_s], u"(GMT+05:45) Town"_s);
    QCOMPARE(town[u"HoursFromLocal"_s], 0.25);
}

void tst_ZonesCommands::ListsSelectedZones() {
    const Companion companion;
    companion.Write(u"ann/TimeZones/Town Time.ini"_s, Town);
    companion.Write(u"TimeZones/Nobody.ini"_s, Town);
    const auto first = [&](const QString& user) {
        const QStringList arguments = {
            u"--app-folder"_s, companion.Folder.path(), u"--user"_s,  user, u"zones"_s,
            u"list"_s,         u"--source"_s,           u"selected"_s};
        return companion.Run(arguments).Array()[0].toObject()[u"DisplayName"_s].toString();
    };
    QCOMPARE(first(u"ann"_s), u"(GMT+05:45) Town Time"_s);
    QCOMPARE(first(QString()), u"(GMT+05:45) Nobody"_s);
    QCOMPARE(first(u"bob"_s), QString());
}

void tst_ZonesCommands::TellsNames_data() {
    QTest::addColumn<QString>("moment");
    QTest::addColumn<QByteArray>("output");
    // 29 March 2026 at 1:00 in London is 6:30 in Kolkata.
    QTest::newRow("the start") << u"2026-03-29T06:30:00"_s
                               << "{\"name\":\"GMT Standard Time\"}\n"_ba;
    QTest::newRow("a second later")
        << u"2026-03-29T06:30:01"_s << "{\"name\":\"GMT Daylight Time\"}\n"_ba;
}

void tst_ZonesCommands::TellsNames() {
    QFETCH(QString, moment);
    const CompanionAnswer answer = Run(Companion(), {u"name-at"_s, u"GMT Standard Time"_s, moment});
    QCOMPARE(answer.Status, 0);
    QTEST(answer.Output, "output");
}

// The process's own zone has no 2:30 on that day.
void tst_ZonesCommands::TakesTimesOfAnyZone() {
    const QByteArray before = qgetenv("TZ");
    qputenv("TZ", "America/New_York");
    const QStringList atNow = {u"--now"_s, u"2026-03-08T02:30:00"_s, u"--local-zone"_s,
                               u"Asia/Kolkata"_s, u"zones"_s};
    const CompanionAnswer name =
        Companion().Run(atNow + QStringList{u"name-at"_s, u"UTC"_s, u"2026-03-08T02:30:00"_s});
    const CompanionAnswer date =
        Companion().Run(atNow + QStringList{u"rule"_s, u"1"_s, u"0"_s, u"4"_s});
    if (before.isNull()) {
        qunsetenv("TZ");
    } else {
        qputenv("TZ", before);
    }
    QCOMPARE(name.Status, 0);
    QCOMPARE(name.Output, QByteArray("{\"name\":\"UTC\"}\n"));
    QCOMPARE(date.Output, QByteArray("{\"date\":\"2026-04-05\"}\n"));
}

// Noon in Kolkata, where daylight time holds in London.
void tst_ZonesCommands::Converts_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("output");
    const QString london = u"GMT Standard Time"_s;
    QTest::newRow("a time of today")
        << QStringList{london, u"12:30"_s} << "{\"text\":\"01/07/2026 8:00:00\"}\n"_ba;
    QTest::newRow("over midnight")
        << QStringList{london, u"25/12/2026 4:15"_s} << "{\"text\":\"24/12/2026 23:45:00\"}\n"_ba;
    QTest::newRow("from the zone") << QStringList{london, u"8:00:07"_s, u"--from-zone"_s}
                                   << "{\"text\":\"01/07/2026 12:30:07\"}\n"_ba;
    QTest::newRow("three quarters") << QStringList{u"Nepal Standard Time"_s, u"12:00"_s}
                                    << "{\"text\":\"01/07/2026 12:15:00\"}\n"_ba;
    QTest::newRow("no date") << QStringList{london, u"noon"_s} << "{\"text\":\"\"}\n"_ba;
    QTest::newRow("empty") << QStringList{london, QString()} << "{\"text\":\"\"}\n"_ba;
    QTest::newRow("unknown zone") << QStringList{u"Nowhere"_s, u"12:30"_s}
                                  << "{\"text\":\"01/07/2026 7:00:00\"}\n"_ba;
}

void tst_ZonesCommands::Converts() {
    QFETCH(QStringList, arguments);
    const CompanionAnswer answer = Run(Companion(), QStringList{u"convert"_s} + arguments);
    QCOMPARE(answer.Status, 0);
    QTEST(answer.Output, "output");
}

void tst_ZonesCommands::TellsRuleDates() {
    const CompanionAnswer answer = Companion().Run(
        {u"--now"_s, u"2008-12-31T00:00:00"_s, u"zones"_s, u"rule"_s, u"1"_s, u"0"_s, u"4"_s});
    QCOMPARE(answer.Status, 0);
    QCOMPARE(answer.Output, QByteArray("{\"date\":\"2008-04-06\"}\n"));
}

void tst_ZonesCommands::RefusesOtherArguments_data() {
    QTest::addColumn<QStringList>("command");
    QTest::newRow("source") << QStringList{u"list"_s, u"--source"_s, u"moon"_s};
    QTest::newRow("list of a name") << QStringList{u"list"_s, u"UTC"_s};
    QTest::newRow("show without a name") << QStringList{u"show"_s};
    QTest::newRow("file without a name")
        << QStringList{u"show"_s, u"UTC"_s, u"--file"_s, QString()};
    QTest::newRow("describe without a name") << QStringList{u"describe"_s};
    QTest::newRow("description of a file without a name")
        << QStringList{u"describe"_s, u"UTC"_s, u"--file"_s, QString()};
    QTest::newRow("moment") << QStringList{u"name-at"_s, u"UTC"_s, u"noon"_s};
    QTest::newRow("no such day") << QStringList{u"name-at"_s, u"UTC"_s, u"2026-02-30T00:00:00"_s};
    QTest::newRow("no such hour") << QStringList{u"name-at"_s, u"UTC"_s, u"2026-02-03T24:00:00"_s};
    QTest::newRow("short year") << QStringList{u"name-at"_s, u"UTC"_s, u"26-02-03T12:00:00"_s};
    QTest::newRow("one digit") << QStringList{u"name-at"_s, u"UTC"_s, u"2026-02-03T2:00:00"_s};
    QTest::newRow("a tail") << QStringList{u"name-at"_s, u"UTC"_s, u"2026-02-03T12:00:00Z"_s};
    QTest::newRow("convert without a text") << QStringList{u"convert"_s, u"UTC"_s};
    QTest::newRow("convert of three") << QStringList{u"convert"_s, u"UTC"_s, u"1:00"_s, u"2:00"_s};
    QTest::newRow("rule of words") << QStringList{u"rule"_s, u"first"_s, u"0"_s, u"4"_s};
    QTest::newRow("beyond 16 bits") << QStringList{u"rule"_s, u"70000"_s, u"0"_s, u"4"_s};
}

void tst_ZonesCommands::RefusesOtherArguments() {
    QFETCH(QStringList, command);
    const CompanionAnswer answer = Run(Companion(), command);
    QCOMPARE(answer.Status, 2);
    QCOMPARE(answer.Output, QByteArray());
    QVERIFY(answer.Messages.contains("zones "));
}

QTEST_GUILESS_MAIN(tst_ZonesCommands)
#include "tst_ZonesCommands.moc"
