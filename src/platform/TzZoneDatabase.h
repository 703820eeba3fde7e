#pragma once

#include <QHash>
#include <vector>

#include "platform/TzPlaces.h"
#include "platform/TzRule.h"
#include "platform/TzWindowsZones.h"
#include "platform/WallClock.h"
#include "platform/ZoneDatabase.h"

namespace platform {

/// The zone database of a machine that has the tz database: one subkey for each zone that CLDR
/// names, with the rules of the wall clock's present year.
///
/// "Std" is the subkey's name, "Dlt" the same with "Standard" made "Daylight", and "Display" tells
/// the standard offset and the cities: "(GMT-05:00) New York, Toronto, Washington, Miami,
/// Montréal".
///
/// The machine's own zone goes by its CLDR name where the zone behind that name keeps the same time
/// all through the year. Where it does not, or where there is no such name, the database ends with
/// one more subkey, named by the zone's city ("Vancouver"), so that the local clock is right. A
/// machine whose zone can't be named keeps the wall clock's present offset as "Local time".
class TzZoneDatabase : public ZoneDatabase {
public:
    /// @param localIana the machine's zone; empty for the real one. One that is unknown is UTC
    /// while the wall clock shows that, else "Local time"; so is the real one, when its name does
    /// not keep the offset of the wall clock at any time of the year.
    explicit TzZoneDatabase(const WallClock& clock, QByteArray localIana = {});

    /// The machine has moved to another zone, as the constructor takes one.
    void MoveTo(const QByteArray& localIana) {
        namedIana_ = localIana;
        local_.reset();
    }

    ZoneRoot Open() const override { return ZoneRoot::Opened; }
    std::optional<QString> SubkeyName(int index) const override;
    std::optional<QString> TextValue(const QString& subkey, const QString& name) const override;
    std::optional<QByteArray> TziValue(const QString& subkey) const override;

    /// The place of the city that gives the zone's identifier its name, such as New York for
    /// "Eastern Standard Time"; of the first city in the zone where the identifier names none.
    std::optional<ZonePlace> Place(const QString& subkey) const override;
    QStringList Countries(const QString& subkey) const override;

    /// Result 0 for a zone that keeps one offset through the present year, else 1 or 2; 1 for
    /// "Local time". Both names are those of the machine's subkey.
    std::optional<ZoneSpan> SpanAt(const QString& id, std::int64_t instant) const override;
    /// "America/New_York" for "Eastern Standard Time", and the present spelling where the database
    /// has renamed a zone ("Asia/Kolkata"). A city is one that names a zone ("Oslo"), or one of
    /// those that "Display" tells ("Mumbai").
    QString IdOf(const QString& name) const override;
    std::optional<QByteArray> TziOfId(const QString& id) const override;

    TimeZoneInformation GetTimeZoneInformation() const override;
    QString LocalStandardName() const override;
    QString Edition() const override;
    bool IsWindowsNT() const override { return true; }

    /// The tz identifier behind a subkey, "Local time" for itself; empty for a name that is no
    /// subkey.
    QByteArray IanaOf(const QString& subkey) const;

private:
    struct LocalSubkey {
        QString Name;
        QByteArray Iana;
        bool IsExtra = false;
    };

    qint64 Present() const;
    const TzYear& YearOf(const QByteArray& iana) const;
    const LocalSubkey& Local() const;
    LocalSubkey MakeLocalSubkey(const QByteArray& iana) const;
    QByteArray LocalIana() const;
    TzRule RuleOf(const QByteArray& iana) const;
    QString CitiesOf(const QString& subkey) const;
    QByteArray IanaOfCity(const QString& city) const;
    const TzPlaces& Places() const;

    const WallClock& clock_;
    QByteArray namedIana_;
    bool mayBeNameless_ = false;
    std::vector<TzWindowsZone> zones_;
    QHash<QString, std::size_t> index_;

    // Reading a zone is slow, so each is read when it is first asked for, once a year.
    mutable int year_ = 0;
    mutable QHash<QByteArray, TzYear> years_;
    mutable std::optional<LocalSubkey> local_;
    mutable std::optional<TzPlaces> places_;
};

}  // namespace platform
