#include <QJsonArray>
#include <QJsonObject>
#include <memory>

#include "ctl/LoadedTimers.h"
#include "ctl/TimerLists.h"
#include "ctl/ZoneByName.h"
#include "platform/WallClock.h"
#include "timezones/ZoneArithmetic.h"
#include "timezones/ZoneSources.h"

using namespace Qt::StringLiterals;

namespace ctl {

namespace {

/// Loads the first argument as the timers of a clock of the zone that is named.
std::unique_ptr<LoadedTimers> LoadFirst(const Context& context) {
    TimeZoneRecord zone = FindAndTell(context, context.Option(u"--zone"_s));
    const float local = mduTimeZones::GetLocalZone(context.Services).CurrentGMTHours;
    mduTimeZones::ApplyCurrentOffset(zone, context.Services.Clock.Now(), local);
    auto loaded =
        std::make_unique<LoadedTimers>(context.Services, context.State, zone, ClockProperties());
    loaded->Timers.LoadTimers(context.Arguments[0]);
    return loaded;
}

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
    const auto loading = LoadFirst(context);
    const LoadedTimers& loaded = *loading;
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
    const auto loading = LoadFirst(context);
    LoadedTimers& loaded = *loading;
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
        {group, u"next"_s, u"[--zone NAME]"_s, 0, 0, zone, TimersNext},
        {group, u"log"_s, u"[--last N]"_s, 0, 0, {u"--last="_s}, TimersLog},
    };
}

}  // namespace ctl
