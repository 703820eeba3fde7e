#pragma once

#include "platform/SettingsStore.h"

namespace platform {

/// The settings store as a file of its own.
class FileSettings final : public SettingsStore {
public:
    /// @param path of the file, native and full; it is made when the first value is kept
    explicit FileSettings(QString path) : path_(std::move(path)) {}
    QVariant Value(const QString& key, const QString& name) const override;
    bool SetValue(const QString& key, const QString& name, const QVariant& value) override;
    void Remove(const QString& key, const QString& name) override;

private:
    QString path_;
};

}  // namespace platform
