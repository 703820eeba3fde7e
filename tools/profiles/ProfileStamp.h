#pragma once

#include <QByteArray>
#include <QString>

#include "foundation/ClockProperty.h"
#include "platform/ProfileOrigin.h"

/// What has been made the last time, so that a user's changes are told from an older edition.
namespace profiles {

using Stamp = platform::ProfileStamp;

/// What `platform::ParseProfileStamp` reads.
QByteArray StampContent(const Stamp& stamp);

/// A short text that tells one content from another.
QByteArray SumOf(const QByteArray& content);

/// The content of a user's profile with the six keys of @p made in it, each in its line; all other
/// lines stay as they are. The file of another zone stays whole.
QByteArray WithZoneOf(const QByteArray& present, const ClockProperties& made);

}  // namespace profiles
