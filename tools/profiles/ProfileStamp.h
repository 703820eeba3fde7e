#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

#include "foundation/ClockProperty.h"

/// What has been made the last time, so that a user's changes are told from an older edition.
namespace profiles {

/// The file that holds it, in the folder of the profiles. It is no hidden one: it goes wherever the
/// profiles are copied.
inline const QString StampName = QStringLiteral("made-of.txt");

struct Stamp {
    QByteArray Origin;               ///< what the profiles were made of; no line breaks
    QMap<QString, QByteArray> Sums;  ///< by file name: `SumOf` the profile as it was made
};

/// stamp = origin LF { sum blank name LF }
Stamp ParseStamp(const QByteArray& content);
QByteArray StampContent(const Stamp& stamp);

/// A short text that tells one content from another.
QByteArray SumOf(const QByteArray& content);

/// The content of a user's profile with the six keys of @p made in it, each in its line; all other
/// lines stay as they are. The file of another zone stays whole.
QByteArray WithZoneOf(const QByteArray& present, const ClockProperties& made);

}  // namespace profiles
