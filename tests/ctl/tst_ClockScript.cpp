#include "ctl/Companion.h"

using namespace Qt::StringLiterals;

namespace {

/// A machine in London from 22:58 in summer, with a clock whose timers are kept.
struct Scripted {
    Companion Machine;

    explicit Scripted(const QByteArray& timers) {
        QDir().mkpath(Machine.Folder.filePath(u"ini"_s));
        const QDir defaults(QStringLiteral(TEMPOLARK_SOURCE_DIR "/data/ini"));
        for (const QString& name : defaults.entryList(QDir::Files)) {
            QFile::copy(defaults.filePath(name), Machine.Folder.filePath(u"ini/"_s + name));
        }
        Machine.Write(u"me/Timers/GMT Standard TimeTimer.txt"_s, timers);
        QFile::remove(Machine.Folder.filePath(u"ini/Tempolark.ini"_s));
        QByteArray keys =
            QFileContent(QStringLiteral(TEMPOLARK_SOURCE_DIR "/data/ini/Tempolark.ini"));
        Machine.Write(
            u"ini/Tempolark.ini"_s,
            keys + "Timer:Late Timers=Show,Show,Ask,Skip\r\nTimer:Timer Clock=24,24,12\r\n");
    }
    static QByteArray QFileContent(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    CompanionAnswer Run(const QByteArray& script, int seconds,
                        const QString& now = u"2026-06-15T12:00:00"_s) const {
        const QString file = Machine.Write(u"script"_s, script);
        return Machine.Run({u"--app-folder"_s, Machine.Folder.path(), u"--user"_s, u"me"_s,
                            u"--now"_s, now, u"--local-zone"_s, u"Europe/London"_s, u"clock"_s,
                            u"run"_s, u"GMT Standard Time"_s, u"--seconds"_s,
                            QString::number(seconds), u"--script"_s, file});
    }

    /// "12:10:00 timer-fired Tea" of some kinds of events.
    static QStringList Events(const QByteArray& output, const QStringList& kinds) {
        QStringList events;
        for (const QByteArray& line : output.split('\n')) {
            const QJsonObject object = QJsonDocument::fromJson(line).object();
            if (kinds.contains(object[u"event"_s].toString())) {
                events += object[u"at"_s].toString().mid(11, 8) + u' ' +
                          object[u"event"_s].toString() + u' ' + object[u"text"_s].toString() +
                          object[u"message"_s].toString();
            }
        }
        return events;
    }
    QStringList Fired(const QByteArray& script, int seconds,
                      const QString& now = u"2026-06-15T12:00:00"_s) const {
        return Events(Run(script, seconds, now).Output, {u"timer-fired"_s, u"message"_s});
    }
};

const QByteArray Tea = "5,Red,,,0,12:10,2026-06-15T11:10:00Z#15/06/2026 12:10=Tea\r\n";

}  // namespace

class tst_ClockScript : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void FiresBehindASleep() {
        const Scripted machine(Tea);
        QCOMPARE(machine.Fired("at 2026-06-15T12:05:00 sleep 17\n", 1800),
                 QStringList(
                     {u"12:22:00 timer-fired Tea"_s, u"12:22:00 message Tea (12 minutes late)"_s}));
    }

    void FiresOnceThroughAKill() {
        const Scripted machine(Tea);
        QCOMPARE(machine.Fired("at 2026-06-15T12:05:00 kill  # at once\n"
                               "at 2026-06-15T12:10:30 kill\n",
                               1800),
                 QStringList({u"12:10:00 timer-fired Tea"_s, u"12:10:00 message Tea"_s}));
    }

    void FiresLateWhereTheProgramWasEnded() {
        const Scripted machine(Tea);
        QCOMPARE(machine.Fired("at 2026-06-15T12:05:00 quit\nat 2026-06-15T14:15:00 start\n", 9000),
                 QStringList(
                     {u"14:15:01 timer-fired Tea"_s, u"14:15:01 message Tea (2 h 5 min late)"_s}));
    }

    void FollowsAClockThatIsSet() {
        const Scripted machine(Tea);
        QCOMPARE(
            machine.Fired("at 2026-06-15T12:12:00 set-clock 2026-06-15T12:08:00\n", 1800).size(),
            2);
        const Scripted forward(Tea);
        QCOMPARE(
            forward.Fired("at 2026-06-15T12:02:00 set-clock 2026-06-15T12:12:00\n", 1800).last(),
            u"12:12:01 message Tea (2 minutes late)"_s);
    }

    void StaysAtItsInstantWhereTheMachineMoves() {
        const Scripted machine(Tea);
        QCOMPARE(machine.Fired("at 2026-06-15T12:05:00 zone Asia/Tokyo\n", 1800).first(),
                 u"20:10:00 timer-fired Tea"_s);
    }

    // At 1:00 the machine's clock shows 2:00.
    void CrossesTheMachinesChange() {
        const Scripted machine(
            "5,Red,,,0,01:30,2026-03-29T01:00:00Z#29/03/2026 13:30=Gap\r\n"
            "5,Red,,,0,02:05,2026-03-29T01:05:00Z#29/03/2026 14:5=Tea\r\n");
        QCOMPARE(machine.Fired("", 900, u"2026-03-29T00:55:00"_s),
                 QStringList({u"02:00:00 timer-fired Gap"_s, u"02:00:00 message Gap"_s,
                              u"02:05:00 timer-fired Tea"_s, u"02:05:00 message Tea"_s}));
    }

    void TellsOfAFullDisk() {
        const Scripted machine(Tea);
        const QStringList told = Scripted::Events(machine
                                                      .Run("at 2026-06-15T12:09:00 disk-full\n"
                                                           "at 2026-06-15T12:11:00 disk-free\n",
                                                           1200)
                                                      .Output,
                                                  {u"status"_s});
        QCOMPARE(told.filter(u"can't be written"_s).size(), 1);
        QCOMPARE(told.filter(u"is written again"_s).size(), 1);
        QVERIFY(machine.Machine.Read(u"me/Timers/GMT Standard TimeTimer.txt"_s).isEmpty());
    }

    void RefusesWhatIsNoStep_data() {
        QTest::addColumn<QByteArray>("script");

        QTest::newRow("word") << QByteArray("at 2026-06-15T12:05:00 jump\n");
        QTest::newRow("no at") << QByteArray("2026-06-15T12:05:00 kill\n");
        QTest::newRow("time") << QByteArray("at 12:05 kill\n");
        QTest::newRow("minutes") << QByteArray("at 2026-06-15T12:05:00 sleep long\n");
        QTest::newRow("negative") << QByteArray("at 2026-06-15T12:05:00 sleep -1\n");
        QTest::newRow("nothing") << QByteArray("at 2026-06-15T12:05:00 zone\n");
        QTest::newRow("too much") << QByteArray("at 2026-06-15T12:05:00 kill now\n");
        QTest::newRow("clock") << QByteArray("at 2026-06-15T12:05:00 set-clock noon\n");
    }

    void RefusesWhatIsNoStep() {
        QFETCH(QByteArray, script);
        QCOMPARE(Scripted(Tea).Run(script, 10).Status, 2);
    }
};

QTEST_GUILESS_MAIN(tst_ClockScript)
#include "tst_ClockScript.moc"
