#include "platform/AppFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <algorithm>

#include "platform/StockData.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

/// Stands in a folder from before its filling until after it.
QString MarkOf(const QString& folder) {
    return folder + u"/.filling"_s;
}

/// Whether a folder is one of the program's; its default file may have been lost.
bool IsOwn(const QString& folder) {
    return QFileInfo(folder + u"/ini"_s).isDir();
}

bool HasDefaults(const QString& folder) {
    return QFileInfo(folder + u"/ini/Tempolark.ini"_s).isFile();
}

/// The mark of a running program may outlive a power cut.
bool IsEmpty(const QString& folder) {
    const QStringList names = QDir(folder).entryList(QDir::AllEntries | QDir::Hidden |
                                                     QDir::System | QDir::NoDotAndDotDot);
    return std::all_of(names.begin(), names.end(),
                       [](const QString& name) { return name.startsWith(u".running-"_s); });
}

QString SourceOf(const AppFolderPlaces& places) {
    return HasDefaults(places.ExecutableFolder) ? places.ExecutableFolder : places.InstalledData;
}

}  // namespace

AppFolderPlaces FindAppFolderPlaces() {
    const QString executable = QCoreApplication::applicationDirPath();
    return {executable,
            QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/tempolark"_s,
            QDir::cleanPath(executable + u'/' + QStringLiteral(TEMPOLARK_DATA_FROM_BIN))};
}

QString ChooseAppFolder(const AppFolderPlaces& places) {
    const bool isUsable =
        IsOwn(places.ExecutableFolder) && QFileInfo(places.ExecutableFolder).isWritable();
    return isUsable ? places.ExecutableFolder : places.UserFolder;
}

QString PrepareAppFolder(const QString& folder) {
    const QFileInfo info(folder);
    if (info.exists() && !info.isDir()) {
        return u"%1 is not a folder"_s.arg(folder);
    }
    if (!QDir().mkpath(folder)) {
        return u"The folder %1 can't be made"_s.arg(folder);
    }
    if (IsEmpty(folder) && !QFile(MarkOf(folder)).open(QIODevice::WriteOnly)) {
        return u"The folder %1 can't be written"_s.arg(folder);
    }
    return {};
}

// In the order in which another start makes them: the mark comes before all else, and goes when the
// default files are there.
bool HoldsOtherFiles(const QString& folder, const AppFolderPlaces& places) {
    return folder != places.UserFolder && QFileInfo(folder).isDir() && !IsEmpty(folder) &&
           !QFile::exists(MarkOf(folder)) && !IsOwn(folder);
}

QString FillAppFolder(const QString& folder, const AppFolderPlaces& places) {
    const bool isMarked = QFile::exists(MarkOf(folder));
    if (!isMarked && folder != places.UserFolder) {
        return {};
    }
    const QString source = SourceOf(places);
    if (!HasDefaults(source)) {
        // One that was filled once can do without.
        return HasDefaults(folder) && !isMarked
                   ? QString()
                   : u"The data that %1 is to be filled with is missing: there is none in %2"_s.arg(
                         folder, source);
    }
    const QString failed = CopyStockData(source, folder);
    if (!failed.isEmpty()) {
        return u"The folder %1 can't be filled: %2 can't be written"_s.arg(folder, failed);
    }
    QFile::remove(MarkOf(folder));
    return {};
}

QString CompleteAppFolder(const QString& folder, const AppFolderPlaces& places) {
    const bool isHalf = IsOwn(folder) && !HasDefaults(folder) && HasDefaults(SourceOf(places));
    if (isHalf && !QFile(MarkOf(folder)).open(QIODevice::WriteOnly)) {
        return u"The folder %1 can't be written"_s.arg(folder);
    }
    return FillAppFolder(folder, places);
}

}  // namespace platform
