#pragma once

#include <QDateTime>
#include <QString>

namespace mduLib {

/// The answer, for the status bar, to a save that somebody asked for: "Saved the toolbar at
/// 12:00:05". The time tells a second save from the first, whose message may still stand there.
/// @param now the machine's local time
inline QString SavedMessage(const QString& what, const QDateTime& now) {
    return QStringLiteral("Saved %1 at %2").arg(what, now.toString(QStringLiteral("HH:mm:ss")));
}

}  // namespace mduLib
