#include "ProfileStamp.h"

#include <QCryptographicHash>
#include <QList>
#include <algorithm>

#include "timezones/ZoneKeys.h"

namespace profiles {

namespace {

// The lines are worked on as bytes, so that whatever else stands in a file stays as it is.
bool IsOf(const QString& key, const QByteArray& line) {
    const QByteArray left = line.first(std::max<qsizetype>(0, line.indexOf('=')));
    const QByteArray name = left.mid(left.indexOf(':') + 1).trimmed();
    return QString::fromLatin1(name).compare(key, Qt::CaseInsensitive) == 0;
}

QByteArray ValueIn(const QByteArray& line) {
    return line.mid(line.indexOf('=') + 1).trimmed();
}

void PutInto(QByteArray& line, const QByteArray& value) {
    const QByteArray end = line.endsWith('\r') ? "\r" : "";
    line = line.first(line.indexOf('=') + 1) + value + end;
}

/// Whether the file is that of the zone that @p made is of.
bool IsOfThatZone(const QList<QByteArray>& lines, const ClockProperties& made) {
    const QString key = mduTimeZones::ZoneKeys().first();
    const QByteArray name = mduTimeZones::ZoneKeyValue(made, key).toUtf8();
    return std::any_of(lines.begin(), lines.end(), [&](const QByteArray& line) {
        return IsOf(key, line) && ValueIn(line) == name;
    });
}

}  // namespace

QByteArray StampContent(const Stamp& stamp) {
    QByteArray content = stamp.Origin + '\n';
    for (auto sum = stamp.Sums.begin(); sum != stamp.Sums.end(); ++sum) {
        content += sum.value() + ' ' + sum.key().toUtf8() + '\n';
    }
    return content;
}

QByteArray SumOf(const QByteArray& content) {
    return QCryptographicHash::hash(content, QCryptographicHash::Sha1).toHex();
}

QByteArray WithZoneOf(const QByteArray& present, const ClockProperties& made) {
    QList<QByteArray> lines = present.split('\n');
    if (!IsOfThatZone(lines, made)) {
        return present;
    }
    for (const QString& key : mduTimeZones::ZoneKeys()) {
        const auto line = std::find_if(lines.begin(), lines.end(),
                                       [&](const QByteArray& text) { return IsOf(key, text); });
        if (line != lines.end()) {
            PutInto(*line, mduTimeZones::ZoneKeyValue(made, key).toUtf8());
        }
    }
    return lines.join('\n');
}

}  // namespace profiles
