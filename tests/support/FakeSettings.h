#pragma once

#include "platform/FileSettings.h"

/// The settings of a file.
class FakeSettings final : public platform::SettingsStore {
public:
    explicit FakeSettings(const QString& path) : file_(path) {}

    QVariant Value(const QString& key, const QString& name) const override {
        return file_.Value(key, name);
    }
    void SetValue(const QString& key, const QString& name, const QVariant& value) override {
        file_.SetValue(key, name, value);
    }
    void Remove(const QString& key, const QString& name) override { file_.Remove(key, name); }

private:
    platform::FileSettings file_;
};
