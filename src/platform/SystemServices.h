#pragma once

#include <QRandomGenerator>
#include <optional>

#include "platform/Machine.h"

namespace platform {

/// The account that runs the program.
class UnixAccount final : public Account {
public:
    QString UserName() const override;
};

/// An account whose name is given: that of a script or a test.
class NamedAccount final : public Account {
public:
    explicit NamedAccount(QString name) : name_(std::move(name)) {}
    QString UserName() const override { return name_; }

private:
    QString name_;
};

/// The settings store as a file of its own.
class FileSettings final : public SettingsStore {
public:
    explicit FileSettings(QString path) : path_(std::move(path)) {}
    QVariant Value(const QString& key, const QString& name) const override;
    void SetValue(const QString& key, const QString& name, const QVariant& value) override;
    void Remove(const QString& key, const QString& name) override;

private:
    QString path_;
};

/// Random numbers, from the machine or, with a seed, the same sequence at each run.
class SystemRandom final : public RandomNumbers {
public:
    explicit SystemRandom(std::optional<quint32> seed = {});
    void Seed() override;
    double Next() override { return generator_.generateDouble(); }

private:
    std::optional<quint32> seed_;
    QRandomGenerator generator_;
};

}  // namespace platform
