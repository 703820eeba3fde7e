#pragma once

#include <QTimeZone>

#include "foundation/PropertyLookup.h"
#include "platform/Dialogs.h"
#include "platform/Services.h"
#include "support/FakeTimerHost.h"

/// A machine whose clock is a true one: an instant and a zone, so that readings jump as they do.
class TrueClock final : public platform::WallClock {
public:
    QDateTime Instant;
    std::function<int(const QDateTime& instant)> Ahead = [](const QDateTime&) { return 0; };

    QDateTime Now() const override { return Instant.addSecs(OffsetFromGmt()); }
    int OffsetFromGmt() const override { return Ahead(Instant); }
    std::unique_ptr<platform::Ticker> MakeTicker(std::function<void()>) override { return nullptr; }
};

/// A database that knows one zone, which is that of the clock.
class OneZone final : public platform::ZoneDatabase {
public:
    explicit OneZone(const TrueClock& clock) : clock_(clock) {}
    platform::ZoneRoot Open() const override { return platform::ZoneRoot::Opened; }
    std::optional<QString> SubkeyName(int) const override { return std::nullopt; }
    std::optional<QString> TextValue(const QString&, const QString&) const override {
        return std::nullopt;
    }
    std::optional<QByteArray> TziValue(const QString&) const override { return std::nullopt; }
    platform::TimeZoneInformation GetTimeZoneInformation() const override { return {}; }
    bool IsWindowsNT() const override { return true; }
    QString LocalStandardName() const override { return {}; }
    std::optional<platform::ZoneSpan> SpanAt(const QString&, std::int64_t instant) const override {
        const QDateTime moment = QDateTime::fromSecsSinceEpoch(instant, Qt::UTC);
        return platform::ZoneSpan{clock_.Ahead(moment), false, instant, instant + 1};
    }

private:
    const TrueClock& clock_;
};

/// Questions that stand until the test answers them.
class StandingQuestions final : public platform::Dialogs {
public:
    struct Question {
        QString Text;
        QString Title;
        int Seconds = 0;
        std::function<void(bool)> Answer;
    };
    std::vector<Question> Asked;

    int MessageBox(const QString& text, int, const QString&) override {
        qFatal("a box that the test did not expect: %s", qPrintable(text));
    }
    QString OpenFile(const QString&, const QString&, const QString&) override { return {}; }
    QString SaveFile(const QString&, const QString&, const QString&) override { return {}; }
    int PickColour(int) override { return -1; }
    void PostQuestion(const QString& text, const QString& title, int seconds,
                      const std::function<void(bool)>& answer) override {
        Asked.push_back({text, title, seconds, answer});
    }
    /// Answers the one that has stood longest.
    void Answer(bool yes) {
        const Question first = Asked.front();
        Asked.erase(Asked.begin());
        first.Answer(yes);
    }
};

/// A clock that shows the machine's own time and keeps its timers, at noon of 15 June 2026 in GMT.
/// It can be ended and started again, as a program is.
struct LateDesk {
    FakeServices Machine;
    TrueClock Clock;
    StandingQuestions Questions;
    OneZone Zones{Clock};
    platform::Services Services;
    ModuleState Module;
    TimeZoneRecord Zone;
    FakeTimerHost Host;
    QStringList Fired;  ///< "15:10 Tea", in the order of firing
    QStringList Ran;    ///< the actions that ran

    /// What a program has in memory.
    struct Program {
        mduUILib::ClockControls Controls;
        timers::TimerContext Context;
        timers::ClockMessages Messages;
        timers::ClockTimers Timers;

        explicit Program(LateDesk& desk)
            : Context{desk.Host.Properties, desk.Zone,   Controls,
                      desk.Services,        desk.Module, desk.Host},
              Messages(Context, [&desk](const QString& action) { desk.Ran += action; }),
              Timers(Context, Messages) {}
    };
    std::unique_ptr<Program> Running;

    /// @param files those of the machine; its own where none are given
    explicit LateDesk(const QString& late = QStringLiteral("Show"),
                      const QString& clock = QStringLiteral("24"), platform::Files* files = nullptr)
        : Services(Machine.Services.With(Clock, Questions, Zones,
                                         files == nullptr ? Machine.Services.FileSystem : *files)) {
        Module.Paths.AppFolder = Machine.AppFolder();
        Zone.StandardName = QStringLiteral("London");
        Set(QStringLiteral("Speak Timer Message"), QStringLiteral("No"));
        Set(QStringLiteral("Speak Action Message"), QStringLiteral("No"));
        Set(QStringLiteral("Message Display Time"), QStringLiteral("5"));
        Set(QStringLiteral("Late Timers"), late);
        Set(QStringLiteral("Timer Clock"), clock);
        GoTo(QStringLiteral("2026-06-15T12:00:00"));
        Start();
    }

    void Set(const QString& name, const QString& value) {
        mduLib::PutPropertyRaw(name, value, Host.Properties);
    }
    QString Path() const { return Machine.AppFolder() + QStringLiteral("/LondonTimer.txt"); }
    QString File() const { return QString::fromUtf8(Machine.Files.Read(Path()).value_or("")); }

    void Start() {
        Running = std::make_unique<Program>(*this);
        Running->Timers.WatchFiring([this](int, const timers::ClockTimer& timer) {
            Fired += timer.TimerTime + u' ' + timer.Message;
        });
        Running->Timers.LoadTimers(Path());
    }
    /// Ends the program with nothing saved.
    void Kill() { Running.reset(); }

    timers::ClockTimers& Timers() { return Running->Timers; }
    timers::ClockMessages& Messages() { return Running->Messages; }

    /// The machine's clock stands at another instant, given in GMT.
    void GoTo(const QString& instant) {
        Clock.Instant = QDateTime::fromString(instant + u'Z', Qt::ISODate);
    }
    /// One tick.
    void Tick() {
        Timers().CheckTimers(QStringLiteral("15/06/2026 12:00:00"));
        Messages().RunMessage(0, 400);
    }
    void TickAt(const QString& instant) {
        GoTo(instant);
        Tick();
    }
    /// Lives through that many minutes, a tick each ten seconds.
    void Live(int minutes) {
        for (int tick = 0; tick < 6 * minutes; ++tick) {
            Clock.Instant = Clock.Instant.addSecs(10);
            Tick();
        }
    }

    /// A timer as a user makes it.
    int Add(const QString& time, const QString& message, const QString& action = {},
            const QString& permanent = {}) {
        const int slot = Timers().SetNewTimer(time);
        timers::ClockTimer timer = Timers().Timer(slot);
        timer.Message = message;
        timer.TimerAction = action;
        timer.Permanent = permanent;
        Timers().ChangeTimer(slot, timer);
        Timers().SaveTimer(Path());
        return slot;
    }
    QString Message() { return Messages().PendingMessage(); }
    /// The log without its moments, "fired 15:10 Tea".
    QStringList Log() const {
        QStringList lines;
        timers::TimerLog log(Services.FileSystem,
                             [this] { return timers::TimerLog::PathIn(Module.Paths); });
        for (const timers::TimerEvent& event : log.Events()) {
            lines +=
                timers::HappeningText(event.Happening) + u' ' + event.Time + u' ' + event.Message +
                (event.Late > 0 ? QStringLiteral(" +") + QString::number(event.Late) : QString());
        }
        return lines;
    }
};
