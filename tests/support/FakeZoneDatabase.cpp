#include "support/FakeZoneDatabase.h"

#include <QtEndian>

using namespace Qt::StringLiterals;

namespace {

void AppendInt(QByteArray& bytes, int value) {
    char raw[4];
    qToLittleEndian<qint32>(value, raw);
    bytes.append(raw, 4);
}

void AppendTransition(QByteArray& bytes, const platform::SYSTEMTIME& time) {
    for (const std::int16_t field : {time.wYear, time.wMonth, time.wDayOfWeek, time.wDay,
                                     time.wHour, time.wMinute, time.wSecond, time.wMilliseconds}) {
        char raw[2];
        qToLittleEndian<qint16>(field, raw);
        bytes.append(raw, 2);
    }
}

}  // namespace

void FakeZoneDatabase::Add(const QString& name, int bias, int standardBias, int daylightBias,
                           const platform::SYSTEMTIME& standardDate,
                           const platform::SYSTEMTIME& daylightDate) {
    QString daylightName = name;
    daylightName.replace(u"Standard"_s, u"Daylight"_s);
    Subkeys.push_back(
        {name,
         {{u"Display"_s, u"(GMT) "_s + name}, {u"Std"_s, name}, {u"Dlt"_s, daylightName}},
         TziBytes(bias, standardBias, daylightBias, standardDate, daylightDate)});
}

QByteArray FakeZoneDatabase::TziBytes(int bias, int standardBias, int daylightBias,
                                      const platform::SYSTEMTIME& standardDate,
                                      const platform::SYSTEMTIME& daylightDate) {
    QByteArray bytes;
    AppendInt(bytes, bias);
    AppendInt(bytes, standardBias);
    AppendInt(bytes, daylightBias);
    AppendTransition(bytes, standardDate);
    AppendTransition(bytes, daylightDate);
    return bytes;
}

const FakeZoneDatabase::Zone* FakeZoneDatabase::Find(const QString& subkey) const {
    for (const Zone& zone : Subkeys) {
        if (zone.Subkey == subkey) {
            return &zone;
        }
    }
    return nullptr;
}

std::optional<QString> FakeZoneDatabase::SubkeyName(int index) const {
    if (index < 0 || index >= static_cast<int>(Subkeys.size())) {
        return std::nullopt;
    }
    return Subkeys[static_cast<std::size_t>(index)].Subkey;
}

std::optional<QString> FakeZoneDatabase::TextValue(const QString& subkey,
                                                   const QString& name) const {
    const Zone* zone = Find(subkey);
    if (zone == nullptr || !zone->Texts.contains(name)) {
        return std::nullopt;
    }
    return zone->Texts.at(name);
}

std::optional<QByteArray> FakeZoneDatabase::TziValue(const QString& subkey) const {
    const Zone* zone = Find(subkey);
    return zone == nullptr ? std::nullopt : zone->Tzi;
}

std::optional<platform::ZonePlace> FakeZoneDatabase::Place(const QString& subkey) const {
    const auto found = Places.find(subkey);
    return found == Places.end() ? std::nullopt : std::optional(found->second);
}

QStringList FakeZoneDatabase::Countries(const QString& subkey) const {
    const auto found = CountryNames.find(subkey);
    return found == CountryNames.end() ? QStringList() : found->second;
}
