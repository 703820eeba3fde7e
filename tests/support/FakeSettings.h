#pragma once

#include "platform/FileSettings.h"

/// The settings of a file, with failures on demand.
class FakeSettings final : public platform::SettingsStore {
public:
    explicit FakeSettings(const QString& path) : file_(path) {}

    bool Unwritable = false;  ///< no value can be kept

    QVariant Value(const QString& key, const QString& name) const override {
        return file_.Value(key, name);
    }
    bool SetValue(const QString& key, const QString& name, const QVariant& value) override {
        return !Unwritable && file_.SetValue(key, name, value);
    }
    void Remove(const QString& key, const QString& name) override { file_.Remove(key, name); }

private:
    platform::FileSettings file_;
};
