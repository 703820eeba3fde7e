#pragma once

#include <functional>

#include "timezones/ZoneList.h"

/// From checked rows to the files that clocks are made of, and back.
namespace mduTimeZones {

/// What a run over the rows has done; each problem is one line for the status bar.
struct RowsOutcome {
    int Files = 0;
    QStringList Problems;
};

/// The file of a zone in the user's folder.
QString ZoneFilePath(const PathTable& paths, const QString& zoneName);

/// Brings a row's file about, unless there is one: a copy of its profile, or the default file
/// with the six keys of its zone. @return what went wrong; empty when all is well.
QString MakeZoneFile(const platform::Services& services, const PathTable& paths, ZoneRow& row);

/// Makes the files of the checked rows that have none at this moment, whether the search lists them
/// or not.
RowsOutcome SaveCheckedZones(const platform::Services& services, const PathTable& paths,
                             ZoneList& list);

/// Removes the files of zones, each by @p remove, which answers why it could not. One that is gone
/// already is no problem. It asks nobody.
RowsOutcome RemoveZones(const platform::Services& services, const PathTable& paths,
                        const QStringList& names,
                        const std::function<QString(const QString& name)>& remove);

/// Removes the file of one zone. @return why it could not; empty when it is gone
QString DeleteZoneFile(const platform::Services& services, const PathTable& paths,
                       const QString& name);

/// "Do you want to save the Tokyo Standard Time, UTC?", from the fourth name on their number; and
/// what is to go, with a word on what goes with it.
QString SaveQuestion(const QStringList& names, const QStringList& removed);

/// The question before the files of these zones are deleted.
QString DeleteQuestion(const QStringList& names);

}  // namespace mduTimeZones
