#include "platform/TzZoneDatabase.h"

#include <QDateTime>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr qsizetype longestSubkey = 31;

/// The identifier as QTimeZone knows it: the environment may hold ":Europe/Paris" or a full path.
QByteArray UsableIana(QByteArray iana) {
    if (iana.startsWith(':')) {
        iana.remove(0, 1);
    }
    const QByteArray folder = "/zoneinfo/";
    if (const qsizetype at = iana.indexOf(folder); at >= 0) {
        iana.remove(0, at + folder.size());
    }
    return QTimeZone(iana).isValid() ? iana : QByteArray("UTC");
}

/// "America/North_Dakota/New_Salem" gives "New Salem".
QString CityOf(const QByteArray& iana) {
    const QString name = QString::fromUtf8(iana).section(u',', 0, 0);
    return name.section(u'/', -1).replace(u'_', u' ').left(longestSubkey);
}

QString DaylightNameOf(QString standardName) {
    return standardName.replace(u"Standard"_s, u"Daylight"_s);
}

QString DisplayText(const TzRule& rule, const QString& cities) {
    const int bias = rule.Bias + rule.StandardBias;
    const auto twoDigits = [](int number) {
        return QString::number(number).rightJustified(2, u'0');
    };
    return u"(GMT"_s + (bias > 0 ? u'-' : u'+') + twoDigits(std::abs(bias) / 60) + u':' +
           twoDigits(std::abs(bias) % 60) + u") "_s + cities;
}

}  // namespace

TzZoneDatabase::TzZoneDatabase(const WallClock& clock, QByteArray localIana)
    : clock_(clock),
      localIana_(
          UsableIana(localIana.isEmpty() ? QTimeZone::systemTimeZoneId() : std::move(localIana))),
      zones_(TzWindowsZones()) {
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
    return Local().IsExtra && subkey == Local().Name ? localIana_ : QByteArray();
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

TimeZoneInformation TzZoneDatabase::GetTimeZoneInformation() const {
    const TzRule rule = RuleOf(localIana_);
    TimeZoneInformation information;
    information.Result = !rule.KeepsDaylight ? 0 : rule.DaylightNow ? 2 : 1;
    information.Bias = rule.Bias;
    information.StandardName = LocalStandardName();
    information.StandardDate = rule.StandardDate;
    information.StandardBias = rule.StandardBias;
    information.DaylightName = DaylightNameOf(LocalStandardName());
    information.DaylightDate = rule.DaylightDate;
    information.DaylightBias = rule.DaylightBias;
    return information;
}

QString TzZoneDatabase::LocalStandardName() const {
    return Local().Name;
}

qint64 TzZoneDatabase::Present() const {
    return clock_.Now().toSecsSinceEpoch() - clock_.OffsetFromGmt();
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
        found = years_.insert(iana, ReadTzYear(QTimeZone(iana), year));
    }
    return *found;
}

TzRule TzZoneDatabase::RuleOf(const QByteArray& iana) const {
    return MakeTzRule(YearOf(iana), Present());
}

const TzZoneDatabase::LocalSubkey& TzZoneDatabase::Local() const {
    YearOf(localIana_);  // a new year may part the machine's zone from its name
    if (!local_) {
        local_ = MakeLocalSubkey();
    }
    return *local_;
}

TzZoneDatabase::LocalSubkey TzZoneDatabase::MakeLocalSubkey() const {
    const QString name = TzWindowsName(localIana_);
    if (index_.contains(name)) {
        const TzYear own = YearOf(localIana_);
        if (own == YearOf(TzDefaultIana(name)))
            return {name, false};
    }
    const QString city = CityOf(localIana_);
    return {index_.contains(city) ? city.left(longestSubkey - 8) + u" (local)"_s : city, true};
}

}  // namespace platform
