#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QStringList>
#include <optional>

namespace ctl {

/// The options that stand before the command. What is not given is the machine's own.
struct GlobalOptions {
    std::optional<QString> AppFolder;
    std::optional<QString> User;  ///< an empty text: no user name is known
    std::optional<QDateTime>
        Now;               ///< local time; it carries `Qt::UTC` like every wall-clock reading
    QByteArray LocalZone;  ///< IANA identifier; empty for the real zone
    std::optional<quint32> Seed;
    bool Help = false;
    bool Version = false;
};

/// A wall-clock reading from "YYYY-MM-DDTHH:MM:SS", the same in whatever zone the process runs,
/// that carries `Qt::UTC`. Nothing for any other text.
std::optional<QDateTime> ParseWallTime(const QString& text);

/// Takes the global options off the front of @p arguments. @return why they can't be understood;
/// empty when they can.
QString TakeGlobalOptions(QStringList& arguments, GlobalOptions& options);

}  // namespace ctl
