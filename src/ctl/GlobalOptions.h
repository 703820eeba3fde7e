#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QStringList>
#include <optional>

namespace ctl {

/// The options that stand before the command. What is not given is the machine's own.
struct GlobalOptions {
    /// The program folder, never empty. It may be a relative path, which counts from the working
    /// folder.
    std::optional<QString> AppFolder;
    std::optional<QString> User;  ///< an empty text: no user name is known
    /// Local time; it carries `Qt::UTC` like every wall-clock reading.
    std::optional<QDateTime> Now;
    /// The instant, in GMT; `Now` then does not count.
    std::optional<QDateTime> Utc;
    QByteArray LocalZone;  ///< IANA identifier; empty for the real zone
    /// Of every random choice. A number that 32 bits can't hold keeps its low 32 bits.
    std::optional<quint32> Seed;
    bool Help = false;
    bool Version = false;
};

/// A wall-clock reading from "YYYY-MM-DDTHH:MM:SS", the same in whatever zone the process runs,
/// that carries `Qt::UTC`. Nothing for any other text.
///
///     ParseWallTime("2026-03-29T02:30:00")  // even where spring leaves this hour out
///     ParseWallTime("2026-03-29 02:30")     // nothing
std::optional<QDateTime> ParseWallTime(const QString& text);

/// Takes the global options off the front of @p arguments, each as "--name value" or
/// "--name=value", up to the first word that does not begin with "--". What stood before a mistake
/// has been taken, the mistake as well. @return why they can't be understood; empty when they can
QString TakeGlobalOptions(QStringList& arguments, GlobalOptions& options);

}  // namespace ctl
