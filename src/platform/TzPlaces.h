#pragma once

#include <QByteArray>
#include <QHash>
#include <QStringList>
#include <optional>
#include <vector>

#include "platform/ZoneDatabase.h"

namespace platform {

/// A place in the form of ISO 6709, degrees and minutes with or without seconds: "+404251-0740023"
/// is New York. Nothing for any other text and beyond the poles or the date line.
///
///     ParseTzPlace("+5130-00007")  // 51.5 north, 0.1167 west
///     ParseTzPlace("+9130+00000")  // nothing
std::optional<ZonePlace> ParseTzPlace(const QByteArray& text);

/// The tz database's table of zones: where the main city of each lies, and in which country. It is
/// read once and never follows the file.
class TzPlaces {
public:
    /// @p table holds lines of "countries TAB place TAB identifier", as "zone.tab" does; a line
    /// that begins with "#" or can't be read is left out, and so is the second of an identifier.
    explicit TzPlaces(const QByteArray& table);

    /// The tables of this machine; without them nothing is known.
    static TzPlaces OfThisMachine();

    /// Nothing for an identifier that the table does not hold, such as "UTC".
    std::optional<ZonePlace> PlaceOf(const QByteArray& iana) const;

    /// The identifier that has its name from a city, whatever the case and the accents of its
    /// letters; empty when there is none. "São Paulo" gives "America/Sao_Paulo".
    QByteArray IanaOfCity(const QString& city) const;

    /// The English names of the countries that keep a zone of that CLDR name, in order.
    QStringList CountriesOf(const QString& windowsName) const;
    /// Those of one identifier.
    QStringList CountriesOfIana(const QByteArray& iana) const;

private:
    struct Row {
        QByteArray Iana;
        ZonePlace Place;
        QStringList Countries;
    };
    const Row* Find(const QByteArray& iana) const;
    void Take(const QByteArray& line);

    std::vector<Row> rows_;
    QHash<QByteArray, std::size_t> index_;
    mutable QHash<QString, QStringList> countries_;  ///< by CLDR name; filled when first asked for
};

}  // namespace platform
