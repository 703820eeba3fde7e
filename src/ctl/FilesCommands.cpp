#include <QJsonObject>

#include "ctl/Command.h"
#include "foundation/SetupPaths.h"
#include "timezones/StartZone.h"

using namespace Qt::StringLiterals;

namespace ctl {

namespace {

QJsonObject PathsAsJson(const PathTable& paths) {
    return {{u"AppFolder"_s, paths.AppFolder},
            {u"UserName"_s, paths.UserName},
            {u"DataFolder"_s, paths.DataFolder},
            {u"SoundFilesFolder"_s, paths.SoundFilesFolder},
            {u"ImagesFolder"_s, paths.ImagesFolder},
            {u"ProfileFolder"_s, paths.ProfileFolder},
            {u"StylesFolder"_s, paths.StylesFolder},
            {u"MusicFolder"_s, paths.MusicFolder},
            {u"ZoneFileFolder"_s, paths.ZoneFileFolder},
            {u"TimersFolder"_s, paths.TimersFolder},
            {u"TimerFile"_s, paths.TimerFile},
            {u"ActionFile"_s, paths.ActionFile},
            {u"AutoStartFile"_s, paths.AutoStartFile},
            {u"ShortcutsFile"_s, paths.ShortcutsFile},
            {u"CentralFile"_s, paths.CentralFile},
            {u"CurrentPropertyFile"_s, paths.CurrentPropertyFile},
            {u"ZoneDefaultFile"_s, paths.ZoneDefaultFile()},
            {u"CentralDefaultFile"_s, paths.CentralDefaultFile()},
            {u"DefaultShortcutsFile"_s, paths.DefaultShortcutsFile()},
            {u"DefaultActionFile"_s, paths.DefaultActionFile()},
            {u"OpenedFormsFile"_s, paths.OpenedFormsFile()},
            {u"AppEXEName"_s, paths.AppEXEName()}};
}

int Setup(Context& context) {
    context.State.CommandLine = context.Arguments.value(0);
    const mduTimeZones::StartZone zone =
        mduTimeZones::ChooseStartZone(context.Services, context.State.CommandLine);
    if (!zone.Problem.isEmpty()) {
        Complain(zone.Problem);
    }
    ClockProperties centralProperties;
    const mduMain::SetupResult result =
        mduMain::SetupFiles(context.State, context.Services, zone.Name, centralProperties);
    if (result == mduMain::SetupResult::Incomplete) {
        Complain(context.State.FailedSetupPath + u" can't be made"_s);
    }
    PrintJson(QJsonDocument(PathsAsJson(context.State.Paths)));
    return result == mduMain::SetupResult::Done && zone.Problem.isEmpty() ? Done : OperationFailed;
}

}  // namespace

std::vector<Command> FilesCommands() {
    return {{u"files"_s, u"setup"_s, u"[ZONE]"_s, 0, 1, {}, Setup, false, FolderNeed::Starts}};
}

}  // namespace ctl
