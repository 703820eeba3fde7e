#include "timers/TimerLog.h"

#include <QTest>

#include "foundation/ModuleState.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;
using namespace timers;

namespace {

TimerEvent Event(int minute, TimerHappening happening, const QString& message = u"Tea"_s) {
    const QDateTime at(QDate(2026, 11, 16), QTime(14, 0), Qt::UTC);
    return {at.addSecs(60LL * minute), u"London"_s, happening, u"14:10"_s, 730, message};
}

struct LogDesk {
    FakeServices Machine;
    QString Path = Machine.AppFolder() + u"/Timers.log"_s;
    TimerLog Log{Machine.Files, [this] { return Path; }};
};

}  // namespace

class tst_TimerLog : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void WritesLines();
    void ReadsWhatItWrites();
    void KeepsTheLastEvents();
    void SharesItsFile();
    void KeepsWhatCannotBeWritten();
    void LeavesAFileThatCannotBeRead();
    void LeavesOutOtherLines();
    void NamesWhatHappens();
    void LiesInTheDataFolder();
};

void tst_TimerLog::WritesLines() {
    LogDesk desk;
    desk.Log.Add(Event(22, TimerHappening::Late, u"Caf\u00e9\tat\r\nfour"_s));
    desk.Log.Add(Event(23, TimerHappening::ActionRefused));
    QVERIFY(!desk.Machine.Files.Exists(desk.Path));
    desk.Log.Write();
    QCOMPARE(desk.Machine.ReadFile(u"Timers.log"_s),
             QByteArray("2026-11-16T14:22:00Z\tLondon\tlate\t14:10\t730\tCaf\xc3\xa9 at four\r\n"
                        "2026-11-16T14:23:00Z\tLondon\taction-refused\t14:10\t730\tTea\r\n"));
}

void tst_TimerLog::ReadsWhatItWrites() {
    LogDesk desk;
    const std::vector<TimerEvent> events = {
        Event(1, TimerHappening::Set, {}), Event(2, TimerHappening::Fired),
        Event(3, TimerHappening::Removed, u"a, b # c = d @ e"_s)};
    for (const TimerEvent& event : events) {
        desk.Log.Add(event);
    }
    desk.Log.Write();
    QCOMPARE(desk.Log.Events(), events);
}

void tst_TimerLog::KeepsTheLastEvents() {
    LogDesk desk;
    for (int minute = 0; minute < 700; ++minute) {
        desk.Log.Add(Event(minute, TimerHappening::Fired));
        if (minute % 100 == 0) {
            desk.Log.Write();
        }
    }
    desk.Log.Write();
    const std::vector<TimerEvent> events = desk.Log.Events();
    QCOMPARE(events.size(), 500U);
    QCOMPARE(events.front(), Event(200, TimerHappening::Fired));
    QCOMPARE(events.back(), Event(699, TimerHappening::Fired));
    for (int minute = 0; minute < 600; ++minute) {
        desk.Log.Add(Event(1000 + minute, TimerHappening::Fired));
    }
    desk.Log.Write();
    QCOMPARE(desk.Log.Events().front(), Event(1100, TimerHappening::Fired));
}

void tst_TimerLog::SharesItsFile() {
    LogDesk desk;
    TimerLog other(desk.Machine.Files, [&] { return desk.Path; });
    desk.Log.Add(Event(1, TimerHappening::Fired));
    desk.Log.Write();
    other.Add(Event(2, TimerHappening::Fired));
    other.Write();
    desk.Log.Add(Event(3, TimerHappening::Fired));
    desk.Log.Write();
    QCOMPARE(desk.Log.Events().size(), 3U);
}

void tst_TimerLog::KeepsWhatCannotBeWritten() {
    LogDesk desk;
    desk.Machine.Files.Unwritable = QStringList{desk.Path};
    desk.Log.Add(Event(1, TimerHappening::Fired));
    desk.Log.Write();
    QVERIFY(desk.Log.Events().empty());
    desk.Machine.Files.Unwritable.clear();
    desk.Log.Write();
    QCOMPARE(desk.Log.Events().size(), 1U);
    desk.Log.Write();
    QCOMPARE(desk.Log.Events().size(), 1U);
}

void tst_TimerLog::LeavesAFileThatCannotBeRead() {
    LogDesk desk;
    desk.Machine.WriteFile(u"Timers.log"_s, "precious\r\n");
    desk.Machine.Files.Unreadable = QStringList{desk.Path};
    desk.Log.Add(Event(1, TimerHappening::Fired));
    desk.Log.Write();
    QCOMPARE(desk.Machine.ReadFile(u"Timers.log"_s), QByteArray("precious\r\n"));
}

void tst_TimerLog::LeavesOutOtherLines() {
    LogDesk desk;
    desk.Machine.WriteFile(u"Timers.log"_s,
                           "\r\nnothing\r\n2026-11-16T14:22:00Z\tLondon\tslept\t14:10\t0\tTea\r\n"
                           "2026-11-16T14:22:00Z\tLondon\tset\t14:10\t0\r\n"
                           "never\tLondon\tset\t14:10\t0\tTea\r\n"
                           "2026-11-16T14:22:00Z\tLondon\tset\t14:10\t730\tTea\n");
    QCOMPARE(desk.Log.Events(), std::vector<TimerEvent>{Event(22, TimerHappening::Set)});
}

void tst_TimerLog::NamesWhatHappens() {
    QStringList words;
    for (int happening = 0; happening < 8; ++happening) {
        words += HappeningText(static_cast<TimerHappening>(happening));
    }
    QCOMPARE(words.join(u' '),
             u"set fired late skipped removed action-asked action-run action-refused"_s);
}

void tst_TimerLog::LiesInTheDataFolder() {
    PathTable paths;
    paths.AppFolder = u"/clocks"_s;
    QCOMPARE(TimerLog::PathIn(paths), u"/clocks/Timers.log"_s);
    paths.DataFolder = u"/clocks/anna"_s;
    QCOMPARE(TimerLog::PathIn(paths), u"/clocks/anna/Timers.log"_s);
}

QTEST_GUILESS_MAIN(tst_TimerLog)
#include "tst_TimerLog.moc"
