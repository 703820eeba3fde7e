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
/// that changes nothing. Nobody is ever waited for.
class ConsoleDialogs final : public platform::Dialogs {
public:
    /// Prints "title: text". @return 7 (No) where @p flags ask for Yes and No (4), else 1 (OK)
    int MessageBox(const QString& text, int flags, const QString& title) override;
    /// The empty text, as if the user had cancelled; the same goes for `SaveFile`.
    QString OpenFile(const QString&, const QString&, const QString&) override { return {}; }
    QString SaveFile(const QString&, const QString&, const QString&) override { return {}; }
    /// -1: no colour was chosen.
    int PickColour(int) override { return -1; }
};

/// The machine as the global options describe it: its files and zones, no devices.
///
/// With `Now`, `Utc` or `LocalZone` given, the time stands still: at `Now` or `Utc`, or at the
/// present moment as that zone's clocks show it. Without either the machine's own clock runs. A
/// user's name that is given replaces the account's, and a seed makes all random choices the same
/// at each run. Settings are kept in "Settings.ini" of the program folder.
class ScriptMachine {
public:
    /// @param options are read here and need not outlive the machine
    /// @param appFolder the full path of the program folder, without a "/" at its end
    ScriptMachine(const GlobalOptions& options, const QString& appFolder);
    Q_DISABLE_COPY_MOVE(ScriptMachine)

    /// All of it belongs to this machine and goes with it.
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
