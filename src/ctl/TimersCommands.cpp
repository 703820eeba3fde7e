#include <QJsonArray>
#include <QJsonObject>

#include "ctl/ZoneByName.h"
#include "platform/WallClock.h"
#include "timers/ClockTimers.h"
#include "timezones/ZoneArithmetic.h"
#include "timezones/ZoneSources.h"

using namespace Qt::StringLiterals;

namespace ctl {

namespace {

/// A clock without a window: it tells of failures on standard error, all else is silent.
class QuietHost final : public timers::TimerHost {
public:
    bool Failed = false;

    void SpeakMessage(const QString&, int, Urgency) override {}
    void PurgeSpeech(Urgency) override {}
    void PlaySound(const QString&) override {}
    void StopMusic() override {}
    void ShowStatus(const QString& text) override {
        Failed = true;
        Complain(text);
    }
    void FitLabel(mduUILib::Control&) override {}
    void PlaceMark(int, int, int) override {}
    int TimerInterval() const override { return 1000; }
    void SetTimerInterval(int) override {}
    int BackColor() const override { return 0; }
    double DevicePixelRatio() const override { return 1; }
    int ScaleHeight() const override { return 0; }
    ClockProperties& EditProperties() override { return Properties; }

    ClockProperties Properties;
};

/// The timers of a clock of that zone, loaded from the first argument.
struct LoadedTimers {
    QuietHost Host;
    mduUILib::ClockControls Controls;
    TimeZoneRecord Zone;
    timers::TimerContext Shared;
    timers::ClockMessages Messages;
    timers::ClockTimers Timers;

    explicit LoadedTimers(const Context& context)
        : Zone(FindAndTell(context, context.Option(u"--zone"_s))),
          Shared{Host.Properties, Zone, Controls, context.Services, context.State, Host},
          Messages(Shared, [](const QString&) {}),
          Timers(Shared, Messages) {
        const float local = mduTimeZones::GetLocalZone(context.Services).CurrentGMTHours;
        mduTimeZones::ApplyCurrentOffset(Zone, context.Services.Clock.Now(), local);
        Timers.LoadTimers(context.Arguments[0]);
    }
    Q_DISABLE_COPY_MOVE(LoadedTimers)
};

QJsonObject SlotAsJson(int slot, const timers::ClockTimer& timer) {
    return {{u"slot"_s, slot},
            {u"TimerTime"_s, timer.TimerTime},
            {u"Permanent"_s, timer.Permanent},
            {u"OnDial"_s, timer.OnDial},
            {u"DisplayMinutes"_s, timer.DisplayMinutes},
            {u"Message"_s, timer.Message},
            {u"MessageColour"_s, timer.MessageColour},
            {u"SoundFile"_s, timer.SoundFile},
            {u"TimerAction"_s, timer.TimerAction},
            {u"MusicVolume"_s, timer.MusicVolume}};
}

int Load(Context& context) {
    if (context.Option(u"--zone"_s).isEmpty()) {
        return WrongArguments;
    }
    const LoadedTimers loaded(context);
    QJsonArray taken;
    for (int slot = 1; slot <= loaded.Timers.SlotCount(); ++slot) {
        if (!loaded.Timers.Timer(slot).IsFree()) {
            taken += SlotAsJson(slot, loaded.Timers.Timer(slot));
        }
    }
    const auto deferred = QJsonArray::fromStringList(loaded.Timers.DeferredTimerLines());
    PrintJson(QJsonDocument(QJsonObject{{u"slots"_s, taken}, {u"deferred"_s, deferred}}));
    return loaded.Timers.FileWasRead() ? Done : OperationFailed;
}

int Save(Context& context) {
    if (context.Option(u"--zone"_s).isEmpty()) {
        return WrongArguments;
    }
    LoadedTimers loaded(context);
    const bool read = loaded.Timers.FileWasRead();
    if (read) {
        loaded.Timers.SaveTimer(context.Arguments[1]);
    }
    const bool saved = read && !loaded.Host.Failed;
    const qsizetype lines = saved ? loaded.Timers.TimerLines().size() : 0;
    PrintJson(QJsonDocument(QJsonObject{{u"lines"_s, lines}}));
    return saved ? Done : OperationFailed;
}

}  // namespace

std::vector<Command> TimersCommands() {
    const QString group = u"timers"_s;
    const QStringList zone = {u"--zone="_s};
    return {
        {group, u"load"_s, u"FILE --zone NAME"_s, 1, 1, zone, Load},
        {group, u"save"_s, u"FILE OUT --zone NAME"_s, 2, 2, zone, Save},
    };
}

}  // namespace ctl
