#pragma once

#include <functional>

#include "foundation/Program.h"
#include "shell/CentralSettings.h"

namespace shell {

/// The shell's own settings: the keys of its property file as they hold at this moment, and how
/// they come from the file and go back to it. A broken file is never lost (`mduMain::
/// ReplaceSettings`).
class ShellSettings {
public:
    /// @param tell is given what can't be read or written, and what was saved
    ShellSettings(const Program& program, std::function<void(const QString&)> tell);

    /// The value of a key, without its choices; "0" when there is none of that name.
    QString Setting(const QString& name) const;
    bool Says(const QString& name) const;      ///< a key of Yes and No; all but "No" is Yes
    double Number(const QString& name) const;  ///< its leading number, else 0

    const ClockProperties& Properties() const { return properties_; }
    void Take(const ClockProperties& properties) { properties_ = properties; }
    /// See `ClockProperties::CollectAskedNames`.
    void CollectAskedNames(std::shared_ptr<AskedNames> names) {
        properties_.CollectAskedNames(std::move(names));
    }

    /// Says where a broken file will be kept.
    void TellBrokenSettings() const;

    /// Takes over what others wrote into the file meanwhile; a broken or missing file gives
    /// nothing.
    void ReadAgain();

    void Put(const QString& key, const QString& value);  ///< in memory alone
    bool WriteSettings();  ///< @return false when the file can't be written, which is told

    /// Both at once, so that what the user has set outlasts a crash.
    void WriteSetting(const QString& key, const QString& value);

    /// Where the toolbar stands and its size, in memory alone.
    void PutToolbar(const CentralLook& look) { SaveToolbarLook(look, properties_); }

    /// The look at this moment becomes that of the next start; the user is told.
    void SaveCentralSettings(const CentralLook& look);

    /// The answer to a save that somebody asked for.
    void TellSaved(const QString& what) const;

private:
    const QString& IniFile() const { return program_.Module.Paths.CentralFile; }
    QString DefaultIniFile() const { return program_.Module.Paths.CentralDefaultFile(); }

    Program program_;
    std::function<void(const QString&)> tell_;
    ClockProperties properties_;
};

}  // namespace shell
