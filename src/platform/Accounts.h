#pragma once

#include "platform/Account.h"

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

}  // namespace platform
