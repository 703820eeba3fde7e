#pragma once

#include "platform/LocalFiles.h"

/// The machine's files, with failures on demand: paths that can't be read or written.
class FakeFiles final : public platform::Files {
public:
    QStringList Unreadable;
    QStringList Unwritable;
    QStringList Undeletable;
    QStringList Writes;  ///< every path written, in order

    bool Exists(const QString& path) const override { return local_.Exists(path); }
    bool FolderExists(const QString& path) const override { return local_.FolderExists(path); }
    bool MakeFolder(const QString& path) override;
    std::optional<QByteArray> Read(const QString& path) const override;
    bool Write(const QString& path, const QByteArray& content) override;
    bool Copy(const QString& source, const QString& destination) override;
    bool Delete(const QString& path) override {
        return !Undeletable.contains(path) && local_.Delete(path);
    }
    bool Touch(const QString& path) override {
        return !Unwritable.contains(path) && local_.Touch(path);
    }
    bool SetModifiedSeconds(const QString& path, qint64 seconds) override {
        return !Unwritable.contains(path) && local_.SetModifiedSeconds(path, seconds);
    }
    std::optional<qint64> ModifiedSeconds(const QString& path) const override {
        return local_.ModifiedSeconds(path);
    }
    std::optional<qint64> Size(const QString& path) const override { return local_.Size(path); }
    QStringList FileNames(const QString& folder) const override { return local_.FileNames(folder); }

private:
    platform::LocalFiles local_;
};
