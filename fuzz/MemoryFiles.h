#pragma once

#include <QMap>

#include "platform/Files.h"

/// Files that live in memory, for targets that are run many thousand times a second.
class MemoryFiles final : public platform::Files {
public:
    QMap<QString, QByteArray> Contents;

    bool Exists(const QString& path) const override { return Contents.contains(path); }
    bool FolderExists(const QString&) const override { return false; }
    bool MakeFolder(const QString&) override { return false; }
    std::optional<QByteArray> Read(const QString& path) const override {
        return Contents.contains(path) ? std::optional(Contents[path]) : std::nullopt;
    }
    bool Write(const QString& path, const QByteArray& content) override {
        Contents[path] = content;
        return true;
    }
    bool Copy(const QString& source, const QString& destination) override {
        return Contents.contains(source) && Write(destination, Contents[source]);
    }
    bool Delete(const QString& path) override { return Contents.remove(path) > 0; }
    bool Touch(const QString& path) override { return Contents.contains(path); }
    bool SetModifiedSeconds(const QString& path, qint64) override { return Touch(path); }
    std::optional<qint64> ModifiedSeconds(const QString&) const override { return std::nullopt; }
    std::optional<qint64> Size(const QString& path) const override {
        return Contents.contains(path) ? std::optional<qint64>(Contents[path].size())
                                       : std::nullopt;
    }
    QStringList FileNames(const QString&) const override { return Contents.keys(); }
};

/// Ends the run, so that the input is kept.
inline void Require(bool holds) {
    if (!holds) {
        __builtin_trap();
    }
}
