#include "timezones/ProfileFacts.h"

#include <cmath>

#include "foundation/Numbers.h"

namespace mduTimeZones {

namespace {

/// The text behind "key=" in the line that begins with it, or that has it behind its category.
QString ValueOf(const QByteArray& content, const QByteArray& key) {
    const QByteArray wanted = key + '=';
    for (qsizetype at = content.indexOf(wanted); at >= 0; at = content.indexOf(wanted, at + 1)) {
        if (at == 0 || content[at - 1] == ':' || content[at - 1] == '\n') {
            const qsizetype begin = at + wanted.size();
            qsizetype end = content.indexOf('\n', begin);
            end = end < 0 ? content.size() : end;
            const QString line = QString::fromUtf8(content.mid(begin, end - begin));
            return line.section(u',', 0, 0).trimmed();
        }
    }
    return {};
}

std::optional<double> Degrees(const QString& text, double most) {
    if (!mduAPILib::IsNumeric(text)) {
        return std::nullopt;
    }
    const double degrees = mduAPILib::Val(text);
    return std::abs(degrees) <= most ? std::optional(degrees) : std::nullopt;
}

}  // namespace

ProfileFacts FactsInText(const QByteArray& content) {
    ProfileFacts facts;
    const auto latitude = Degrees(ValueOf(content, "Latitude"), 90);
    const auto longitude = Degrees(ValueOf(content, "Longitude"), 180);
    if (latitude && longitude) {
        facts.Place = platform::ZonePlace{*latitude, *longitude};
    }
    facts.Country = ValueOf(content, "Country");
    return facts;
}

ProfileFacts ReadProfileFacts(const platform::Files& files, const QString& path) {
    const std::optional<QByteArray> content = files.Read(path);
    return content ? FactsInText(*content) : ProfileFacts();
}

}  // namespace mduTimeZones
