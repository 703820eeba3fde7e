#include "ctl/Companion.h"

using namespace Qt::StringLiterals;

namespace {

/// A machine in Kolkata, at noon of a summer's day.
CompanionAnswer Run(const QStringList& command, const QString& now = u"2026-07-01T12:00:00"_s) {
    const Companion companion;
    companion.Write(u"ini/Tempolark.ini"_s, "Clock:Enable=Yes\r\n");
    return companion.Run(QStringList{u"--app-folder"_s, companion.Folder.path(), u"--now"_s, now,
                                     u"--local-zone"_s, u"Asia/Kolkata"_s, u"speech"_s} +
                         command);
}

}  // namespace

class tst_SpeechCommands : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ExpandsPatterns_data();
    void ExpandsPatterns();
    void TellsOfAZoneThatNobodyKnows();
    void RefusesOtherArguments_data();
    void RefusesOtherArguments();
};

void tst_SpeechCommands::ExpandsPatterns_data() {
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("zone");
    QTest::addColumn<QString>("text");
    const QString india = u"India Standard Time"_s;
    const QString london = u"GMT Standard Time"_s;
    QTest::newRow("at home") << u"<Past/To>"_s << india << u"12 O'Clock "_s;
    QTest::newRow("in London") << u"<Past/To> in <Location>"_s << london
                               << u" Half  Past 7 in GMT Daylight Time"_s;
    QTest::newRow("yesterday") << u"<ShortDate> <LongTime>"_s << u"Hawaiian Standard Time"_s
                               << u"30/06/2026 20:30:00"_s;
    QTest::newRow("a zone that nobody knows")
        << u"<Location> <ShortTime>"_s << u"Nowhere"_s << u"Nowhere 06:30"_s;
    QTest::newRow("no token") << u"Hello"_s << london << u"Hello"_s;
    QTest::newRow("empty") << QString() << london << QString();
    QTest::newRow("twice") << u"<Minute> <Minute>"_s << london << u"30 <Minute>"_s;
}

void tst_SpeechCommands::ExpandsPatterns() {
    QFETCH(QString, pattern);
    QFETCH(QString, zone);
    const CompanionAnswer answer = Run({u"expand"_s, pattern, u"--zone"_s, zone});
    QCOMPARE(answer.Status, 0);
    QCOMPARE(answer.Object().keys(), QStringList{u"text"_s});
    QTEST(answer.Object()[u"text"_s].toString(), "text");
}

void tst_SpeechCommands::TellsOfAZoneThatNobodyKnows() {
    const CompanionAnswer answer = Run({u"expand"_s, u"<ShortTime>"_s, u"--zone"_s, u"tokyo"_s});
    QCOMPARE(answer.Messages,
             QByteArray("No time zone is called \"tokyo\": it counts as GMT. The nearest is "
                        "\"Tokyo Standard Time\"\n"));
    QCOMPARE(answer.Output, QByteArray("{\"text\":\"06:30\"}\n"));
    QCOMPARE(answer.Status, 0);
    const QStringList known = {u"expand"_s, u"a"_s, u"--zone"_s, u"Tokyo Standard Time"_s};
    QCOMPARE(Run(known).Messages, QByteArray());
}

void tst_SpeechCommands::RefusesOtherArguments_data() {
    QTest::addColumn<QStringList>("command");
    QTest::newRow("no zone") << QStringList{u"expand"_s, u"<Minute>"_s};
    QTest::newRow("an empty zone")
        << QStringList{u"expand"_s, u"<Minute>"_s, u"--zone"_s, QString()};
    QTest::newRow("no pattern") << QStringList{u"expand"_s, u"--zone"_s, u"UTC"_s};
    QTest::newRow("two patterns") << QStringList{u"expand"_s, u"a"_s, u"b"_s, u"--zone"_s,
                                                 u"UTC"_s};
    QTest::newRow("no command") << QStringList{};
}

void tst_SpeechCommands::RefusesOtherArguments() {
    QFETCH(QStringList, command);
    const CompanionAnswer answer = Run(command);
    QCOMPARE(answer.Status, 2);
    QCOMPARE(answer.Output, QByteArray());
    QVERIFY(answer.Messages.contains("speech expand PATTERN --zone NAME"));
}

QTEST_GUILESS_MAIN(tst_SpeechCommands)
#include "tst_SpeechCommands.moc"
