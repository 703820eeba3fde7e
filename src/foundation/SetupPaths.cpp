#include "foundation/SetupPaths.h"

#include <QCoreApplication>

#include "foundation/FileHelpers.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyMerge.h"
#include "foundation/SettingsFile.h"
#include "platform/Account.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Services.h"

using namespace Qt::StringLiterals;

namespace mduMain {

namespace {

// A step that fails ends its routine; what has been set stays set.
enum class Step { Done, Failed };

void LetEventsRun() {
    if (QCoreApplication::instance() != nullptr) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
}

bool Merge(platform::Files& files, const QString& userFile, const QString& defaultFile) {
    if (!mduLib::MergePropertyFile(files, userFile, defaultFile, userFile, LetEventsRun)) {
        return false;
    }
    // A merge that changed nothing has left the file alone. Its time must move on all the same,
    // else it is merged at every start.
    files.Touch(userFile);
    return true;
}

// An account name may hold a separator ("DOMAIN\name") and must still be one folder below
// AppFolder.
QString AccountFolderName(const QString& userName) {
    QString name = userName;
    for (QChar& character : name) {
        if (character == u'/' || character == u'\\' || character < u' ') {
            character = u'_';
        }
    }
    return name == "."_L1 || name == ".."_L1 ? u"_"_s : name;
}

// A default file that is missing is no failure: the user's file then comes into being when it is
// first saved.
Step CopyUnlessThere(platform::Files& files, const QString& source, const QString& destination) {
    if (mduLib::FileExists(files, destination) || !mduLib::FileExists(files, source) ||
        mduLib::CopyFileTo(files, source, destination, false)) {
        return Step::Done;
    }
    return Step::Failed;
}

Step SetShortcutsFile(PathTable& paths, platform::Files& files) {
    paths.ShortcutsFile = paths.DataFolder + u"/Shortcuts.txt"_s;
    const QString defaultFile = paths.DefaultShortcutsFile();
    if (!mduLib::FileExists(files, paths.ShortcutsFile)) {
        return CopyUnlessThere(files, defaultFile, paths.ShortcutsFile);
    }
    if (mduLib::IsOlderThan(files, paths.ShortcutsFile, defaultFile)) {
        Merge(files, paths.ShortcutsFile, defaultFile);
    }
    return Step::Done;
}

Step SetPathsOfUser(PathTable& paths, platform::Files& files, const QString& zoneStem) {
    for (const QString& folder : {paths.DataFolder, paths.ZoneFileFolder, paths.TimersFolder}) {
        mduLib::EnsureFolder(files, folder);
    }
    paths.TimerFile = paths.TimersFolder + zoneStem + u"Timer.txt"_s;
    paths.ActionFile = paths.DataFolder + u"/Action.txt"_s;
    if (CopyUnlessThere(files, paths.DefaultActionFile(), paths.ActionFile) == Step::Failed) {
        return Step::Failed;
    }
    paths.AutoStartFile = paths.DataFolder + u"/AutoStart.txt"_s;
    return SetShortcutsFile(paths, files);
}

void SetPathsWithoutUser(PathTable& paths) {
    paths.ShortcutsFile = paths.DefaultShortcutsFile();
    paths.ActionFile = paths.DefaultActionFile();
    paths.AutoStartFile = paths.AppFolder + u"/AutoStart.txt"_s;
}

enum class DefaultFile { There, Lost, CopyFailed };

// A copy as old as its source: were it newer, every other zone's file would be merged with it.
bool CopyWithTime(platform::Files& files, const QString& source, const QString& destination) {
    const std::optional<qint64> seconds = files.ModifiedSeconds(source);
    return mduLib::CopyFileTo(files, source, destination, true) && seconds &&
           files.SetModifiedSeconds(destination, *seconds);
}

// A lost default comes back from the user's own file.
DefaultFile GuardDefaultFile(const PathTable& paths, platform::Files& files) {
    const QString defaultFile = paths.ZoneDefaultFile();
    if (mduLib::FileExists(files, defaultFile)) {
        return DefaultFile::There;
    }
    if (!mduLib::FileExists(files, paths.CurrentPropertyFile)) {
        return DefaultFile::Lost;
    }
    return CopyWithTime(files, paths.CurrentPropertyFile, defaultFile) ? DefaultFile::There
                                                                       : DefaultFile::CopyFailed;
}

SetupResult ReportLostDefault(const PathTable& paths, platform::Dialogs& dialogs) {
    constexpr int CriticalIcon = 16;
    dialogs.MessageBox(paths.ZoneDefaultFile() + u" is not found"_s, CriticalIcon,
                       u"Tempolark System Error"_s);
    return SetupResult::DefaultFileLost;
}

// A folder that could not be made tells more than the file that was to lie in it.
SetupResult EndAt(ModuleState& state, const platform::Files& files, const QString& path) {
    state.FailedSetupPath = path;
    for (const QString& folder : {state.Paths.ZoneFileFolder, state.Paths.DataFolder}) {
        if (path.startsWith(folder) && !folder.isEmpty() && !files.FolderExists(folder)) {
            state.FailedSetupPath = folder;
        }
    }
    return SetupResult::Incomplete;
}

enum class Refreshed { Nothing, Created, Merged, Failed };

// File names of the system know no letter case, so that without a user the zone folder is the
// folder of profiles, which exists by now; where they do, it is a folder of its own.
Refreshed BringUpToDate(const PathTable& paths, platform::Files& files, const QString& file,
                        const QString& defaultFile) {
    if (!mduLib::FileExists(files, file)) {
        if (paths.DataFolder.isEmpty()) {
            mduLib::EnsureFolder(files, paths.ZoneFileFolder);
        }
        return mduLib::CopyFileTo(files, defaultFile, file, false) ? Refreshed::Created
                                                                   : Refreshed::Failed;
    }
    return mduLib::IsOlderThan(files, file, defaultFile) && Merge(files, file, defaultFile)
               ? Refreshed::Merged
               : Refreshed::Nothing;
}

SetupResult SetCurrentPropertyFile(ModuleState& state, const platform::Services& services,
                                   const QString& zoneStem) {
    PathTable& paths = state.Paths;
    platform::Files& files = services.FileSystem;
    const QString stem = zoneStem.isEmpty() ? CentralExeName : zoneStem;
    paths.CurrentPropertyFile = paths.ZoneFileFolder + mduLib::AddIniExtension(stem);
    switch (GuardDefaultFile(paths, files)) {
        case DefaultFile::Lost:
            return ReportLostDefault(paths, services.Dialog);
        case DefaultFile::CopyFailed:
            return EndAt(state, files, paths.ZoneDefaultFile());
        case DefaultFile::There:
            break;
    }
    const Refreshed refreshed =
        BringUpToDate(paths, files, paths.CurrentPropertyFile, paths.ZoneDefaultFile());
    if (refreshed == Refreshed::Failed) {
        return EndAt(state, files, paths.CurrentPropertyFile);
    }
    if (refreshed == Refreshed::Created) {
        state.NewPropertyFileCreated = true;
    }
    return SetupResult::Done;
}

void ReadList(const platform::Files& files, const QString& path, ClockProperties& list) {
    list.Reset();
    mduLib::ReadPropertyFile(files, path, list);
}

}  // namespace

void NameProgramFolders(PathTable& paths) {
    paths.SoundFilesFolder = paths.AppFolder + u"/SoundFiles/"_s;
    paths.ImagesFolder = paths.AppFolder + u"/Images/"_s;
    paths.ProfileFolder = paths.AppFolder + u"/Timezones/"_s;
    paths.StylesFolder = paths.AppFolder + u"/Styles/"_s;
    paths.MusicFolder = paths.AppFolder + u"/Music/"_s;
}

void NameUserFolders(PathTable& paths, const QString& userName) {
    const bool known = !userName.isEmpty();
    paths.DataFolder = known ? paths.AppFolder + u'/' + AccountFolderName(userName) : QString();
    const QString& folder = known ? paths.DataFolder : paths.AppFolder;
    paths.ZoneFileFolder = folder + u"/TimeZones/"_s;
    paths.TimersFolder = folder + (known ? u"/Timers/"_s : u"/Timer/"_s);
}

// Sounds and pictures come with the program: their folders are never made.
SetupResult SetupPaths(ModuleState& state, const platform::Services& services, QString& zoneName) {
    zoneName = zoneName.trimmed();
    PathTable& paths = state.Paths;
    NameProgramFolders(paths);
    for (const QString& folder : {paths.ProfileFolder, paths.StylesFolder, paths.MusicFolder}) {
        mduLib::EnsureFolder(services.FileSystem, folder);
    }
    paths.UserName = services.User.UserName().trimmed();
    return SetupUserFiles(state, services, paths.UserName, zoneName);
}

SetupResult SetupUserFiles(ModuleState& state, const platform::Services& services,
                           const QString& userName, const QString& zoneName) {
    const bool usable = mduLib::ZoneNameProblem(zoneName).isEmpty();
    const QString zoneStem = usable ? mduLib::ZoneFileStem(zoneName) : QString();
    PathTable& paths = state.Paths;
    state.FailedSetupPath.clear();
    NameUserFolders(paths, userName);
    if (userName.isEmpty()) {
        SetPathsWithoutUser(paths);
    } else if (SetPathsOfUser(paths, services.FileSystem, zoneStem) == Step::Failed) {
        // The paths are set one after the other: the last one is that of the failure.
        return EndAt(state, services.FileSystem,
                     paths.ShortcutsFile.isEmpty() ? paths.ActionFile : paths.ShortcutsFile);
    }
    return SetCurrentPropertyFile(state, services, zoneStem);
}

bool RefreshCurrentPropertyFile(ModuleState& state, const platform::Services& services) {
    const PathTable& paths = state.Paths;
    return BringUpToDate(paths, services.FileSystem, paths.CurrentPropertyFile,
                         paths.ZoneDefaultFile()) == Refreshed::Merged;
}

SetupResult SetupFiles(ModuleState& state, const platform::Services& services, QString zoneName,
                       ClockProperties& centralProperties) {
    const SetupResult result = SetupPaths(state, services, zoneName);
    if (result == SetupResult::DefaultFileLost) {
        return result;
    }
    PathTable& paths = state.Paths;
    const platform::Files& files = services.FileSystem;
    const QString& folder = paths.DataFolder.isEmpty() ? paths.AppFolder : paths.DataFolder;
    paths.CentralFile = folder + u'/' + CentralExeName + u".ini"_s;
    const QString defaultFile = paths.CentralDefaultFile();
    if (!IsBrokenSettings(files, paths.CentralFile, defaultFile)) {
        BringUpToDate(paths, services.FileSystem, paths.CentralFile, defaultFile);
    }
    ReadList(files, paths.ShortcutsFile, state.ShortcutList);
    centralProperties = ReadSettings(files, paths.CentralFile, defaultFile);
    state.CurrentProperties = centralProperties;
    ReadList(files, paths.AutoStartFile, state.AutoStartList);
    return result;
}

}  // namespace mduMain
