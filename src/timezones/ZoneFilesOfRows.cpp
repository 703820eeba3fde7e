#include "timezones/ZoneFilesOfRows.h"

#include "foundation/FileHelpers.h"
#include "platform/Services.h"
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

/// "1 time zone", "4 time zones"
QString Count(const QStringList& names) {
    return QString::number(names.size()) + (names.size() == 1 ? u" time zone"_s : u" time zones"_s);
}

/// What goes with the files of zones.
QString WithSettings(const QStringList& names) {
    return names.size() == 1 ? u", with the settings of its clock"_s
                             : u", with the settings of their clocks"_s;
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

RowsOutcome RemoveZones(const platform::Services& services, const PathTable& paths,
                        const QStringList& names,
                        const std::function<QString(const QString& name)>& remove) {
    RowsOutcome outcome;
    for (const QString& name : names) {
        if (!mduLib::ZoneNameProblem(name).isEmpty() ||
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

QString SaveQuestion(const QStringList& names, const QStringList& removed) {
    QStringList parts;
    if (!names.isEmpty()) {
        parts += names.size() <= MostNames ? names.join(u", "_s) : QString::number(names.size());
    }
    if (!removed.isEmpty()) {
        parts += u"removal of "_s +
                 (removed.size() <= MostNames ? removed.join(u", "_s) : Count(removed)) +
                 WithSettings(removed);
    }
    return u"Do you want to save the "_s + parts.join(u", and the "_s) + u'?';
}

QString DeleteQuestion(const QStringList& names) {
    QString whichOnes = Count(names) + WithSettings(names);
    if (names.size() <= MostNames) {
        whichOnes += u": "_s + names.join(u", "_s);
    }
    return u"Do you want to delete the selected time zone profiles?\n\n"_s + whichOnes + u'.';
}

}  // namespace mduTimeZones
