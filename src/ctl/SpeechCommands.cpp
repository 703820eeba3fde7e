#include <QJsonObject>

#include "ctl/ZoneByName.h"
#include "platform/WallClock.h"
#include "speech/SpeechPatterns.h"
#include "timezones/ZoneArithmetic.h"
#include "timezones/ZoneSources.h"

using namespace Qt::StringLiterals;

namespace ctl {

namespace {

int Expand(Context& context) {
    const QString zone = context.Option(u"--zone"_s);
    if (zone.isEmpty()) {
        return WrongArguments;
    }
    TimeZoneRecord record = FindAndTell(context, zone);
    const QDateTime now = context.Services.Clock.Now();
    mduTimeZones::ApplyCurrentOffset(record, now,
                                     mduTimeZones::GetLocalZone(context.Services).CurrentGMTHours);
    const QString text = speech::ExpandPattern(mduTimeZones::GetClockTime(record, now),
                                               context.Arguments[0], record.CurrentName);
    PrintJson(QJsonDocument(QJsonObject{{u"text"_s, text}}));
    return Done;
}

}  // namespace

std::vector<Command> SpeechCommands() {
    return {
        {u"speech"_s, u"expand"_s, u"PATTERN --zone NAME"_s, 1, 1, {u"--zone="_s}, Expand},
    };
}

}  // namespace ctl
