#pragma once

#include "platform/Account.h"

namespace platform {

/// The account that runs the program: the real user of the process, not whoever it acts for.
class UnixAccount final : public Account {
public:
    /// The log-in name, without blanks around it; empty for a user whom the machine does not list.
    QString UserName() const override;
};

/// An account whose name is given: that of a script or a test.
class NamedAccount final : public Account {
public:
    /// @param name is given back as it stands
    explicit NamedAccount(QString name) : name_(std::move(name)) {}
    QString UserName() const override { return name_; }

private:
    QString name_;
};

}  // namespace platform
