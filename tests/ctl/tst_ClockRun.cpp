#include <QJsonObject>

#include "Companion.h"

using namespace Qt::StringLiterals;

/// What `clock run` tells (ClockRunCommand).
class tst_ClockRun : public QObject {
    Q_OBJECT

    static CompanionAnswer Run(const Companion& companion, const QStringList& more,
                               const QString& zone = u"GMT Standard Time"_s) {
        QDir().mkpath(companion.Folder.filePath(u"ini"_s));
        const QDir defaults(QStringLiteral(TEMPOLARK_SOURCE_DIR "/data/ini"));
        for (const QString& name : defaults.entryList(QDir::Files)) {
            QFile::copy(defaults.filePath(name), companion.Folder.filePath(u"ini/"_s + name));
        }
        return companion.Run(QStringList{u"--app-folder"_s, companion.Folder.path(), u"--user"_s,
                                         u"me"_s, u"--now"_s, u"2026-11-21T10:08:42"_s,
                                         u"--local-zone"_s, u"Europe/London"_s, u"clock"_s,
                                         u"run"_s, zone} +
                             more);
    }

    /// The events of some kinds, each as "time event text".
    static QStringList Events(const QByteArray& output, const QStringList& kinds) {
        QStringList events;
        for (const QByteArray& line : output.split('\n')) {
            const QJsonObject object = QJsonDocument::fromJson(line).object();
            const QString event = object.value(u"event"_s).toString();
            if (kinds.contains(event)) {
                const QString text = object.value(u"text"_s).toString() +
                                     object.value(u"message"_s).toString() +
                                     object.value(u"caption"_s).toString();
                events += object.value(u"at"_s).toString().mid(11) + u' ' + event + u' ' + text;
            }
        }
        return events;
    }

private Q_SLOTS:
    void TellsStatesAndIntervalsOfTheFirstTicks() {
        const Companion companion;
        const CompanionAnswer answer = Run(companion, {u"--seconds"_s, u"2"_s});
        QCOMPARE(answer.Status, 0);
        QVERIFY(
            answer.Output.contains(R"("at":"2026-11-21T10:08:42.010","event":"state","from":2)"));
        QCOMPARE(Events(answer.Output, {u"state"_s, u"interval"_s}),
                 (QStringList{u"10:08:42.000 state "_s, u"10:08:42.000 interval "_s,
                              u"10:08:42.000 interval "_s, u"10:08:42.010 state "_s,
                              u"10:08:42.010 state "_s, u"10:08:42.010 interval "_s,
                              u"10:08:42.010 interval "_s, u"10:08:42.020 state "_s}));
    }

    void TellsOfAZoneThatNobodyKnows() {
        const Companion companion;
        const QStringList atOnce = {u"--seconds"_s, u"0"_s};
        const CompanionAnswer answer = Run(companion, atOnce, u"tokyo"_s);
        QCOMPARE(answer.Status, 0);
        QVERIFY(answer.Output.contains("\"event\":\"state\""));
        QVERIFY2(answer.Messages.contains(
                     "No time zone is called \"tokyo\": it counts as GMT. The nearest is "
                     "\"Tokyo Standard Time\"\n"),
                 answer.Messages.constData());
        QVERIFY(!Run(companion, atOnce).Messages.contains("No time zone"));
        companion.Write(u"me/TimeZones/Town.ini"_s,
                        "Time Zone:Time Zone Standard GMT (Minutes)=-345\r\n");
        QVERIFY(!Run(companion, atOnce, u"Town"_s).Messages.contains("No time zone"));
    }

    void TellsOfATimer() {
        const Companion companion;
        companion.Write(u"me/Timers/GMT Standard TimeTimer.txt"_s,
                        "1,red,,None,0#22:10@Tea is ready\r\n");
        const CompanionAnswer answer = Run(companion, {u"--seconds"_s, u"150"_s});
        QCOMPARE(
            Events(answer.Output,
                   {u"timer-fired"_s, u"message"_s, u"message-hidden"_s, u"speak"_s, u"status"_s}),
            (QStringList{u"10:10:00.000 timer-fired Tea is ready"_s,
                         u"10:10:00.000 message Tea is ready"_s,
                         u"10:10:00.000 status Tea is ready"_s, u"10:10:00.000 speak ."_s,
                         u"10:10:00.000 speak Tea is ready"_s, u"10:11:00.000 message-hidden "_s}));
    }

    // Two timers of one pass: the second one's message takes the place of the first one's.
    void TellsOfEachMessage() {
        const Companion companion;
        companion.Write(u"me/Timers/GMT Standard TimeTimer.txt"_s,
                        "1,red,,,0#22:10@Tea\r\n1,red,,,0#22:10@Tea\r\n1,red,,,0#22:10@\r\n");
        const CompanionAnswer answer = Run(companion, {u"--seconds"_s, u"80"_s});
        QCOMPARE(Events(answer.Output, {u"message"_s, u"message-hidden"_s}),
                 (QStringList{u"10:10:00.000 message Tea"_s, u"10:10:00.000 message Tea"_s,
                              u"10:10:00.000 message-hidden "_s}));
    }

    // An action is told by the timer's own text, not by the file that it stands for.
    void TellsOfAnAction() {
        const Companion companion;
        companion.Write(u"me/Timers/GMT Standard TimeTimer.txt"_s,
                        "0,red,,.\\Tools\\backup.sh,0#22:10@\r\n");
        const CompanionAnswer answer = Run(companion, {u"--seconds"_s, u"80"_s});
        QCOMPARE(Events(answer.Output, {u"action-countdown"_s, u"action"_s}),
                 (QStringList{u"10:10:00.000 action-countdown backup.sh"_s,
                              u"10:10:00.000 action-countdown .\\Tools\\backup.sh 0"_s,
                              u"10:10:00.000 action .\\Tools\\backup.sh"_s}));
    }

    void RefusesOddArguments() {
        const Companion companion;
        QCOMPARE(Run(companion, {}).Status, 2);
        QCOMPARE(Run(companion, {u"--seconds"_s, u"many"_s}).Status, 2);
        QCOMPARE(Run(companion, {u"--seconds"_s, u"1"_s, u"--speed"_s, u"slow"_s}).Status, 2);
    }
};

QTEST_GUILESS_MAIN(tst_ClockRun)
#include "tst_ClockRun.moc"
