#include "fuzz/MemoryFiles.h"
#include "timezones/ZoneArithmetic.h"
#include "timezones/ZoneKeys.h"
#include "timezones/ZoneSources.h"

using namespace Qt::StringLiterals;

namespace {

const QDateTime Now(QDate(2026, 6, 15), QTime(12, 0), Qt::UTC);

/// A database of one zone, whose binary value may be anything.
class OneZone final : public platform::ZoneDatabase {
public:
    explicit OneZone(QByteArray tzi) : tzi_(std::move(tzi)) {}

    platform::ZoneRoot Open() const override { return platform::ZoneRoot::Opened; }
    std::optional<QString> SubkeyName(int) const override { return std::nullopt; }
    std::optional<QString> TextValue(const QString&, const QString&) const override { return {}; }
    std::optional<QByteArray> TziValue(const QString&) const override { return tzi_; }
    platform::TimeZoneInformation GetTimeZoneInformation() const override { return {}; }
    QString LocalStandardName() const override { return {}; }
    bool IsWindowsNT() const override { return true; }

private:
    QByteArray tzi_;
};

void RunsAClock(TimeZoneRecord record) {
    record.StandardName = u"Standard"_s;
    record.DaylightName = u"Daylight"_s;
    mduTimeZones::ApplyCurrentOffset(record, Now, 0.0F);
    Require(record.CurrentName == record.StandardName || record.CurrentName == record.DaylightName);
    Require(mduTimeZones::GetClockTime(record, Now).isValid());
    const QString name = mduTimeZones::ZoneNameAtTime(Now, Now, record, 0.0F);
    Require(name == record.StandardName || name == record.DaylightName);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const OneZone zones(
        QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    TimeZoneRecord record;
    mduTimeZones::ReadZoneTZI(zones, u"zone"_s, record);
    Require(size == 44 || record == TimeZoneRecord());
    RunsAClock(record);
    ClockProperties properties;
    mduTimeZones::OverlayZoneKeys(record, properties, Now);
    RunsAClock(record);
    return 0;
}
