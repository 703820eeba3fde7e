#include "timezones/ZoneFilesOfRows.h"

#include "foundation/FileHelpers.h"
#include "timezones/ZoneKeys.h"

using namespace Qt::StringLiterals;

namespace mduTimeZones {

namespace {

constexpr qsizetype MostNames = 3;

bool MakeFromDefault(const platform::Services& services, const PathTable& paths,
                     const QString& zoneName, const QString& path) {
    return mduLib::CopyFileTo(services.FileSystem, paths.ZoneDefaultFile(), path, false) &&
           ApplyZoneToFile(services, paths, path, zoneName);
}

}  // namespace

QString ZoneFilePath(const PathTable& paths, const QString& zoneName) {
    return paths.ZoneFileFolder + mduLib::ZoneFileStem(zoneName) + u".ini"_s;
}

QString MakeZoneFile(const platform::Services& services, const PathTable& paths, ZoneRow& row) {
    QString problem = mduLib::ZoneNameProblem(row.Name);
    if (!problem.isEmpty()) {
        return problem;
    }
    const QString path = ZoneFilePath(paths, row.Name);
    // A zone's file holds what its user has set; it is never written over from here.
    if (mduLib::FileExists(services.FileSystem, path)) {
        row.HasFile = true;
        return {};
    }
    const bool made = row.ToolTipText.isEmpty()
                          ? MakeFromDefault(services, paths, row.Name, path)
                          : mduLib::CopyFileTo(services.FileSystem, row.ToolTipText, path, false);
    row.HasFile = made;
    return made ? QString() : row.Name + u" could not be saved"_s;
}

RowsOutcome SaveCheckedZones(const platform::Services& services, const PathTable& paths,
                             ZoneList& list) {
    RowsOutcome outcome;
    for (ZoneRow* row : list.AllRows()) {
        if (!row->Checked) {
            continue;
        }
        if (mduLib::ZoneNameProblem(row->Name).isEmpty() &&
            mduLib::FileExists(services.FileSystem, ZoneFilePath(paths, row->Name))) {
            row->HasFile = true;
            continue;
        }
        const QString problem = MakeZoneFile(services, paths, *row);
        if (problem.isEmpty()) {
            ++outcome.Files;
        } else {
            outcome.Problems += problem;
        }
    }
    return outcome;
}

RowsOutcome DeleteCheckedZones(const platform::Services& services, const PathTable& paths,
                               const ZoneList& list,
                               const std::function<QString(const QString& name)>& remove) {
    RowsOutcome outcome;
    for (int position = 0; position < list.Count(); ++position) {
        const QString name = list[position].Name;
        if (!list[position].Checked || !mduLib::ZoneNameProblem(name).isEmpty() ||
            !mduLib::FileExists(services.FileSystem, ZoneFilePath(paths, name))) {
            continue;
        }
        const QString problem = remove(name);
        if (problem.isEmpty()) {
            ++outcome.Files;
        } else {
            outcome.Problems += problem;
        }
    }
    return outcome;
}

QString DeleteZoneFile(const platform::Services& services, const PathTable& paths,
                       const QString& name) {
    const QString path = ZoneFilePath(paths, name);
    mduLib::DeleteFileNow(services.FileSystem, path);
    return mduLib::FileExists(services.FileSystem, path) ? name + u" could not be deleted"_s
                                                         : QString();
}

QString SaveQuestion(const QStringList& names) {
    const QString what =
        names.size() <= MostNames ? names.join(u", "_s) : QString::number(names.size());
    return u"Do you want to save the "_s + what + u'?';
}

}  // namespace mduTimeZones
