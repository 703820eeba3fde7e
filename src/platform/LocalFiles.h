#pragma once

#include "platform/Files.h"

namespace platform {

/// The files of this machine.
class LocalFiles final : public Files {
public:
    bool Exists(const QString& path) const override;
    bool FolderExists(const QString& path) const override;
    bool MakeFolder(const QString& path) override;
    std::optional<QByteArray> Read(const QString& path) const override;
    bool Write(const QString& path, const QByteArray& content) override;
    bool Copy(const QString& source, const QString& destination) override;
    bool Delete(const QString& path) override;
    bool Touch(const QString& path) override;
    bool SetModifiedSeconds(const QString& path, qint64 seconds) override;
    std::optional<qint64> ModifiedSeconds(const QString& path) const override;
    std::optional<qint64> AccessedSeconds(const QString& path) const override;
    std::optional<qint64> Size(const QString& path) const override;
    QStringList FileNames(const QString& folder) const override;
};

}  // namespace platform
