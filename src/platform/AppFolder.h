#pragma once

#include <QString>

namespace platform {

/// Where the program's folder may lie.
struct AppFolderPlaces {
    QString ExecutableFolder;  ///< where the executable stands
    QString UserFolder;        ///< the user's own place for the program's data
    QString InstalledData;     ///< the data as it was installed; may not exist
};

/// The places on this machine.
AppFolderPlaces FindAppFolderPlaces();

/// The program folder where none is named: the executable's own where the user may write there and
/// the data stands beside it, else the user's. It touches nothing.
QString ChooseAppFolder(const AppFolderPlaces& places);

/// Makes a program folder that is not there yet, and marks one that is new or empty as one that is
/// to be filled. @return why it can't be one; empty when it can
QString PrepareAppFolder(const QString& folder);

/// Whether a folder holds files, but not those of a program folder: somebody's documents. The
/// user's own place is the program's, whatever else has been put there.
bool HoldsOtherFiles(const QString& folder, const AppFolderPlaces& places);

/// Fills a prepared folder that is marked, and goes on with one whose filling broke off. The user's
/// own place is brought up to date as well: default files that have become newer come over again,
/// profiles of cities only while they are missing; nothing of the user's is touched. Every other
/// folder is left as it is.
/// @return why it could not be filled, and then nothing of this run is left in it; empty when it is
QString FillAppFolder(const QString& folder, const AppFolderPlaces& places);

/// `FillAppFolder`; a folder that has its `ini`, but not the default file in it, counts as one
/// whose filling broke off, as long as there is data to fill it with.
QString CompleteAppFolder(const QString& folder, const AppFolderPlaces& places);

}  // namespace platform
