#pragma once

#include "platform/SettingsStore.h"

namespace platform {

/// The settings store as a file of its own, in the toolkit's "ini" format. The file is looked at
/// with each call, so two programs see what the other keeps. A file that is missing or can't be
/// read holds no values; removing what it does not hold is no error.
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
