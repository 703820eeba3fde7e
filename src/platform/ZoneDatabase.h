#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <array>
#include <cstdint>
#include <limits>
#include <optional>

namespace platform {

/// A point in time or a yearly rule, in the eight 16-bit fields of the system's structure.
/// With `wYear` 0 it is a rule: `wMonth` 1 to 12, `wDayOfWeek` 0 (Sunday) to 6, `wDay` the
/// occurrence (1 to 4 the first to the fourth, 5 the last) and a time of day. With any other
/// `wYear` it is a date and `wDay` is the day of the month. The fields are signed here, because
/// moving a rule back by a year gives `wYear` -1.
struct SYSTEMTIME {
    std::int16_t wYear = 0;
    std::int16_t wMonth = 0;
    std::int16_t wDayOfWeek = 0;
    std::int16_t wDay = 0;
    std::int16_t wHour = 0;
    std::int16_t wMinute = 0;
    std::int16_t wSecond = 0;
    std::int16_t wMilliseconds = 0;

    bool operator==(const SYSTEMTIME&) const = default;
};

/// What the machine's own zone is, as `GetTimeZoneInformation` tells it. The two biases are minutes
/// relative to `Bias`; zone time plus (`Bias` + bias) gives GMT, so west is positive.
struct TimeZoneInformation {
    /// 0: the zone keeps no daylight time; 1: standard time is in force; 2: daylight time is in
    /// force; -1: the call failed.
    int Result = -1;
    std::int32_t Bias = 0;
    QString StandardName;  ///< at most 32 characters
    SYSTEMTIME StandardDate;
    std::int32_t StandardBias = 0;
    QString DaylightName;  ///< at most 32 characters
    SYSTEMTIME DaylightDate;
    std::int32_t DaylightBias = 0;
};

/// A longer name of a subkey does not fit the buffer of 32 characters with its terminator.
inline constexpr qsizetype LongestSubkey = 31;

/// The outcome of opening the zone database.
enum class ZoneRoot {
    Opened,
    Missing,    ///< the root can't be opened
    Unreadable  ///< the root opens, but it can't be asked what it holds
};

/// A place on the earth, in degrees: north and east are positive.
struct ZonePlace {
    double Latitude = 0;
    double Longitude = 0;

    bool operator==(const ZonePlace&) const = default;
};

/// How long a zone's clock runs with one offset. Instants are whole seconds since 1970 in GMT. The
/// span that follows may have the same offset: a change of the law that no clock showed.
struct ZoneSpan {
    static constexpr std::int64_t Always = std::numeric_limits<std::int64_t>::max();

    std::int32_t Offset = 0;       ///< seconds east of GMT; not always whole minutes
    bool Daylight = false;         ///< the half of the year with the later clock
    std::int64_t Since = -Always;  ///< its first second; `-Always` when there was none before
    std::int64_t Until = Always;   ///< the first second of the next; `Always` when there is none

    bool operator==(const ZoneSpan&) const = default;
};

/// The system's zone database: subkeys (one a zone) with text values and the binary "TZI".
class ZoneDatabase {
public:
    virtual ~ZoneDatabase() = default;

    virtual ZoneRoot Open() const = 0;

    /// The name of the subkey at @p index, from 0; nothing behind the last.
    virtual std::optional<QString> SubkeyName(int index) const = 0;

    /// A text value of a subkey: "Display", "Std" or "Dlt". Nothing if it can't be read.
    virtual std::optional<QString> TextValue(const QString& subkey, const QString& name) const = 0;

    /// The value "TZI" of a subkey: 44 bytes, little-endian. `Bias`, `StandardBias`, `DaylightBias`
    /// (signed 32-bit minutes, the last two relative to the first) and the two transitions
    /// `StandardDate` and `DaylightDate`, 16 bytes each. Nothing if it can't be read.
    virtual std::optional<QByteArray> TziValue(const QString& subkey) const = 0;

    /// Where the main city of a subkey's zone lies; nothing where the machine can't tell.
    virtual std::optional<ZonePlace> Place(const QString&) const { return std::nullopt; }

    /// The English names of the countries that keep the time of a subkey's zone, as far as the
    /// machine can tell.
    virtual QStringList Countries(const QString&) const { return {}; }

    virtual TimeZoneInformation GetTimeZoneInformation() const = 0;

    /// The subkey of the machine's own zone; empty if there is none.
    virtual QString LocalStandardName() const = 0;

    /// The span that holds @p instant in the zone of an identifier such as "America/New_York"; an
    /// empty one is the machine's own zone. Nothing where the database does not know it.
    virtual std::optional<ZoneSpan> SpanAt(const QString& id, std::int64_t instant) const {
        Q_UNUSED(id)
        Q_UNUSED(instant)
        return std::nullopt;
    }

    /// The identifier behind a subkey, or of a city's zone ("Oslo"); empty where none is known. A
    /// city that lends its name to no zone gives that of the zone that it lies in.
    virtual QString IdOf(const QString&) const { return {}; }

    /// What `TziValue` is for a subkey, for an identifier and the present year.
    virtual std::optional<QByteArray> TziOfId(const QString&) const { return std::nullopt; }

    /// The edition of the database: a year, and a letter that tells the editions of one year apart,
    /// as in "2025b". Empty when it does not tell.
    virtual QString Edition() const { return {}; }

    /// Whether the platform is of the NT family: the zone database and the date rules differ.
    virtual bool IsWindowsNT() const = 0;
};

}  // namespace platform
