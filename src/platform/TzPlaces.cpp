#include "platform/TzPlaces.h"

#include <QLocale>
#include <algorithm>
#include <cmath>

#include "platform/TzFolder.h"
#include "platform/TzWindowsZones.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

/// angle = sign degrees minutes [seconds], with two digits for each of the last two
std::optional<double> Angle(const QByteArray& text, int degreeDigits) {
    const QByteArray digits = text.mid(1);
    const bool seconds = digits.size() == degreeDigits + 4;
    bool isNumber = false;
    digits.toUInt(&isNumber);
    if (!isNumber || (!seconds && digits.size() != degreeDigits + 2)) {
        return std::nullopt;
    }
    const double size = digits.left(degreeDigits).toDouble() +
                        digits.mid(degreeDigits, 2).toDouble() / 60 +
                        (seconds ? digits.right(2).toDouble() / 3600 : 0);
    return text.startsWith('-') ? -size : size;
}

bool IsSign(char character) {
    return character == '+' || character == '-';
}

QStringList CountryNames(const QByteArray& codes) {
    QStringList names;
    for (const QByteArray& code : codes.split(',')) {
        const QLocale::Territory country = QLocale::codeToTerritory(QString::fromLatin1(code));
        if (country != QLocale::AnyTerritory) {
            names += QLocale::territoryToString(country);
        }
    }
    return names;
}

/// The letters alone, in small ones: "Sao_Paulo" and "São Paulo" give "saopaulo".
QString PlainName(const QString& name) {
    QString plain;
    for (const QChar character : name.normalized(QString::NormalizationForm_D)) {
        if (character.isLetter()) {
            plain += character.toLower();
        }
    }
    return plain;
}

}  // namespace

std::optional<ZonePlace> ParseTzPlace(const QByteArray& text) {
    qsizetype second = 1;
    while (second < text.size() && !IsSign(text[second])) {
        ++second;
    }
    if (text.isEmpty() || !IsSign(text[0]) || second == text.size()) {
        return std::nullopt;
    }
    const std::optional<double> latitude = Angle(text.left(second), 2);
    const std::optional<double> longitude = Angle(text.mid(second), 3);
    if (!latitude || !longitude || std::abs(*latitude) > 90 || std::abs(*longitude) > 180) {
        return std::nullopt;
    }
    return ZonePlace{*latitude, *longitude};
}

TzPlaces::TzPlaces(const QByteArray& table) {
    for (const QByteArray& line : table.split('\n')) {
        if (!line.startsWith('#')) {
            Take(line);
        }
    }
}

// The first table has a line for each country, the second knows a few more of today's identifiers.
TzPlaces TzPlaces::OfThisMachine() {
    return TzPlaces(TzFile(u"zone.tab"_s) + '\n' + TzFile(u"zone1970.tab"_s));
}

void TzPlaces::Take(const QByteArray& line) {
    const QList<QByteArray> parts = line.trimmed().split('\t');
    if (parts.size() < 3 || index_.contains(parts[2])) {
        return;
    }
    if (const auto place = ParseTzPlace(parts[1])) {
        index_.insert(parts[2], rows_.size());
        rows_.push_back({parts[2], *place, CountryNames(parts[0])});
    }
}

const TzPlaces::Row* TzPlaces::Find(const QByteArray& iana) const {
    const auto found = index_.constFind(iana);
    return found == index_.cend() ? nullptr : &rows_[*found];
}

std::optional<ZonePlace> TzPlaces::PlaceOf(const QByteArray& iana) const {
    const Row* row = Find(iana);
    return row == nullptr ? std::nullopt : std::optional(row->Place);
}

QByteArray TzPlaces::IanaOfCity(const QString& city) const {
    const QString wanted = PlainName(city);
    const auto found = std::find_if(rows_.begin(), rows_.end(), [&](const Row& row) {
        return PlainName(QString::fromUtf8(row.Iana).section(u'/', -1)) == wanted;
    });
    return found == rows_.end() ? QByteArray() : found->Iana;
}

QStringList TzPlaces::CountriesOfIana(const QByteArray& iana) const {
    const Row* row = Find(iana);
    return row == nullptr ? QStringList() : row->Countries;
}

QStringList TzPlaces::CountriesOf(const QString& windowsName) const {
    if (countries_.isEmpty()) {
        for (const Row& row : rows_) {
            countries_[TzWindowsName(row.Iana)] += row.Countries;
        }
        for (QStringList& names : countries_) {
            names.sort();
            names.removeDuplicates();
        }
    }
    return countries_.value(windowsName);
}

}  // namespace platform
