#pragma once

#include "platform/SettingsStore.h"

namespace ctl {

/// Settings that can be read and are never kept: a picture of a clock leaves none behind.
class ReadOnlySettings final : public platform::SettingsStore {
public:
    /// @param settings answers whatever is read; it outlives this one
    explicit ReadOnlySettings(const platform::SettingsStore& settings) : settings_(settings) {}

    QVariant Value(const QString& key, const QString& name) const override {
        return settings_.Value(key, name);
    }
    bool SetValue(const QString&, const QString&, const QVariant&) override { return false; }
    void Remove(const QString&, const QString&) override {}

private:
    const platform::SettingsStore& settings_;
};

}  // namespace ctl
