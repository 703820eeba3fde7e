#include "platform/TzZoneDatabase.h"

#include <QDateTime>
#include <algorithm>
#include <cstdlib>

#include "platform/TzAliases.h"
#include "platform/TzFolder.h"
#include "platform/TzSpans.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

/// Stands for the identifier of a zone that has none, and names its subkey.
constexpr char namelessZone[] = "Local time";

/// The identifier as the database knows it: the environment may hold ":Europe/Paris" or a full
/// path. Empty when that is no zone.
QByteArray UsableIana(QByteArray iana) {
    if (iana.startsWith(':')) {
        iana.remove(0, 1);
    }
    const QByteArray folder = "/zoneinfo/";
    if (const qsizetype at = iana.indexOf(folder); at >= 0) {
        iana.remove(0, at + folder.size());
    }
    return !iana.isEmpty() && TzZone(iana).isValid() ? iana : QByteArray();
}

bool KeepsOffset(const TzYear& year, int offset) {
    return year.FirstOffset == offset ||
           std::any_of(year.Changes.begin(), year.Changes.end(),
                       [&](const TzChange& change) { return change.After == offset; });
}

/// "America/North_Dakota/New_Salem" gives "New Salem".
QString CityOf(const QByteArray& iana) {
    const QString name = QString::fromUtf8(iana).section(u',', 0, 0);
    return name.section(u'/', -1).replace(u'_', u' ').left(LongestSubkey);
}

QString DaylightNameOf(QString standardName) {
    return standardName.replace(u"Standard"_s, u"Daylight"_s);
}

QString DisplayText(const TzRule& rule, const QString& cities) {
    const int bias = rule.Bias;
    const auto twoDigits = [](int number) {
        return QString::number(number).rightJustified(2, u'0');
    };
    return u"(GMT"_s + (bias > 0 ? u'-' : u'+') + twoDigits(std::abs(bias) / 60) + u':' +
           twoDigits(std::abs(bias) % 60) + u") "_s + cities;
}

}  // namespace

TzZoneDatabase::TzZoneDatabase(const WallClock& clock, QByteArray localIana)
    : clock_(clock), zones_(TzWindowsZones()) {
    const bool told = !localIana.isEmpty();
    const QByteArray usable =
        UsableIana(told ? std::move(localIana) : QTimeZone::systemTimeZoneId());
    mayBeNameless_ = !told || usable.isEmpty();
    namedIana_ = usable.isEmpty() ? QByteArray("UTC") : usable;
    for (std::size_t i = 0; i < zones_.size(); ++i) {
        index_.insert(zones_[i].Name, i);
    }
}

std::optional<QString> TzZoneDatabase::SubkeyName(int index) const {
    const int count = static_cast<int>(zones_.size());
    if (index >= 0 && index < count) {
        return zones_[static_cast<std::size_t>(index)].Name;
    }
    if (index == count && Local().IsExtra) {
        return Local().Name;
    }
    return std::nullopt;
}

QByteArray TzZoneDatabase::IanaOf(const QString& subkey) const {
    if (index_.contains(subkey)) {
        return TzDefaultIana(subkey);
    }
    return Local().IsExtra && subkey == Local().Name ? Local().Iana : QByteArray();
}

QString TzZoneDatabase::CitiesOf(const QString& subkey) const {
    const auto found = index_.constFind(subkey);
    return found == index_.cend() ? subkey : zones_[*found].Cities;
}

std::optional<QString> TzZoneDatabase::TextValue(const QString& subkey, const QString& name) const {
    const bool known = index_.contains(subkey) || (Local().IsExtra && subkey == Local().Name);
    if (!known) {
        return std::nullopt;
    }
    if (name == "Std"_L1) {
        return subkey;
    }
    if (name == "Dlt"_L1) {
        return DaylightNameOf(subkey);
    }
    if (name == "Display"_L1) {
        return DisplayText(RuleOf(IanaOf(subkey)), CitiesOf(subkey));
    }
    return std::nullopt;
}

std::optional<QByteArray> TzZoneDatabase::TziValue(const QString& subkey) const {
    const QByteArray iana = IanaOf(subkey);
    if (iana.isEmpty()) {
        return std::nullopt;
    }
    return TziBytes(RuleOf(iana));
}

const TzPlaces& TzZoneDatabase::Places() const {
    if (!places_) {
        places_ = TzPlaces::OfThisMachine();
    }
    return *places_;
}

std::optional<ZonePlace> TzZoneDatabase::Place(const QString& subkey) const {
    const QByteArray iana = IanaOf(subkey);
    for (const QByteArray& id : {iana, TzPresentId(iana)}) {
        if (const auto place = Places().PlaceOf(id)) {
            return place;
        }
    }
    for (const QByteArray& id : QTimeZone::windowsIdToIanaIds(subkey.toUtf8())) {
        if (const auto place = Places().PlaceOf(id); place && TzWindowsName(id) == subkey) {
            return place;
        }
    }
    return std::nullopt;
}

QStringList TzZoneDatabase::Countries(const QString& subkey) const {
    const bool isOwn = !index_.contains(subkey);
    return isOwn ? Places().CountriesOfIana(IanaOf(subkey)) : Places().CountriesOf(subkey);
}

// "Local time" is no identifier: such a zone keeps the offset that the clock has.
std::optional<ZoneSpan> TzZoneDatabase::SpanAt(const QString& id, std::int64_t instant) const {
    const QByteArray iana = id.isEmpty() ? Local().Iana : id.toUtf8();
    if (id.isEmpty() && iana == namelessZone) {
        return ZoneSpan{.Offset = clock_.OffsetFromGmt()};
    }
    const QTimeZone zone = TzZone(iana);
    return zone.isValid() ? std::optional(TzSpanAt(zone, instant)) : std::nullopt;
}

QByteArray TzZoneDatabase::IanaOfCity(const QString& city) const {
    QByteArray named = Places().IanaOfCity(city);
    if (!named.isEmpty()) {
        return named;
    }
    const auto found = std::find_if(zones_.begin(), zones_.end(), [&](const TzWindowsZone& zone) {
        return zone.Cities.split(u", "_s).contains(city, Qt::CaseInsensitive);
    });
    return found == zones_.end() ? QByteArray() : TzDefaultIana(found->Name);
}

QString TzZoneDatabase::IdOf(const QString& name) const {
    QByteArray iana = IanaOf(name);
    iana = iana.isEmpty() ? IanaOfCity(name) : iana;
    const QByteArray present = TzPresentId(iana);
    iana = !present.isEmpty() && TzZone(present).isValid() ? present : iana;
    return !iana.isEmpty() && iana != namelessZone && TzZone(iana).isValid()
               ? QString::fromUtf8(iana)
               : QString();
}

std::optional<QByteArray> TzZoneDatabase::TziOfId(const QString& id) const {
    const QByteArray iana = id.toUtf8();
    return !iana.isEmpty() && TzZone(iana).isValid() ? std::optional(TziBytes(RuleOf(iana)))
                                                     : std::nullopt;
}

TimeZoneInformation TzZoneDatabase::GetTimeZoneInformation() const {
    const QByteArray iana = Local().Iana;
    const TzRule rule = RuleOf(iana);
    const int unchanging = iana == namelessZone ? 1 : 0;
    TimeZoneInformation information;
    information.Result = !rule.KeepsDaylight ? unchanging : rule.DaylightNow ? 2 : 1;
    information.Bias = rule.Bias;
    information.StandardName = LocalStandardName();
    information.StandardDate = rule.StandardDate;
    information.DaylightName = DaylightNameOf(LocalStandardName());
    information.DaylightDate = rule.DaylightDate;
    information.DaylightBias = rule.DaylightBias;
    return information;
}

QString TzZoneDatabase::Edition() const {
    return TzEdition();
}

QString TzZoneDatabase::LocalStandardName() const {
    return Local().Name;
}

qint64 TzZoneDatabase::Present() const {
    return clock_.Instant();
}

const TzYear& TzZoneDatabase::YearOf(const QByteArray& iana) const {
    const int year = clock_.Now().date().year();
    if (year != year_) {
        year_ = year;
        years_.clear();
        local_.reset();
    }
    auto found = years_.find(iana);
    if (found == years_.end()) {
        found = years_.insert(iana, ReadTzYear(TzZone(iana), year));
    }
    return *found;
}

TzRule TzZoneDatabase::RuleOf(const QByteArray& iana) const {
    if (iana == namelessZone) {
        return MakeTzRule({0, clock_.OffsetFromGmt(), {}}, Present());
    }
    return MakeTzRule(YearOf(iana), Present());
}

// The clock takes its offset from the system, which can read a zone that has no name or another
// one: TZ=CET-1CEST, a copy of a zone's file.
QByteArray TzZoneDatabase::LocalIana() const {
    const TzYear& year = YearOf(namedIana_);
    const bool nameless = mayBeNameless_ && !KeepsOffset(year, clock_.OffsetFromGmt());
    return nameless ? QByteArray(namelessZone) : namedIana_;
}

const TzZoneDatabase::LocalSubkey& TzZoneDatabase::Local() const {
    const QByteArray iana = LocalIana();  // a new year may part the machine's zone from its name
    if (!local_ || local_->Iana != iana) {
        local_ = MakeLocalSubkey(iana);
    }
    return *local_;
}

TzZoneDatabase::LocalSubkey TzZoneDatabase::MakeLocalSubkey(const QByteArray& iana) const {
    const QString name = TzWindowsName(iana);
    if (index_.contains(name)) {
        const TzYear own = YearOf(iana);
        if (own == YearOf(TzDefaultIana(name)))
            return {name, iana, false};
    }
    const QString city = CityOf(iana);
    return {index_.contains(city) ? city.left(LongestSubkey - 8) + u" (local)"_s : city, iana,
            true};
}

}  // namespace platform
