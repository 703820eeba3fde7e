#include <QTest>
#include <algorithm>
#include <map>
#include <random>

#include "LateDesk.h"
#include "timers/DueTime.h"

using namespace Qt::StringLiterals;
using namespace timers;

namespace {

constexpr int Hour = 3600;
constexpr int Minute = 60;

/// A process that was killed in the middle of a write.
struct Killed {};

/// Files of a disk that may be full, under a process that may be killed at any write: before it is
/// done.
class MortalFiles final : public platform::Files {
public:
    std::map<QString, QByteArray> Content;
    bool Full = false;
    int WritesLeft = -1;  ///< until the process is killed; negative for never

    bool Exists(const QString& path) const override { return Content.contains(path); }
    bool FolderExists(const QString& path) const override { return !Content.contains(path); }
    bool MakeFolder(const QString&) override { return false; }
    std::optional<QByteArray> Read(const QString& path) const override {
        const auto found = Content.find(path);
        return found == Content.end() ? std::nullopt : std::optional(found->second);
    }
    bool Write(const QString& path, const QByteArray& content) override {
        if (WritesLeft == 0) {
            WritesLeft = -1;
            throw Killed();
        }
        WritesLeft -= WritesLeft > 0 ? 1 : 0;
        if (!Full) {
            Content[path] = content;
        }
        return !Full;
    }
    bool Copy(const QString&, const QString&) override { return false; }
    bool Delete(const QString& path) override { return Content.erase(path) > 0; }
    bool Touch(const QString&) override { return false; }
    bool SetModifiedSeconds(const QString&, qint64) override { return false; }
    std::optional<qint64> ModifiedSeconds(const QString&) const override { return 0; }
    std::optional<qint64> Size(const QString& path) const override {
        const auto found = Content.find(path);
        return found == Content.end() ? std::nullopt : std::optional<qint64>(found->second.size());
    }
    QStringList FileNames(const QString&) const override { return {}; }
};

/// Three zones: one that never changes, and two that do around the days of the histories.
std::function<int(const QDateTime&)> Zone(int number) {
    const QDateTime spring(QDate(2026, 3, 29), QTime(1, 0), Qt::UTC);
    const QDateTime autumn(QDate(2026, 10, 25), QTime(1, 0), Qt::UTC);
    if (number == 0) {
        return [](const QDateTime&) { return 5 * Hour + Hour / 2; };
    }
    const int standard = number == 1 ? 0 : -7 * Hour;
    return [=](const QDateTime& instant) {
        return instant >= spring && instant < autumn ? standard + Hour : standard;
    };
}

/// A timer as its user knows it.
struct Wanted {
    QString Name;
    QDateTime Instant;  ///< the first at which the clock shows its time
    bool Acts = false;
    QDateTime Last = {};  ///< the last at which it does
    bool InDoubt =
        false;  ///< its machine died with unsaved timers: what was done may be done again
    int Fired = 0;
    int Ran = 0;
    int Asked = 0;
};

/// A machine, its user, and all that happens to them, by chance.
struct History {
    std::mt19937 Random;
    MortalFiles Disk;
    LateDesk Desk{u"Show"_s, u"24"_s, &Disk};
    std::vector<Wanted> Timers;
    std::vector<QDateTime> There;  ///< each instant at which the program has looked at its timers
    QStringList Wrong;
    QDateTime Looked;  ///< the last of these

    bool IsExact;

    History(unsigned seed, bool isExact) : Random(seed), IsExact(isExact) {
        Desk.Clock.Ahead = Zone(Below(3));
        Desk.Zone.ExactId = IsExact ? u"Its/Own"_s : QString();
        const QString days[] = {u"2026-03-28T"_s, u"2026-10-24T"_s, u"2026-06-15T"_s};
        Desk.GoTo(days[Below(3)] + u"%1:00:00"_s.arg(Below(24), 2, 10, QChar(u'0')));
        Start();
    }

    int Below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(Random); }
    bool OneIn(int count) { return Below(count) == 0; }

    void Start() {
        Desk.Start();
        Desk.Timers().WatchFiring([this](int, const ClockTimer& timer) { Fires(timer.Message); });
        Looked = {};
    }

    Wanted& Named(const QString& name) {
        return *std::find_if(Timers.begin(), Timers.end(),
                             [&](const Wanted& timer) { return timer.Name == name; });
    }

    void Fires(const QString& name) {
        Wanted& timer = Named(name);
        timer.Fired += 1;
        const QDateTime now = Desk.Clock.Instant;
        if (now < timer.Instant) {
            Wrong += u"%1 of %2 is early at %3"_s.arg(name, timer.Instant.toString(Qt::ISODate),
                                                      now.toString(Qt::ISODate));
        }
        // At the last look it was not due yet: nobody has passed it over.
        if (Looked.isValid() && Looked >= timer.Last && !timer.InDoubt) {
            Wrong += u"%1 is late, but the program was there"_s.arg(name);
        }
    }

    /// A user makes a timer: with an action or without, for today or for a later day.
    void Add() {
        const QDateTime now = Desk.Clock.Instant;
        const QTime time(Below(24), Below(60));
        const ClockOffset offset = Desk.Clock.Ahead;
        const ClockMoment next = NextComing(time, TimerDay::Whole, now, offset);
        // A clock that does not know its zone takes the second coming of an hour for the first.
        const ClockOffset asNow = [ahead = offset(now)](const QDateTime&) { return ahead; };
        if (next.Instant <= now.addSecs(Minute) ||
            (!IsExact && NextComing(time, TimerDay::Whole, now, asNow).Reading != next.Reading)) {
            return;
        }
        const QString name = u"t%1"_s.arg(Timers.size());
        Wanted wanted{name, next.Instant, OneIn(3)};
        const bool isFar = OneIn(4);
        if (isFar) {
            wanted.Instant = InstantOf(next.Reading.addDays(1), offset);
        }
        // In the hour that comes twice a program that begins late may take the second time.
        const QDateTime again = wanted.Instant.addSecs(Hour);
        const bool comesTwice = !IsExact && again.addSecs(offset(again)).time() == time;
        wanted.Last = comesTwice ? again : wanted.Instant;
        wanted.InDoubt = true;  // until it is kept
        Timers.push_back(wanted);
        const int slot = Desk.Timers().SetNewTimer(HourMinute(time));
        ClockTimer timer = Desk.Timers().Timer(slot);
        timer.Message = name;
        timer.TimerAction = wanted.Acts ? name : QString();
        timer.DisplayMinutes = QString::number(Below(4));
        Desk.Timers().ChangeTimer(slot, timer);
        if (isFar) {
            Desk.Timers().DeferTimer(slot, next.Reading.date().addDays(1));
        }
        Desk.Timers().SaveTimer(Desk.Path());
        // A user who was told that nothing is kept does not rely on it.
        Timers.back().InDoubt = Desk.Timers().IsUnsaved();
    }

    void Tick() {
        Desk.Tick();
        Looked = Desk.Clock.Instant;
        CountRuns();
        while (!Desk.Questions.Asked.empty()) {
            const QString name = Desk.Questions.Asked.front().Text.section(u'"', 1, 1);
            Named(name).Asked += 1;
            Desk.Questions.Answer(OneIn(2));
            CountRuns();
        }
    }

    void CountRuns() {
        for (const QString& action : std::exchange(Desk.Ran, {})) {
            Named(action).Ran += 1;
        }
    }

    void Live(int minutes) {
        for (int tick = 0; tick < 3 * minutes; ++tick) {
            Desk.Clock.Instant = Desk.Clock.Instant.addSecs(20);
            Tick();
        }
    }

    void Die() {
        if (Desk.Running && Desk.Timers().IsUnsaved()) {
            for (Wanted& timer : Timers) {
                timer.InDoubt = true;
            }
        }
        CountRuns();
        Desk.Questions.Asked.clear();
        Desk.Kill();
        Start();
    }

    void Sleep() { Desk.Clock.Instant = Desk.Clock.Instant.addSecs(Minute * Below(600)); }

    /// The clock is set by less than what makes another day of it. A clock that does not know its
    /// zone is not set across a change of that.
    void SetClock() {
        const QDateTime instant = Desk.Clock.Instant.addSecs(Minute * (Below(240) - 120));
        if (IsExact || Desk.Clock.Ahead(instant) == Desk.Clock.OffsetFromGmt()) {
            Desk.Clock.Instant = instant;
            Looked = std::min(Looked, instant);
        }
    }

    /// For a while, or until something else has happened.
    void FillTheDisk() {
        Disk.Full = true;
        Live(Below(90));
        if (!OneIn(4)) {
            Disk.Full = false;
            Live(1);
        }
    }

    void Step() {
        Disk.Full = Disk.Full && OneIn(2);
        switch (Below(9)) {
            case 0:
            case 1:
                return Add();
            case 2:
                return Sleep();
            case 3:
                return SetClock();
            case 4:
                return Die();
            case 5:
                Disk.WritesLeft = Below(4);
                return Live(30);
            case 6:
                return FillTheDisk();
            default:
                return Live(20 + Below(100));
        }
    }

    void Play(int steps) {
        for (int step = 0; step < steps; ++step) {
            try {
                Step();
            } catch (const Killed&) {
                Die();
            }
        }
        Disk.Full = false;
        Disk.WritesLeft = -1;
        for (int day = 0; day < 3; ++day) {
            Sleep();
            Live(3);
            Desk.Clock.Instant = Desk.Clock.Instant.addDays(1);
        }
        Live(10);
    }

    void Judge() {
        for (const Wanted& timer : Timers) {
            if (timer.InDoubt) {
                continue;
            }
            if (timer.Fired != 1) {
                Wrong += u"%1 has fired %2 times"_s.arg(timer.Name).arg(timer.Fired);
            }
            if (timer.Ran > 1 || (timer.Acts && timer.Ran == 0 && timer.Asked == 0)) {
                Wrong += u"the action of %1 has run %2 times"_s.arg(timer.Name).arg(timer.Ran);
            }
        }
    }
};

}  // namespace

/// What happens to machines and their timers, by chance: timers made, sleep, clocks set, changes of
/// daylight time, programs killed at any write, full disks. Each timer fires once, never early, and
/// late only where nobody looked in time. TEMPOLARK_HISTORIES tells how many are played, and
/// TEMPOLARK_SEED with which they begin.
class tst_TimerHistories : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void FiresEachTimerOnce();
};

void tst_TimerHistories::FiresEachTimerOnce() {
    const int count = std::max(1, qEnvironmentVariableIntValue("TEMPOLARK_HISTORIES"));
    const int histories = qEnvironmentVariableIsSet("TEMPOLARK_HISTORIES") ? count : 150;
    const int first = qEnvironmentVariableIntValue("TEMPOLARK_SEED");
    int timers = 0;
    int fired = 0;
    int inDoubt = 0;
    for (int seed = first; seed < first + histories; ++seed) {
        History history(static_cast<unsigned>(seed), seed % 2 == 0);
        history.Play(20);
        history.Judge();
        for (const Wanted& timer : history.Timers) {
            timers += 1;
            fired += timer.Fired;
            inDoubt += timer.InDoubt ? 1 : 0;
        }
        QVERIFY2(history.Wrong.isEmpty(),
                 qPrintable(u"seed %1: %2"_s.arg(seed).arg(history.Wrong.join(u", "_s))));
    }
    qInfo("%d histories, %d timers, %d fired, %d in doubt", histories, timers, fired, inDoubt);
    QVERIFY(timers > 2 * histories);
    QVERIFY(inDoubt < timers / 3);
}

QTEST_GUILESS_MAIN(tst_TimerHistories)
#include "tst_TimerHistories.moc"
