#include "ctl/ZonesCommands.h"

#include <QFileInfo>
#include <QJsonArray>

#include "ctl/ZoneByName.h"
#include "ctl/ZoneInstants.h"
#include "foundation/Numbers.h"
#include "foundation/SetupPaths.h"
#include "platform/Account.h"
#include "platform/WallClock.h"
#include "platform/ZoneDatabase.h"
#include "timezones/ExactConversion.h"
#include "timezones/ExactDescription.h"
#include "timezones/ExactOffset.h"
#include "timezones/ZoneArithmetic.h"
#include "timezones/ZoneEdition.h"
#include "timezones/ZoneKeys.h"
#include "timezones/ZoneSources.h"

using namespace Qt::StringLiterals;

namespace ctl {

namespace {

QJsonObject DateAsJson(const platform::SYSTEMTIME& date) {
    return {{u"wYear"_s, date.wYear},           {u"wMonth"_s, date.wMonth},
            {u"wDayOfWeek"_s, date.wDayOfWeek}, {u"wDay"_s, date.wDay},
            {u"wHour"_s, date.wHour},           {u"wMinute"_s, date.wMinute},
            {u"wSecond"_s, date.wSecond},       {u"wMilliseconds"_s, date.wMilliseconds}};
}

/// A single-precision number without the digits that double precision would add.
double Shortest(float number) {
    return mduAPILib::SingleText(number).toDouble();
}

float LocalHours(const Context& context) {
    return mduTimeZones::GetLocalZone(context.Services).CurrentGMTHours;
}

/// The zone of the first argument. Where a file holds the zone's keys its name may be any.
TimeZoneRecord Find(const Context& context) {
    const QString& name = context.Arguments[0];
    return context.HasOption(u"--file"_s)
               ? mduTimeZones::FindTimeZone(context.Services, context.State.Paths, name)
               : FindAndTell(context, name);
}

/// The folder of the user's zone files.
QString SelectedFolder(const Context& context) {
    PathTable paths = context.State.Paths;
    mduMain::NameUserFolders(paths, context.Services.User.UserName().trimmed());
    return paths.ZoneFileFolder;
}

std::optional<TimeZoneRecords> RecordsOfSource(const Context& context, const QString& source) {
    if (source == "windows"_L1) {
        return mduTimeZones::ListWindowsTimeZones(context.Services);
    }
    if (source == "profiles"_L1) {
        return mduTimeZones::ListProfileTimeZones(context.Services,
                                                  context.State.Paths.ProfileFolder);
    }
    if (source == "selected"_L1) {
        return mduTimeZones::ListProfileTimeZones(context.Services, SelectedFolder(context));
    }
    return std::nullopt;
}

/// The list is JSON, so what it was made from is told beside it.
void TellEdition(const Context& context) {
    const QString edition = context.Services.Zones.Edition();
    Complain(mduTimeZones::EditionText(edition));
    TellNotice(mduTimeZones::OldEditionNotice(edition, context.Services.Clock.Now().date()));
}

int List(Context& context) {
    const QString source =
        context.HasOption(u"--source"_s) ? context.Option(u"--source"_s) : u"windows"_s;
    const std::optional<TimeZoneRecords> records = RecordsOfSource(context, source);
    if (!records) {
        return WrongArguments;
    }
    QJsonArray array;
    for (std::size_t number = 1; number < records->size(); ++number) {
        array.append(RecordAsJson((*records)[number]));
    }
    PrintJson(QJsonDocument(array));
    TellEdition(context);
    return Done;
}

// A document is an object or an array, so an empty record is printed by its word.
void PrintRecord(const TimeZoneRecord& record) {
    const QJsonValue value = RecordAsJson(record);
    if (value.isNull()) {
        PrintText(u"null"_s);
    } else {
        PrintJson(QJsonDocument(value.toObject()));
    }
}

int Local(Context& context) {
    PrintRecord(mduTimeZones::GetLocalZone(context.Services));
    return Done;
}

bool OverlayFile(const Context& context, TimeZoneRecord& record) {
    const QString path = QFileInfo(context.Option(u"--file"_s)).absoluteFilePath();
    ClockProperties properties;
    if (!mduTimeZones::LoadZoneFile(context.Services.FileSystem, path, properties)) {
        Complain(path + u" can't be read"_s);
        return false;
    }
    return mduTimeZones::ReadZoneKeys(context.Services, record, properties, path);
}

/// An option "--file" names a file.
bool NamesItsFile(const Context& context) {
    return !context.HasOption(u"--file"_s) || !context.Option(u"--file"_s).isEmpty();
}

int Show(Context& context) {
    if (!NamesItsFile(context)) {
        return WrongArguments;
    }
    bool saved = true;
    PrintRecord(RecordAskedFor(context, saved));
    return saved ? Done : OperationFailed;
}

int Describe(Context& context) {
    if (!NamesItsFile(context)) {
        return WrongArguments;
    }
    bool saved = true;
    const TimeZoneRecord record = RecordAskedFor(context, saved);
    const QString text = mduTimeZones::PresentDescription(context.Services, record);
    PrintJson(QJsonDocument(QJsonObject{{u"text"_s, text}}));
    return saved ? Done : OperationFailed;
}

int NameAt(Context& context) {
    const std::optional<QDateTime> moment = ParseWallTime(context.Arguments[1]);
    if (!moment || !NamesItsFile(context)) {
        return WrongArguments;
    }
    bool saved = true;
    TimeZoneRecord record = RecordAskedFor(context, saved);
    const QString name =
        record.ExactId.isEmpty()
            ? mduTimeZones::ZoneNameAtTime(*moment, context.Services.Clock.Now(), record,
                                           LocalHours(context))
            : mduTimeZones::ExactNameAt(context.Services.Zones, record, *moment, false);
    PrintJson(QJsonDocument(QJsonObject{{u"name"_s, name}}));
    return saved ? Done : OperationFailed;
}

QJsonObject ConvertedAsJson(const mduTimeZones::ConvertedTime& converted) {
    QJsonObject object{{u"text"_s, converted.Text}};
    if (converted.IsGap) {
        object.insert(u"gap"_s, true);
    }
    if (!converted.Texts.isEmpty()) {
        object.insert(u"texts"_s, QJsonArray::fromStringList(converted.Texts));
    }
    return object;
}

int Convert(Context& context) {
    if (!NamesItsFile(context)) {
        return WrongArguments;
    }
    bool saved = true;
    const TimeZoneRecord record = RecordAskedFor(context, saved);
    const bool toZone = !context.HasOption(u"--from-zone"_s);
    PrintJson(QJsonDocument(
        ConvertedAsJson(mduTimeZones::ConvertTime(context.Services.Zones, context.Arguments[1],
                                                  toZone, record, context.Services.Clock.Now()))));
    return saved ? Done : OperationFailed;
}

std::optional<int> ShortInteger(const Context& context, int index) {
    const std::optional<int> number = context.Integer(index);
    return number && *number == static_cast<std::int16_t>(*number) ? number : std::nullopt;
}

int Rule(Context& context) {
    const auto occurrence = ShortInteger(context, 0);
    const auto weekday = ShortInteger(context, 1);
    const auto month = ShortInteger(context, 2);
    if (!occurrence || !weekday || !month) {
        return WrongArguments;
    }
    const QDate date = mduTimeZones::RuleTransitionDate(*occurrence, *weekday, *month,
                                                        context.Services.Clock.Now().date());
    PrintJson(QJsonDocument(QJsonObject{{u"date"_s, date.toString(Qt::ISODate)}}));
    return Done;
}

}  // namespace

QJsonValue RecordAsJson(const TimeZoneRecord& record) {
    if (record == TimeZoneRecord()) {
        return QJsonValue::Null;
    }
    return QJsonObject{{u"Bias"_s, record.Bias},
                       {u"KeyName"_s, record.KeyName},
                       {u"StandardName"_s, record.StandardName},
                       {u"StandardDate"_s, DateAsJson(record.StandardDate)},
                       {u"StandardBias"_s, record.StandardBias},
                       {u"DaylightName"_s, record.DaylightName},
                       {u"DaylightDate"_s, DateAsJson(record.DaylightDate)},
                       {u"DaylightBias"_s, record.DaylightBias},
                       {u"DisplayName"_s, record.DisplayName},
                       {u"CurrentName"_s, record.CurrentName},
                       {u"CurrentGMTHours"_s, Shortest(record.CurrentGMTHours)},
                       {u"HoursFromLocal"_s, Shortest(record.HoursFromLocal)}};
}

TimeZoneRecord RecordAskedFor(const Context& context, bool& saved) {
    TimeZoneRecord record = Find(context);
    saved = true;
    if (context.HasOption(u"--file"_s)) {
        saved = OverlayFile(context, record);
    }
    mduTimeZones::ApplyPresentOffset(context.Services, record);
    return record;
}

std::vector<Command> ZonesCommands() {
    const QString group = u"zones"_s;
    return {
        {group, u"list"_s, u"[--source windows|profiles|selected]"_s, 0, 0, {u"--source="_s}, List},
        {group, u"local"_s, {}, 0, 0, {}, Local},
        {group, u"show"_s, u"NAME [--file INI]"_s, 1, 1, {u"--file="_s}, Show},
        {group, u"describe"_s, u"NAME [--file INI]"_s, 1, 1, {u"--file="_s}, Describe},
        {group, u"name-at"_s, u"NAME DATETIME [--file INI]"_s, 2, 2, {u"--file="_s}, NameAt},
        {group,
         u"convert"_s,
         u"NAME TEXT [--from-zone] [--file INI]"_s,
         2,
         2,
         {u"--from-zone"_s, u"--file="_s},
         Convert},
        ZoneInstantsCommand(),
        {group, u"rule"_s, u"OCCURRENCE WEEKDAY MONTH"_s, 3, 3, {}, Rule},
    };
}

}  // namespace ctl
