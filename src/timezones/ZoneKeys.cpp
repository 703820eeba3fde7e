#include "timezones/ZoneKeys.h"

#include "foundation/Dates.h"
#include "foundation/FileHelpers.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "platform/Files.h"
#include "platform/Services.h"
#include "platform/WallClock.h"
#include "platform/ZoneDatabase.h"
#include "timezones/ExactKeys.h"
#include "timezones/ExactOffset.h"
#include "timezones/TransitionText.h"
#include "timezones/ZoneArithmetic.h"
#include "timezones/ZoneSources.h"

using namespace Qt::StringLiterals;

namespace mduTimeZones {

namespace {

using platform::SYSTEMTIME;

/// The text of a key, by its place in `ZoneKeys`, for a record.
QString KeyText(const TimeZoneRecord& record, qsizetype key, const QDate& today) {
    switch (key) {
        case 0:
            return record.StandardName;
        case 1:
            return TransitionText(record.StandardDate, today);
        case 2:
            return QString::number(record.StandardBias);
        case 3:
            return record.DaylightName;
        case 4:
            return TransitionText(record.DaylightDate, today);
        default:
            return QString::number(record.DaylightBias);
    }
}

/// A date and time is taken as it is, a rule becomes its date; any other text is ignored.
void ReadTransition(SYSTEMTIME& transition, const QString& text, const QDate& today) {
    const auto parsed = mduAPILib::ParseMoment(text, today.year());
    if (parsed && parsed->HasDate) {
        TakeMoment(transition, parsed->Moment);
    } else if (text.contains(u':')) {
        transition = ParseTransitionText(text, transition, today);
    }
}

void ReadMinutes(std::int32_t& minutes, const QString& text) {
    if (mduAPILib::IsNumeric(text)) {
        minutes = mduAPILib::IntegerValue(text);
    }
}

/// A southern zone's daylight time began in the year before, as long as its end is still to come.
void RollDaylightBack(TimeZoneRecord& record, const QDateTime& now) {
    const QDateTime standard = TransitionValue(record.StandardDate, now.date());
    const QDateTime daylight = TransitionValue(record.DaylightDate, now.date());
    const QDateTime present = now.addMSecs(-now.time().msec());
    const bool valid = standard.isValid() && daylight.isValid();
    if (valid && daylight > standard && standard > present) {
        record.DaylightDate.wYear = static_cast<std::int16_t>(record.DaylightDate.wYear - 1);
    }
}

/// Stores a key's text untrimmed, as `mduLib::SavePropertyNow` does.
void PutWhole(const QString& key, const QString& text, ClockProperties& properties) {
    if (mduLib::FindPropertyRow(key, properties) == 0) {
        mduLib::PutPropertyRaw(key, {}, properties);
    }
    properties[mduLib::FindPropertyRow(key, properties)].Value = text;
}

/// A file that gets another zone is told its identifier anew.
void ForgetIdOfAnother(const QString& standardName, ClockProperties& properties) {
    const QString before = ZoneKeyValue(properties, ZoneKeys()[0]);
    const bool isAnother = !before.isEmpty() && before != standardName;
    if (isAnother && !ZoneKeyValue(properties, ZoneIdKey).isEmpty()) {
        PutWhole(ZoneIdKey, {}, properties);
    }
}

/// The identifier of the zone that the file is about to get.
void RenewZoneId(const platform::Services& services, const TimeZoneRecord& record,
                 ClockProperties& properties) {
    ForgetIdOfAnother(record.StandardName, properties);
    FillZoneId(services, record.KeyName, record, properties);
}

/// Reads the texts of the six keys over a record, in the order of the table.
class KeyReader {
public:
    KeyReader(TimeZoneRecord& record, ClockProperties& properties, const QDateTime& now,
              const std::function<void()>& onFilledIn)
        : record_(record), properties_(properties), now_(now), onFilledIn_(onFilledIn) {}

    QStringList Read() {
        const QDate today = now_.date();
        const QString name = Text(0);
        if (!name.isEmpty()) {
            record_.StandardName = name;
            record_.KeyName = name;
        }
        ReadTransition(record_.StandardDate, Text(1), today);
        ReadMinutes(record_.StandardBias, Text(2));
        const QString daylightName = Text(3);
        if (!daylightName.isEmpty()) {
            record_.DaylightName = daylightName;
        }
        ReadTransition(record_.DaylightDate, Text(4), today);
        RollDaylightBack(record_, now_);
        ReadMinutes(record_.DaylightBias, Text(5));
        return filledIn_;
    }

private:
    /// The text of a key; an empty one is filled in from the record first.
    QString Text(qsizetype key) {
        const QString& name = ZoneKeys()[key];
        QString present = ZoneKeyValue(properties_, name);
        if (!present.isEmpty()) {
            return present;
        }
        PutWhole(name, KeyText(record_, key, now_.date()), properties_);
        filledIn_.append(name);
        onFilledIn_();
        return ZoneKeyValue(properties_, name);
    }

    TimeZoneRecord& record_;
    ClockProperties& properties_;
    const QDateTime& now_;
    const std::function<void()>& onFilledIn_;
    QStringList filledIn_;
};

/// The profile of a zone that nothing lists; empty when no such file can be.
QString ProfilePath(const PathTable& paths, const QString& zoneName) {
    if (paths.ProfileFolder.isEmpty() || !mduLib::ZoneNameProblem(zoneName).isEmpty()) {
        return {};
    }
    return paths.ProfileFolder + mduLib::AddIniExtension(mduLib::ZoneFileStem(zoneName));
}

bool WriteFromRecord(platform::Files& files, const TimeZoneRecord& record, const QDate& today,
                     ClockProperties& properties, const QString& path) {
    bool saved = true;
    for (qsizetype key = 0; key < ZoneKeys().size(); ++key) {
        const QString text = KeyText(record, key, today);
        saved = mduLib::SavePropertyNow(files, ZoneKeys()[key], text, properties, path) && saved;
    }
    return saved;
}

bool ReadProfile(const platform::Files& files, const QString& path, ClockProperties& profile) {
    return !path.isEmpty() && mduLib::ReadPropertyFile(files, path, profile);
}

bool WriteFromProfile(platform::Files& files, const QString& profile, ClockProperties& properties,
                      const QString& path) {
    ClockProperties source;
    if (!ReadProfile(files, profile, source)) {
        return true;
    }
    CopyZoneKeys(source, properties);
    return mduLib::WritePropertyFile(files, properties, path);
}

}  // namespace

const QStringList& ZoneKeys() {
    static const QStringList keys = {
        u"Time Zone Standard Name"_s,          u"Time Zone Standard Start Time"_s,
        u"Time Zone Standard GMT (Minutes)"_s, u"Time Zone Daylight Name"_s,
        u"Time Zone Daylight Start Time"_s,    u"Time Zone Daylight GMT (Minutes)"_s};
    return keys;
}

QString ZoneKeyValue(const ClockProperties& properties, const QString& key) {
    const bool missing = mduLib::FindPropertyRow(key, properties) == 0;
    return missing ? QString() : mduLib::GetProperty(key, properties).trimmed();
}

QStringList OverlayZoneKeys(TimeZoneRecord& record, ClockProperties& properties,
                            const QDateTime& now, const std::function<void()>& onFilledIn) {
    return KeyReader(record, properties, now, onFilledIn).Read();
}

bool RenewZoneRules(const TimeZoneRecord& record, ClockProperties& properties, const QDate& today) {
    bool changed = false;
    for (const qsizetype key : {1, 2, 4, 5}) {
        const QString text = KeyText(record, key, today);
        if (ZoneKeyValue(properties, ZoneKeys()[key]) != text) {
            PutWhole(ZoneKeys()[key], text, properties);
            changed = true;
        }
    }
    return changed;
}

bool ReadZoneKeys(const platform::Services& services, TimeZoneRecord& record,
                  ClockProperties& properties, const QString& path) {
    bool saved = true;
    const auto save = [&] {
        saved = mduLib::WritePropertyFile(services.FileSystem, properties, path) && saved;
    };
    const QString source = record.KeyName;
    OverlayZoneKeys(record, properties, services.Clock.Now(), save);
    if (OverlayExactKeys(services, source, record, properties)) {
        save();
    }
    return saved;
}

TimeZoneRecord WriteZoneKeys(const platform::Services& services, const PathTable& paths,
                             ClockProperties& properties, const QString& zoneName,
                             const QString& path, bool* written) {
    TimeZoneRecord record = FindTimeZone(services, paths, zoneName);
    platform::Files& files = services.FileSystem;
    if (!record.KeyName.isEmpty()) {
        RenewZoneId(services, record, properties);
    }
    const bool saved =
        record.KeyName.isEmpty()
            ? WriteFromProfile(files, ProfilePath(paths, zoneName), properties, path)
            : WriteFromRecord(files, record, services.Clock.Now().date(), properties, path);
    if (written != nullptr) {
        *written = saved;
    }
    return record;
}

bool LoadZoneFile(const platform::Files& files, const QString& path, ClockProperties& properties) {
    properties.Reset();
    if (!mduLib::MayRewrite(files, path)) {
        return false;
    }
    mduLib::ReadPropertyFile(files, path, properties);
    return true;
}

bool ApplyZoneToFile(const platform::Services& services, const PathTable& paths,
                     const QString& path, const QString& zoneName) {
    ClockProperties properties;
    if (!LoadZoneFile(services.FileSystem, path, properties)) {
        return false;
    }
    bool written = false;
    WriteZoneKeys(services, paths, properties, zoneName, path, &written);
    return written;
}

void PutZoneKeys(const platform::Services& services, const PathTable& paths,
                 ClockProperties& properties, const QString& zoneName) {
    const TimeZoneRecord record = FindTimeZone(services, paths, zoneName);
    ClockProperties profile;
    if (record.KeyName.isEmpty()) {
        ReadProfile(services.FileSystem, ProfilePath(paths, zoneName), profile);
        CopyZoneKeys(profile, properties);
        return;
    }
    const QDate today = services.Clock.Now().date();
    RenewZoneId(services, record, properties);
    for (qsizetype key = 0; key < ZoneKeys().size(); ++key) {
        PutWhole(ZoneKeys()[key], KeyText(record, key, today), properties);
    }
}

void CopyZoneKeys(const ClockProperties& source, ClockProperties& target) {
    if (mduLib::FindPropertyRow(ZoneKeys()[0], source) != 0) {
        ForgetIdOfAnother(ZoneKeyValue(source, ZoneKeys()[0]), target);
    }
    for (const QString& key : ZoneKeys() + QStringList{ZoneRulesKey, ZoneIdKey}) {
        if (mduLib::FindPropertyRow(key, source) != 0) {
            mduLib::PutPropertyRaw(key, mduLib::GetPropertyRaw(key, source), target);
        }
    }
}

TimeZoneRecord LoadZone(const platform::Services& services, const PathTable& paths,
                        const QString& zoneName, ClockProperties& properties, const QString& path,
                        bool* written) {
    TimeZoneRecord record = FindTimeZone(services, paths, zoneName);
    const bool saved = ReadZoneKeys(services, record, properties, path);
    if (written != nullptr) {
        *written = saved;
    }
    if (record.StandardName.isEmpty()) {
        record.StandardName = zoneName;
    }
    if (record.KeyName.isEmpty()) {
        record.KeyName = zoneName;
    }
    ApplyPresentOffset(services, record);
    return record;
}

}  // namespace mduTimeZones
