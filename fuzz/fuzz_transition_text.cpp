#include <QByteArrayList>

#include "foundation/PropertyLookup.h"
#include "fuzz/MemoryFiles.h"
#include "timezones/TransitionText.h"
#include "timezones/ZoneArithmetic.h"
#include "timezones/ZoneKeys.h"

using namespace Qt::StringLiterals;
using platform::SYSTEMTIME;

namespace {

const QDateTime Now(QDate(2026, 6, 15), QTime(12, 0), Qt::UTC);

// What was read as a date is written as a text that reads as the same date.
void ReadsBack(const QString& text) {
    const SYSTEMTIME date = mduTimeZones::ParseTransitionDate(text, true, Now.date());
    if (date.wYear != 0) {
        const QString written = mduTimeZones::TransitionText(date, Now.date());
        Require(mduTimeZones::ParseTransitionDate(written, true, Now.date()) == date);
    }
}

// A rule becomes a date, or stays a zone without daylight time.
void ReadsRule(const QString& text) {
    for (std::int16_t weekday = 0; weekday < 7; ++weekday) {
        SYSTEMTIME transition;
        transition.wDayOfWeek = weekday;
        const SYSTEMTIME read = mduTimeZones::ParseTransitionText(text, transition, Now.date());
        Require(read.wDayOfWeek == weekday);
        Require(read.wYear == 0 ? read.wDay == 0 && read.wMonth == 0
                                : QDate(read.wYear, read.wMonth, read.wDay).isValid());
    }
}

// The texts as the values of the six keys: a second load gives what the first gave.
void LoadsTwice(const QByteArrayList& lines) {
    ClockProperties properties;
    for (qsizetype key = 0; key < mduTimeZones::ZoneKeys().size(); ++key) {
        mduLib::AppendProperty({}, mduTimeZones::ZoneKeys()[key],
                               QString::fromUtf8(lines.value(key)), properties);
    }
    TimeZoneRecord first;
    first.StandardName = u"Standard"_s;
    first.DaylightName = u"Daylight"_s;
    first.StandardDate = {0, 10, 0, 5, 3, 0, 0, 0};
    first.DaylightDate = {0, 3, 0, 5, 2, 0, 0, 0};
    TimeZoneRecord second = first;
    mduTimeZones::OverlayZoneKeys(first, properties, Now);
    mduTimeZones::OverlayZoneKeys(second, properties, Now);
    Require(first == second);
    mduTimeZones::ApplyCurrentOffset(first, Now, 0.0F);
    Require(mduTimeZones::GetClockTime(first, Now).isValid());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const QByteArray input(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QString text = QString::fromUtf8(input);
    ReadsBack(text);
    ReadsRule(text);
    LoadsTwice(input.split('\n'));
    return 0;
}
