#pragma once

#include <memory>

#include "ctl/GlobalOptions.h"
#include "platform/AbsentDevices.h"
#include "platform/Accounts.h"
#include "platform/Dialogs.h"
#include "platform/FileSettings.h"
#include "platform/LocalFiles.h"
#include "platform/Services.h"
#include "platform/SimulatedClock.h"
#include "platform/SystemRandom.h"
#include "platform/TzZoneDatabase.h"

namespace ctl {

/// Boxes of a program without windows: the text goes to standard error, and the answer is the one
/// that changes nothing.
class ConsoleDialogs final : public platform::Dialogs {
public:
    int MessageBox(const QString& text, int flags, const QString& title) override;
    QString OpenFile(const QString&, const QString&, const QString&) override { return {}; }
    QString SaveFile(const QString&, const QString&, const QString&) override { return {}; }
    int PickColour(int) override { return -1; }
};

/// The machine as the global options describe it: its files and zones, no devices.
class ScriptMachine {
public:
    ScriptMachine(const GlobalOptions& options, const QString& appFolder);
    Q_DISABLE_COPY_MOVE(ScriptMachine)

    const platform::Services& Services() const { return services_; }

private:
    std::unique_ptr<platform::WallClock> clock_;
    platform::TzZoneDatabase zones_;
    platform::LocalFiles files_;
    std::unique_ptr<platform::Account> user_;
    platform::FileSettings settings_;
    platform::AbsentDevices devices_;
    ConsoleDialogs dialogs_;
    platform::SystemRandom random_;
    platform::Services services_;
};

}  // namespace ctl
