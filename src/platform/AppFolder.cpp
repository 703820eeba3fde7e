#include "platform/AppFolder.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QStandardPaths>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

bool IsNewer(const QFileInfo& source, const QFileInfo& target) {
    return source.lastModified() > target.lastModified();
}

// The profiles of cities are kept up to date where they are, whatever the user has changed in them.
bool IsKeptUpToDate(const QString& name) {
    return name.startsWith("/Timezones/"_L1);
}

/// A copy keeps its source's time: a user's file is merged with a default that is newer than it.
void CopyWithTime(const QString& source, const QString& target) {
    QDir().mkpath(QFileInfo(target).path());
    const QString half = target + u".new"_s;
    QFile::remove(half);
    QFile copy(half);
    if (!QFile::copy(source, half)) {
        return;
    }
    copy.setPermissions(copy.permissions() | QFileDevice::WriteOwner | QFileDevice::ReadOwner);
    if (!copy.open(QIODevice::ReadWrite)) {
        return;
    }
    copy.setFileTime(QFileInfo(source).lastModified(), QFileDevice::FileModificationTime);
    copy.close();
    // Over the old file in one step, so that there is a default at every moment.
    std::rename(QFile::encodeName(half).constData(), QFile::encodeName(target).constData());
}

void FillFrom(const QString& installed, const QString& folder) {
    QDirIterator files(installed, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString source = files.next();
        const QString name = source.sliced(installed.size());
        const QString target = folder + name;
        if (!QFile::exists(target) ||
            (!IsKeptUpToDate(name) && IsNewer(QFileInfo(source), QFileInfo(target)))) {
            CopyWithTime(source, target);
        }
    }
}

}  // namespace

AppFolderPlaces FindAppFolderPlaces() {
    const QString executable = QCoreApplication::applicationDirPath();
    return {executable,
            QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/tempolark"_s,
            QDir::cleanPath(executable + u'/' + QStringLiteral(TEMPOLARK_DATA_FROM_BIN))};
}

QString ChooseAppFolder(const AppFolderPlaces& places) {
    const bool dataBeside = QFileInfo(places.ExecutableFolder + u"/ini"_s).isDir();
    if (dataBeside && QFileInfo(places.ExecutableFolder).isWritable()) {
        return places.ExecutableFolder;
    }
    QDir().mkpath(places.UserFolder);
    FillFrom(dataBeside ? places.ExecutableFolder : places.InstalledData, places.UserFolder);
    return places.UserFolder;
}

}  // namespace platform
