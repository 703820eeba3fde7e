#pragma once

#include <QString>

#include "foundation/ModuleState.h"

namespace platform {
struct Services;
}

/// Start-up: folders, per-user files and their merges with newer defaults.
namespace mduMain {

/// The base name of the shell's executable; its property file is named after it.
inline const QString CentralExeName = QStringLiteral("TempolarkCentral");

enum class SetupResult {
    Done,
    Incomplete,      ///< a file of the user can't be made: what was set till then stays set, the
                     ///< paths behind it are empty; `ModuleState::FailedSetupPath` names it
    DefaultFileLost  ///< `ZoneDefaultFile` is gone and nothing can restore it: the program must end
};

/// Names the folders that stand beside the executable, from `AppFolder`; makes none.
void NameProgramFolders(PathTable& paths);

/// Names the folders of the account @p userName, or those that serve without one, below
/// `AppFolder`; makes none.
void NameUserFolders(PathTable& paths, const QString& userName);

/// Fills the path table for `state.Paths.AppFolder` and the user, makes the folders, and brings the
/// user's files into being or up to date. @p zoneName is trimmed in place.
SetupResult SetupPaths(ModuleState& state, const platform::Services& services, QString& zoneName);

/// The part of it that depends on the user.
SetupResult SetupUserFiles(ModuleState& state, const platform::Services& services,
                           const QString& userName, const QString& zoneName);

/// Brings the file named by `CurrentPropertyFile` into being or up to date. @return true when it
/// merged the file.
bool RefreshCurrentPropertyFile(ModuleState& state, const platform::Services& services);

/// The file work of the shell's `ConfigSetup` behind the choice of the zone name: paths, the
/// shell's file, the lists. @p centralProperties receives the shell's own keys; the defaults where
/// its file is broken, which is left as it is (`IsBrokenSettings`).
SetupResult SetupFiles(ModuleState& state, const platform::Services& services, QString zoneName,
                       ClockProperties& centralProperties);

}  // namespace mduMain
