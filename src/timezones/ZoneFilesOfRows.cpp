#include "timezones/ZoneFilesOfRows.h"

#include "foundation/FileHelpers.h"
#include "timezones/ZoneKeys.h"

using namespace Qt::StringLiterals;

namespace mduTimeZones {

namespace {

constexpr qsizetype MostNames = 3;

bool CopyProfile(platform::Files& files, const QString& profile, const QString& path) {
    const bool isItself = profile == path && mduLib::FileExists(files, path);
    return isItself || mduLib::CopyFileTo(files, profile, path, true);
}

bool MakeFromDefault(const platform::Services& services, const PathTable& paths,
                     const QString& zoneName, const QString& path) {
    return mduLib::CopyFileTo(services.FileSystem, paths.ZoneDefaultFile(), path, true) &&
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
    const bool made = row.ToolTipText.isEmpty()
                          ? MakeFromDefault(services, paths, row.Name, path)
                          : CopyProfile(services.FileSystem, row.ToolTipText, path);
    row.HasFile = made || mduLib::FileExists(services.FileSystem, path);
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
                               ZoneList& list) {
    RowsOutcome outcome;
    platform::Files& files = services.FileSystem;
    for (int position = 0; position < list.Count(); ++position) {
        const QString name = list[position].Name;
        if (!list[position].Checked || !mduLib::ZoneNameProblem(name).isEmpty()) {
            continue;
        }
        const QString path = ZoneFilePath(paths, name);
        if (!mduLib::FileExists(files, path)) {
            continue;
        }
        mduLib::DeleteFileNow(files, path);
        if (mduLib::FileExists(files, path)) {
            outcome.Problems += name + u" could not be deleted"_s;
        } else {
            ++outcome.Files;
        }
    }
    return outcome;
}

QString SaveQuestion(const QStringList& names) {
    const QString what =
        names.size() <= MostNames ? names.join(u", "_s) : QString::number(names.size());
    return u"Do you want to save the "_s + what + u'?';
}

}  // namespace mduTimeZones
