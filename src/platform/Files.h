#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>
#include <optional>

namespace platform {

/// Files and folders of the machine. Paths are native and full.
class Files {
public:
    virtual ~Files() = default;

    virtual bool Exists(const QString& path) const = 0;        ///< a file or a folder of that name
    virtual bool FolderExists(const QString& path) const = 0;  ///< a folder of that name

    /// Makes one level of a folder; the parent must exist. False if it can't, and where the folder
    /// is there already.
    virtual bool MakeFolder(const QString& path) = 0;

    /// The whole content; nothing if it can't be read.
    virtual std::optional<QByteArray> Read(const QString& path) const = 0;

    /// Replaces the file's content in one step: whoever looks, at any moment and also after a
    /// crash, finds the old content or the new one, whole. False if it can't be written, and the
    /// old file is then untouched. A file that holds the content already is left alone.
    virtual bool Write(const QString& path, const QByteArray& content) = 0;

    /// Copies over the destination with the same care as `Write`. The copy's time is the present,
    /// unless the destination holds that content already. False where the source can't be read.
    virtual bool Copy(const QString& source, const QString& destination) = 0;

    /// Removes a file for good. False if it can't, and where there is none.
    virtual bool Delete(const QString& path) = 0;

    /// Makes the present the file's last-modified time. False if it can't.
    virtual bool Touch(const QString& path) = 0;

    /// Sets the file's last-modified time, in whole seconds since the epoch. False if it can't.
    virtual bool SetModifiedSeconds(const QString& path, qint64 seconds) = 0;

    /// Last-modified time in whole seconds since the epoch; nothing if there is no such file.
    virtual std::optional<qint64> ModifiedSeconds(const QString& path) const = 0;

    /// When the file was last read, in the same unit; the last-modified time where the file system
    /// keeps none.
    virtual std::optional<qint64> AccessedSeconds(const QString& path) const {
        return ModifiedSeconds(path);
    }

    /// The size of a plain file in bytes; nothing if there is none.
    virtual std::optional<qint64> Size(const QString& path) const = 0;

    /// The names (no folder) of the plain files in a folder, in directory order.
    virtual QStringList FileNames(const QString& folder) const = 0;
};

}  // namespace platform
