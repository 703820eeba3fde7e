#pragma once

#include "platform/Files.h"

namespace ctl {

/// Files that can be read and are never written: a picture of a clock leaves its file as it is.
///
/// "clock render" draws a clock through it. A clock may rewrite keys of its file, such as those of
/// a zone with days of another year; here that comes to nothing.
class ReadOnlyFiles final : public platform::Files {
public:
    /// @param files answers whatever is read; it outlives this one
    explicit ReadOnlyFiles(platform::Files& files) : files_(files) {}

    bool Exists(const QString& path) const override { return files_.Exists(path); }
    bool FolderExists(const QString& path) const override { return files_.FolderExists(path); }
    std::optional<QByteArray> Read(const QString& path) const override { return files_.Read(path); }
    std::optional<qint64> ModifiedSeconds(const QString& path) const override {
        return files_.ModifiedSeconds(path);
    }
    std::optional<qint64> AccessedSeconds(const QString& path) const override {
        return files_.AccessedSeconds(path);
    }
    std::optional<qint64> Size(const QString& path) const override { return files_.Size(path); }
    QStringList FileNames(const QString& folder) const override { return files_.FileNames(folder); }

    /// What writes gives false at once, as on a medium that is protected; the files are not asked.
    /// A caller has to take that as any other failure.
    bool MakeFolder(const QString&) override { return false; }
    bool Write(const QString&, const QByteArray&) override { return false; }
    bool Copy(const QString&, const QString&) override { return false; }
    bool Delete(const QString&) override { return false; }
    bool Touch(const QString&) override { return false; }
    bool SetModifiedSeconds(const QString&, qint64) override { return false; }

private:
    platform::Files& files_;
};

}  // namespace ctl
