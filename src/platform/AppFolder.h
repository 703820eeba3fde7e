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

/// The program folder: the executable's own where the user may write there and the data stands
/// beside it, else the user's, which is filled from the installed data. Default files that have
/// become newer since are brought over again, profiles of cities only while they are missing;
/// nothing of the user's is touched.
QString ChooseAppFolder(const AppFolderPlaces& places);

}  // namespace platform
