#pragma once

#include "platform/Files.h"

namespace platform {

/// The files of this machine, by the toolkit. It holds no state: each call goes to the disk, so
/// what another program has written is seen at once.
///
/// `Write` and `Copy` need the room for a second file beside the old one, which is renamed over it
/// when all is written. No folder is made on the way.
class LocalFiles final : public Files {
public:
    bool Exists(const QString& path) const override;
    bool FolderExists(const QString& path) const override;
    bool MakeFolder(const QString& path) override;
    /// Nothing also for a folder, a pipe or a device: only what is a plain file, or a link to one,
    /// is opened.
    std::optional<QByteArray> Read(const QString& path) const override;
    /// Reads the file first; one that holds the content already keeps its time, too.
    bool Write(const QString& path, const QByteArray& content) override;
    bool Copy(const QString& source, const QString& destination) override;
    /// False for a file that is not there.
    bool Delete(const QString& path) override;
    /// False for a missing file: none is made.
    bool Touch(const QString& path) override;
    bool SetModifiedSeconds(const QString& path, qint64 seconds) override;
    std::optional<qint64> ModifiedSeconds(const QString& path) const override;
    std::optional<qint64> AccessedSeconds(const QString& path) const override;
    std::optional<qint64> Size(const QString& path) const override;
    /// Hidden files are among them, folders are not; empty for a folder that is not there.
    QStringList FileNames(const QString& folder) const override;
};

}  // namespace platform
