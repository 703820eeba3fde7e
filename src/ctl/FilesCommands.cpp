#include <QJsonObject>

#include "ctl/Command.h"
#include "foundation/FileHelpers.h"
#include "foundation/SetupPaths.h"
#include "timezones/ZoneSources.h"

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
            {u"OpenedFormsFile"_s, paths.OpenedFormsFile()}};
}

int Setup(Context& context) {
    QString zoneName = context.Arguments.value(0);
    if (zoneName.isEmpty()) {
        zoneName = mduTimeZones::GetLocalZone(context.Services).StandardName;
    }
    const QString problem = mduLib::ZoneNameProblem(zoneName.trimmed());
    if (!problem.isEmpty()) {
        Complain(problem);
    }
    context.State.CommandLine = context.Arguments.value(0);
    ClockProperties centralProperties;
    const mduMain::SetupResult result =
        mduMain::SetupFiles(context.State, context.Services, zoneName, centralProperties);
    PrintJson(QJsonDocument(PathsAsJson(context.State.Paths)));
    return result == mduMain::SetupResult::Done && problem.isEmpty() ? Done : OperationFailed;
}

}  // namespace

std::vector<Command> FilesCommands() {
    return {{u"files"_s, u"setup"_s, u"[ZONE]"_s, 0, 1, {}, Setup}};
}

}  // namespace ctl
