#include "ctl/ZoneInstants.h"

#include <QJsonArray>
#include <QJsonObject>

#include "foundation/Dates.h"
#include "foundation/Numbers.h"
#include "platform/Files.h"
#include "platform/SimulatedClock.h"
#include "platform/TzFolder.h"
#include "platform/TzZoneDatabase.h"
#include "timezones/ExactConversion.h"
#include "timezones/ExactOffset.h"
#include "timezones/ZoneArithmetic.h"

using namespace Qt::StringLiterals;

namespace ctl {

namespace {

/// A machine that goes from instant to instant.
struct TravellingMachine {
    explicit TravellingMachine(const Context& context)
        : Clock(context.Services.Clock.Now(), platform::TzZone(context.Global.LocalZone)),
          Zones(Clock, context.Global.LocalZone),
          Services(context.Services.With(Clock, Zones)) {}
    Q_DISABLE_COPY_MOVE(TravellingMachine)

    platform::SimulatedClock Clock;
    platform::TzZoneDatabase Zones;
    platform::Services Services;
};

QJsonObject AnswerAt(const TravellingMachine& machine, const QString& id) {
    TimeZoneRecord record;
    record.StandardName = u"Standard"_s;
    record.DaylightName = u"Daylight"_s;
    record.ExactId = id;
    mduTimeZones::ApplyPresentOffset(machine.Services, record);
    const QDateTime now = machine.Clock.Now();
    const QString local = mduAPILib::MomentText(now);
    const mduTimeZones::ConvertedTime converted =
        mduTimeZones::ConvertTime(machine.Zones, local, true, record, now);
    const QStringList texts =
        converted.Texts.isEmpty() ? QStringList{converted.Text} : converted.Texts;
    const auto number = [](float hours) { return mduAPILib::SingleText(hours).toDouble(); };
    return {{u"CurrentName"_s, record.CurrentName},
            {u"CurrentGMTHours"_s, number(record.CurrentGMTHours)},
            {u"HoursFromLocal"_s, number(record.HoursFromLocal)},
            {u"local"_s, local},
            {u"zone"_s, mduAPILib::MomentText(mduTimeZones::GetClockTime(record, now))},
            {u"texts"_s, QJsonArray::fromStringList(texts)}};
}

/// line = instant " " identifier. @return whether there is an answer
bool AnswerLine(TravellingMachine& machine, const QString& line) {
    const std::optional<QDateTime> instant = ParseWallTime(line.section(u' ', 0, 0));
    const QString id = line.section(u' ', 1);
    if (instant) {
        machine.Clock.SetInstant(*instant);
    }
    if (!instant || id.isEmpty() || !machine.Zones.SpanAt(id, machine.Clock.Instant())) {
        PrintText(u"null"_s);
        return false;
    }
    PrintJson(QJsonDocument(AnswerAt(machine, id)));
    return true;
}

int Run(Context& context) {
    const auto content = context.Services.FileSystem.Read(context.Arguments[0]);
    if (!content) {
        Complain(context.Arguments[0] + u" can't be read"_s);
        return OperationFailed;
    }
    TravellingMachine machine(context);
    bool all = true;
    for (const QString& line : QString::fromUtf8(*content).split(u'\n', Qt::SkipEmptyParts)) {
        all = AnswerLine(machine, line.trimmed()) && all;
    }
    return all ? Done : OperationFailed;
}

}  // namespace

Command ZoneInstantsCommand() {
    return {u"zones"_s, u"instants"_s, u"FILE"_s, 1, 1, {}, Run};
}

}  // namespace ctl
