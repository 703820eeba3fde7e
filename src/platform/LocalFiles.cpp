#include "platform/LocalFiles.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace platform {

namespace {

bool SetTime(const QString& path, const QDateTime& time) {
    QFile file(path);
    return file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly) &&
           file.setFileTime(time, QFileDevice::FileModificationTime);
}

}  // namespace

bool LocalFiles::Exists(const QString& path) const {
    return QFileInfo::exists(path);
}

bool LocalFiles::FolderExists(const QString& path) const {
    return QFileInfo(path).isDir();
}

bool LocalFiles::MakeFolder(const QString& path) {
    return QDir().mkdir(QDir::cleanPath(path));
}

std::optional<QByteArray> LocalFiles::Read(const QString& path) const {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    QByteArray content = file.readAll();
    if (file.error() != QFile::NoError) {
        return std::nullopt;
    }
    return content;
}

bool LocalFiles::Write(const QString& path, const QByteArray& content) {
    if (Read(path) == content) {
        return true;
    }
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() &&
           file.commit();
}

bool LocalFiles::Copy(const QString& source, const QString& destination) {
    const std::optional<QByteArray> content = Read(source);
    return content && Write(destination, *content);
}

bool LocalFiles::Delete(const QString& path) {
    return QFile::remove(path);
}

bool LocalFiles::Touch(const QString& path) {
    return SetTime(path, QDateTime::currentDateTimeUtc());
}

bool LocalFiles::SetModifiedSeconds(const QString& path, qint64 seconds) {
    return SetTime(path, QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC));
}

std::optional<qint64> LocalFiles::ModifiedSeconds(const QString& path) const {
    const QFileInfo info(path);
    if (!info.exists()) {
        return std::nullopt;
    }
    return info.lastModified().toSecsSinceEpoch();
}

std::optional<qint64> LocalFiles::AccessedSeconds(const QString& path) const {
    const QDateTime lastRead = QFileInfo(path).lastRead();
    return lastRead.isValid() ? std::optional(lastRead.toSecsSinceEpoch()) : ModifiedSeconds(path);
}

std::optional<qint64> LocalFiles::Size(const QString& path) const {
    const QFileInfo info(path);
    return info.isFile() ? std::optional(info.size()) : std::nullopt;
}

QStringList LocalFiles::FileNames(const QString& folder) const {
    QStringList names;
    QDirIterator entries(folder, QDir::Files | QDir::Hidden);
    while (entries.hasNext()) {
        entries.next();
        names += entries.fileName();
    }
    return names;
}

}  // namespace platform
