#pragma once

#include <QJsonObject>

#include "ctl/Command.h"
#include "timezones/TimeZoneRecord.h"

namespace ctl {

/// A record by its field names, the two dates as objects of their eight fields; null for an empty
/// record.
QJsonValue RecordAsJson(const TimeZoneRecord& record);

/// The record that "zones show" tells: the zone of the first argument, overlaid with the keys of
/// the option "--file", with its present offset. @p saved tells whether keys that had to be filled
/// in reached the file.
TimeZoneRecord RecordAskedFor(const Context& context, bool& saved);

}  // namespace ctl
