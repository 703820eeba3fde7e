#include "Cities.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include "../stock/CountryName.h"
#include "KnownCities.h"
#include "platform/TzFolder.h"
#include "platform/TzPlaces.h"

using namespace Qt::StringLiterals;

namespace profiles {

namespace {

QString Part(const QByteArray& iana, int fromEnd) {
    return QString::fromUtf8(iana).section(u'/', -fromEnd, -fromEnd).replace(u'_', u' ');
}

class Gathering {
public:
    void TakeKnown(std::span<const KnownCity> cities) {
        for (const KnownCity& city : cities) {
            Take({QString::fromUtf8(city.Name),
                  stock::CountryName(QString::fromLatin1(city.Country)), city.Iana, city.Place});
        }
    }

    void TakeTable(const QByteArray& table) {
        for (const QByteArray& line : table.split('\n')) {
            const QList<QByteArray> parts = line.trimmed().split('\t');
            const auto place = parts.size() < 3 ? std::nullopt : platform::ParseTzPlace(parts[1]);
            if (!line.startsWith('#') && place && !identifiers_.contains(parts[2])) {
                identifiers_.insert(parts[2]);
                const QString country = QString::fromLatin1(parts[0].first(2));
                Take({Part(parts[2], 1), stock::CountryName(country), parts[2], *place});
            }
        }
    }

    std::vector<City> Cities;

private:
    void Take(City city) {
        city.Name = FitForFile(city.Name);
        if (city.Name.isEmpty() || !platform::TzZone(city.Iana).isValid()) {
            return;
        }
        if (const City* other = Find(city.Name)) {
            if (other->Country == city.Country && other->Iana == city.Iana) {
                return;
            }
            const bool abroad = other->Country != city.Country;
            city.Name += u" ("_s + FitForFile(abroad ? city.Country : Part(city.Iana, 2)) + u')';
        }
        if (Find(city.Name) == nullptr) {
            index_.insert(city.Name.toCaseFolded(), Cities.size());
            Cities.push_back(city);
        }
    }

    const City* Find(const QString& name) const {
        const auto found = index_.constFind(name.toCaseFolded());
        return found == index_.cend() ? nullptr : &Cities[*found];
    }

    QHash<QString, std::size_t> index_;
    QSet<QByteArray> identifiers_;
};

}  // namespace

std::vector<City> ListCities(const QByteArray& table) {
    Gathering gathering;
    gathering.TakeKnown(KnownCapitals());
    gathering.TakeTable(table);
    gathering.TakeKnown(KnownGreatCities());
    return gathering.Cities;
}

// "@" parts the names of a list; the program's own file is no city's.
QString FitForFile(QString name) {
    static const QRegularExpression unsuited(u"[\\\\/:*?\"<>|,=^@\\x00-\\x1f]|\\.(?=\\.)"_s);
    static const QRegularExpression ends(u"^[. ]+|[. ]+$"_s);
    name = name.remove(unsuited).simplified().remove(ends);
    return name.compare("Tempolark"_L1, Qt::CaseInsensitive) == 0 ? QString() : name;
}

}  // namespace profiles
