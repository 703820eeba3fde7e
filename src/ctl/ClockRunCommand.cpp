#include <QCoreApplication>
#include <QEventLoop>
#include <QJsonObject>
#include <algorithm>
#include <memory>
#include <utility>

#include "clock/ui/frmTempolark.h"
#include "ctl/ClockScript.h"
#include "ctl/Command.h"
#include "ctl/RecordingMachine.h"
#include "ctl/ZoneByName.h"
#include "foundation/PropertyFile.h"
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

/// The machine of a run, and the clock that runs on it while its program does.
class ClockOnMachine {
public:
    ClockOnMachine(Context& context, bool real)
        : context_(context),
          real_(real),
          clock_(context.Services.Clock.Now(), platform::TzZone(context.Global.LocalZone)),
          zones_(clock_, context.Global.LocalZone) {
        if (context.Global.Utc) {
            clock_.SetInstant(*context.Global.Utc);
        }
    }

    /// @return false where the files can't be made, or no file can have the clock's name
    bool Start() {
        const QString name = context_.Arguments[0];
        ClockProperties central;
        if (mduMain::SetupFiles(context_.State, services_, name, central) !=
            mduMain::SetupResult::Done) {
            Complain(context_.State.FailedSetupPath + u" can't be made"_s);
            return false;
        }
        TellNotice(mduTimeZones::UnknownClockNotice(services_, context_.State.Paths, name));
        window_ = std::make_unique<frmTempolark>(Program{services_, context_.State, windows_},
                                                 &shell_, nullptr);
        WatchClock(*window_, log_.Teller(), messages_);
        window_->setWindowFlag(Qt::FramelessWindowHint);
        window_->setFixedSize(1, 1);
        window_->SetLookedAt(false);
        return window_->ShowMeMDIChild(name);
    }
    /// Lets time pass; a clock that has just been started comes to the front in it.
    void Pass(qint64 milliseconds) {
        const qint64 untilShown = std::min(milliseconds, FirstTicks);
        PassTime(clock_, untilShown, real_);
        if (window_) {
            window_->activateWindow();  // a clock that is looked at: it speaks its patterns
        }
        QCoreApplication::processEvents();
        PassTime(clock_, milliseconds - untilShown, real_);
    }
    /// Plays the script, and then runs on until so much time has passed since the start.
    bool Play(const std::vector<ScriptStep>& steps, qint64 milliseconds) {
        clock_.SetInstant(clock_.InstantOf(clock_.Now()));
        for (const ScriptStep& step : steps) {
            const qint64 wait = clock_.Now().msecsTo(step.At);
            const qint64 passes = InstantNow().msecsTo(clock_.InstantOf(step.At));
            PassBy(wait > 0 ? passes : 0);
            if (!Take(step)) {
                return false;
            }
        }
        PassBy(milliseconds - passed_);
        return true;
    }

private:
    QDateTime InstantNow() const { return clock_.Now().addSecs(-clock_.OffsetFromGmt()); }
    // A program that was killed is started a second later.
    void PassBy(qint64 milliseconds) {
        if (wasKilled_ && milliseconds >= Second) {
            Pass(Second);
            passed_ += Second;
            milliseconds -= Second;
        }
        if (std::exchange(wasKilled_, false)) {
            Start();
        }
        Pass(std::max(qint64{0}, milliseconds));
        passed_ += std::max(qint64{0}, milliseconds);
    }
    bool Take(const ScriptStep& step) {
        switch (step.Action) {
            case ScriptAction::Sleep:
                clock_.SetInstant(InstantNow().addSecs(60LL * step.Minutes));
                passed_ += 60LL * step.Minutes * Second;
                return true;
            case ScriptAction::SetClock:
                clock_.SetClock(step.Time);
                return true;
            case ScriptAction::Zone:
                return Move(step.Zone.toUtf8());
            case ScriptAction::Kill:
                wasKilled_ = window_ != nullptr;
                window_.reset();
                return true;
            case ScriptAction::Quit:
                if (window_) {
                    window_->Unload();
                }
                window_.reset();
                return true;
            case ScriptAction::Start:
                return window_ || Start();
            case ScriptAction::DiskFull:
            case ScriptAction::DiskFree:
                files_.SetFull(step.Action == ScriptAction::DiskFull);
                return true;
        }
        return false;
    }
    bool Move(const QByteArray& iana) {
        const QTimeZone zone(iana);
        if (!zone.isValid()) {
            Complain(QString::fromUtf8(iana) + u" is no time zone"_s);
            return false;
        }
        clock_.SetZone(zone);
        zones_.MoveTo(iana);
        return true;
    }

    static constexpr qint64 Second = 1000;  // milliseconds

    Context& context_;
    bool real_;
    platform::SimulatedClock clock_;
    platform::TzZoneDatabase zones_;
    EventLog log_{clock_};
    RecordingVoices voices_{log_.Teller()};
    RecordingPlayers players_{log_.Teller(), clock_};
    SilentActions actions_;
    RecordingFiles files_{context_.Services.FileSystem, log_.Teller()};
    RecordingShell shell_{log_.Teller()};
    platform::Services services_ =
        context_.Services.With(clock_, zones_, files_, actions_, voices_, players_);
    Forms windows_;
    MessageLog messages_{log_.Teller()};
    std::unique_ptr<frmTempolark> window_;
    bool wasKilled_ = false;
    qint64 passed_ = 0;  ///< milliseconds since the start
};

/// The steps of the script that is given; none without one.
std::optional<std::vector<ScriptStep>> ScriptOf(const Context& context) {
    if (!context.HasOption(u"--script"_s)) {
        return std::vector<ScriptStep>();
    }
    const QString path = context.Option(u"--script"_s);
    const std::optional<QByteArray> content = context.Services.FileSystem.Read(path);
    if (!content) {
        Complain(path + u" can't be read"_s);
        return std::nullopt;
    }
    QString wrong;
    auto steps = ReadClockScript(mduLib::FileLines(*content), wrong);
    if (!steps) {
        Complain(u"this is no step: "_s + wrong);
    }
    return steps;
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
    const auto steps = ScriptOf(context);
    if (!steps) {
        return WrongArguments;
    }
    ClockOnMachine machine(context, speed == u"real"_s);
    if (!machine.Start()) {
        return OperationFailed;
    }
    if (context.HasOption(u"--script"_s)) {
        return machine.Play(*steps, seconds * 1000) ? Done : OperationFailed;
    }
    machine.Pass(seconds * 1000);
    return Done;
}

}  // namespace

std::vector<Command> ClockRunCommands() {
    return {{u"clock"_s,
             u"run"_s,
             u"ZONE --seconds N [--speed fast|real] [--script FILE]"_s,
             1,
             1,
             {u"--seconds="_s, u"--speed="_s, u"--script="_s},
             Run,
             true,
             FolderNeed::Starts}};
}

}  // namespace ctl
