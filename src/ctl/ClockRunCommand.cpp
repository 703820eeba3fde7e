#include <QCoreApplication>
#include <QEventLoop>
#include <QJsonObject>
#include <algorithm>
#include <memory>
#include <utility>

#include "clock/ui/frmTempolark.h"
#include "ctl/Command.h"
#include "ctl/RecordingMachine.h"
#include "ctl/ZoneByName.h"
#include "foundation/SetupPaths.h"
#include "platform/SimulatedClock.h"
#include "platform/SystemClock.h"
#include "platform/TzFolder.h"
#include "platform/TzZoneDatabase.h"
#include "timezones/StartZone.h"
#include "timezones/UnknownZone.h"

using namespace Qt::StringLiterals;

namespace ctl {

namespace {

constexpr int RealStep = 10;               // milliseconds
constexpr qint64 FirstTicks = 30;          // milliseconds until the window stands
constexpr qint64 LongestRun = 31'622'400;  // seconds

/// Tells the events of one clock, each with the moment of the simulated clock.
class EventLog {
public:
    explicit EventLog(const platform::SimulatedClock& clock) : clock_(clock) {}

    void Tell(const QString& event, const QJsonObject& fields) const {
        QJsonObject line{{u"at"_s, clock_.Now().toString(u"yyyy-MM-ddTHH:mm:ss.zzz"_s)},
                         {u"event"_s, event}};
        for (auto field = fields.begin(); field != fields.end(); ++field) {
            line.insert(field.key(), field.value());
        }
        PrintJson(QJsonDocument(line));
    }
    TellEvent Teller() const {
        return [this](const QString& event, const QJsonObject& fields) { Tell(event, fields); };
    }

private:
    const platform::SimulatedClock& clock_;
};

/// Tells what becomes of messages and actions.
class MessageLog {
public:
    explicit MessageLog(TellEvent tell) : tell_(std::move(tell)) {}

    void Tell(timers::MessageEvent event, const QString& text) {
        switch (event) {
            case timers::MessageEvent::Shows:
                shows_ = true;
                return tell_(u"message"_s, {{u"text"_s, text}});
            case timers::MessageEvent::Hides:
                return TellThatItHides();
            case timers::MessageEvent::ActionCaption:
                return tell_(u"action-countdown"_s, {{u"caption"_s, text}});
            case timers::MessageEvent::ActionRuns:
                return tell_(u"action"_s, {{u"text"_s, text}});
        }
    }

private:
    /// The label hides behind an empty message, too, which has not been told of.
    void TellThatItHides() {
        if (std::exchange(shows_, false)) {
            tell_(u"message-hidden"_s, {});
        }
    }

    TellEvent tell_;
    bool shows_ = false;
};

void WatchClock(frmTempolark& clock, const TellEvent& tell, MessageLog& messages) {
    clock.Watch({.State =
                     [tell](clockcore::ClockState from, clockcore::ClockState to) {
                         tell(u"state"_s, {{u"from"_s, static_cast<int>(from)},
                                           {u"to"_s, static_cast<int>(to)}});
                     },
                 .Interval =
                     [tell](int milliseconds) {
                         tell(u"interval"_s, {{u"ms"_s, milliseconds}});
                     },
                 .Firing =
                     [tell](int slot, const timers::ClockTimer& timer) {
                         tell(u"timer-fired"_s, {{u"slot"_s, slot},
                                                 {u"time"_s, timer.TimerTime},
                                                 {u"message"_s, timer.Message}});
                     },
                 .Messages = [&messages](timers::MessageEvent event,
                                         const QString& text) { messages.Tell(event, text); }});
}

void PassTime(platform::SimulatedClock& clock, qint64 milliseconds, bool real) {
    if (!real) {
        clock.Advance(milliseconds);
        return;
    }
    QEventLoop loop;
    platform::SystemClock machine;
    qint64 passed = 0;
    const auto ticker = machine.MakeTicker([&] {
        clock.Advance(RealStep);
        passed += RealStep;
        if (passed >= milliseconds) {
            loop.quit();
        }
    });
    ticker->SetInterval(RealStep);
    loop.exec();
}

int Run(Context& context) {
    bool isNumber = false;
    const qint64 seconds = context.Option(u"--seconds"_s).toLongLong(&isNumber);
    const QString speed =
        context.HasOption(u"--speed"_s) ? context.Option(u"--speed"_s) : u"fast"_s;
    if (!isNumber || seconds < 0 || seconds > LongestRun ||
        (speed != u"fast"_s && speed != u"real"_s)) {
        return WrongArguments;
    }
    const platform::Services& machine = context.Services;
    platform::SimulatedClock clock(machine.Clock.Now(), platform::TzZone(context.Global.LocalZone));
    if (context.Global.Utc) {
        clock.SetInstant(*context.Global.Utc);
    }
    platform::TzZoneDatabase zones(clock, context.Global.LocalZone);
    const EventLog log(clock);
    RecordingVoices voices(log.Teller());
    RecordingPlayers players(log.Teller(), clock);
    SilentActions actions;
    RecordingFiles files(machine.FileSystem, log.Teller());
    RecordingShell shell(log.Teller());
    const platform::Services services = machine.With(clock, zones, files, actions, voices, players);
    const QString name = context.Arguments[0];
    ClockProperties central;
    if (mduMain::SetupFiles(context.State, services, name, central) != mduMain::SetupResult::Done) {
        Complain(context.State.FailedSetupPath + u" can't be made"_s);
        return OperationFailed;
    }
    TellNotice(mduTimeZones::UnknownClockNotice(services, context.State.Paths, name));
    Forms windows;
    const Program program{services, context.State, windows};
    MessageLog messages(log.Teller());
    auto window = std::make_unique<frmTempolark>(program, &shell, nullptr);
    WatchClock(*window, log.Teller(), messages);
    window->setWindowFlag(Qt::FramelessWindowHint);
    window->setFixedSize(1, 1);
    window->SetLookedAt(false);
    if (!window->ShowMeMDIChild(name)) {
        return OperationFailed;
    }
    const qint64 milliseconds = seconds * 1000;
    const qint64 untilShown = std::min(milliseconds, FirstTicks);
    const bool real = speed == u"real"_s;
    PassTime(clock, untilShown, real);
    window->activateWindow();  // a clock that is looked at: it speaks its patterns
    QCoreApplication::processEvents();
    PassTime(clock, milliseconds - untilShown, real);
    return Done;
}

}  // namespace

std::vector<Command> ClockRunCommands() {
    return {{u"clock"_s,
             u"run"_s,
             u"ZONE --seconds N [--speed fast|real]"_s,
             1,
             1,
             {u"--seconds="_s, u"--speed="_s},
             Run,
             true,
             FolderNeed::Starts}};
}

}  // namespace ctl
