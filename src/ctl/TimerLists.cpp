#include "ctl/TimerLists.h"

#include <QJsonArray>
#include <QJsonObject>
#include <algorithm>

#include "ctl/LoadedTimers.h"
#include "ctl/ReadOnlyFiles.h"
#include "foundation/PropertyFile.h"
#include "foundation/SetupPaths.h"
#include "platform/Account.h"
#include "platform/WallClock.h"
#include "timers/TimerLog.h"
#include "timezones/ZoneKeys.h"

using namespace Qt::StringLiterals;

namespace ctl {

namespace {

constexpr QLatin1StringView FileEnd("Timer.txt");

/// A timer of one of the clocks.
struct NextTimer {
    QDateTime At;
    QString Clock;
    QString File;
    timers::ClockTimer Timer;
};

QString TextOf(const QDateTime& instant) {
    return instant.toString(Qt::ISODate);
}

QJsonObject AsJson(const NextTimer& next) {
    return {{u"zone"_s, next.Clock},           {u"file"_s, next.File},
            {u"time"_s, next.Timer.TimerTime}, {u"message"_s, next.Timer.Message},
            {u"at"_s, TextOf(next.At)},        {u"action"_s, next.Timer.TimerAction}};
}

QJsonObject AsJson(const timers::TimerEvent& event) {
    return {{u"at"_s, TextOf(event.At)},
            {u"zone"_s, event.Clock},
            {u"event"_s, timers::HappeningText(event.Happening)},
            {u"time"_s, event.Time},
            {u"message"_s, event.Message},
            {u"late"_s, event.Late}};
}

void AddOnDial(const LoadedTimers& loaded, const QString& clock, std::vector<NextTimer>& all) {
    const timers::KeptTimes times(loaded.Shared);
    for (int slot = 1; slot <= loaded.Timers.SlotCount(); ++slot) {
        const timers::ClockTimer& timer = loaded.Timers.Timer(slot);
        if (!timer.OnDial) {
            continue;
        }
        const QDateTime at = timer.Due.At.isValid()
                                 ? timer.Due.At
                                 : times.NextDue(timer, times.Present().Instant).At;
        if (at.isValid()) {
            all.push_back({at, clock, loaded.Timers.Path(), timer});
        }
    }
}

void AddDeferred(const LoadedTimers& loaded, const QString& clock, platform::RandomNumbers& random,
                 std::vector<NextTimer>& all) {
    const timers::KeptTimes times(loaded.Shared);
    const int year = times.Present().Reading.date().year();
    for (const QString& text : loaded.Timers.DeferredTimerLines()) {
        const auto line = timers::ParseTimerLine(text, year);
        const auto due = line ? times.DueOf(*line) : std::nullopt;
        if (due) {
            timers::ClockTimer timer;
            timers::FillTimer(*line, random, timer);
            times.Fill(*line, timer);
            all.push_back({*due, clock, loaded.Timers.Path(), timer});
        }
    }
}

void AddClock(const Context& context, const platform::Services& services, const QString& clock,
              std::vector<NextTimer>& all) {
    const PathTable& paths = context.State.Paths;
    ClockProperties properties;
    mduLib::ReadPropertyFile(services.FileSystem, paths.ZoneFileFolder + clock + u".ini"_s,
                             properties);
    ClockProperties zoneKeys = properties;
    const TimeZoneRecord zone = mduTimeZones::LoadZone(services, paths, clock, zoneKeys, QString());
    LoadedTimers loaded(services, context.State, zone, properties);
    loaded.Host.Complains = false;  // of a clock that would like to write its file
    loaded.Timers.LoadTimers(paths.TimersFolder + clock + FileEnd);
    AddOnDial(loaded, clock, all);
    AddDeferred(loaded, clock, services.Random, all);
}

}  // namespace

int TimersNext(Context& context) {
    PathTable& paths = context.State.Paths;
    mduMain::NameUserFolders(paths, context.Services.User.UserName());
    ReadOnlyFiles files(context.Services.FileSystem);
    const platform::Services services = context.Services.With(files);
    std::vector<NextTimer> all;
    for (const QString& file : files.FileNames(paths.TimersFolder)) {
        const QString clock = file.chopped(file.endsWith(FileEnd) ? FileEnd.size() : 0);
        if (clock != file &&
            (!context.HasOption(u"--zone"_s) || clock == context.Option(u"--zone"_s))) {
            AddClock(context, services, clock, all);
        }
    }
    std::sort(all.begin(), all.end(), [](const NextTimer& a, const NextTimer& b) {
        return std::tie(a.At, a.Clock, a.Timer.Message) < std::tie(b.At, b.Clock, b.Timer.Message);
    });
    QJsonArray answer;
    for (const NextTimer& next : all) {
        answer += AsJson(next);
    }
    PrintJson(QJsonDocument(answer));
    return Done;
}

int TimersLog(Context& context) {
    bool isNumber = true;
    const qsizetype last = context.HasOption(u"--last"_s)
                               ? context.Option(u"--last"_s).toInt(&isNumber)
                               : timers::TimerLog::MostEvents;
    if (!isNumber || last < 0) {
        return WrongArguments;
    }
    PathTable& paths = context.State.Paths;
    mduMain::NameUserFolders(paths, context.Services.User.UserName());
    const timers::TimerLog log(context.Services.FileSystem,
                               [&paths] { return timers::TimerLog::PathIn(paths); });
    QJsonArray answer;
    for (const timers::TimerEvent& event : log.Events()) {
        answer += AsJson(event);
    }
    while (answer.size() > last) {
        answer.removeFirst();
    }
    PrintJson(QJsonDocument(answer));
    return Done;
}

}  // namespace ctl
