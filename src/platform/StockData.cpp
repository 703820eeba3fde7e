#include "platform/StockData.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

// The profiles of cities are kept up to date where they are, whatever the user has changed in them.
const QString ProfileFolderName = u"Timezones"_s;

bool IsWanted(const QString& stockFolder, const QFileInfo& source, const QFileInfo& target) {
    return !target.exists() ||
           (stockFolder != ProfileFolderName && source.lastModified() > target.lastModified());
}

bool KeepTime(const QString& source, const QString& path) {
    QFile copy(path);
    return copy.setPermissions(copy.permissions() | QFileDevice::WriteOwner |
                               QFileDevice::ReadOwner) &&
           copy.open(QIODevice::ReadWrite) &&
           copy.setFileTime(QFileInfo(source).lastModified(), QFileDevice::FileModificationTime);
}

/// A copy keeps its source's time: a user's file is merged with a default that is newer than it. It
/// goes over the old file in one step, so that there is a default at every moment.
bool CopyWithTime(const QString& source, const QString& target) {
    const QString half = target + u".new"_s;
    QFile::remove(half);
    if (QDir().mkpath(QFileInfo(target).path()) && QFile::copy(source, half) &&
        KeepTime(source, half) &&
        std::rename(QFile::encodeName(half).constData(), QFile::encodeName(target).constData()) ==
            0) {
        return true;
    }
    QFile::remove(half);
    return false;
}

/// Takes files away again, and the folders below @p folder that are empty then.
void TakeAway(const QStringList& files, const QString& folder) {
    for (const QString& file : files) {
        QFile::remove(file);
        QString path = QFileInfo(file).path();
        while (path.size() > folder.size() && QDir().rmdir(path)) {
            path = QFileInfo(path).path();
        }
    }
}

}  // namespace

// The default files come last: they make a folder one of the program's.
QStringList StockFolders() {
    return {u"Help"_s,   u"Images"_s,    u"Music"_s, u"SoundFiles"_s,
            u"Styles"_s, u"Timezones"_s, u"ini"_s};
}

QString CopyStockData(const QString& source, const QString& folder) {
    QStringList added;
    for (const QString& name : StockFolders()) {
        QDirIterator files(source + u'/' + name, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString file = files.next();
            QString target = folder + file.sliced(source.size());
            const bool isNew = !QFile::exists(target);
            if (!IsWanted(name, QFileInfo(file), QFileInfo(target))) {
                continue;
            }
            if (!CopyWithTime(file, target)) {
                TakeAway(added, folder);
                return target;
            }
            if (isNew) {
                added += target;
            }
        }
    }
    return {};
}

}  // namespace platform
