#include "shell/ConfigSetup.h"

#include "foundation/FileHelpers.h"
#include "foundation/PropertyLookup.h"
#include "foundation/SetupPaths.h"
#include "platform/WallClock.h"
#include "platform/ZoneDatabase.h"
#include "shell/AutoStart.h"
#include "timezones/StartZone.h"
#include "timezones/UnknownZone.h"
#include "timezones/ZoneEdition.h"

using namespace Qt::StringLiterals;

namespace shell {

bool IsScreenSaverRun(const QString& commandLine) {
    return commandLine == u"/s"_s;
}

bool NamesAClock(const QString& commandLine) {
    const QString name = commandLine.trimmed();
    return !name.isEmpty() && !IsScreenSaverRun(commandLine) &&
           mduLib::ZoneNameProblem(name).isEmpty();
}

QString NoticeOf(const Program& program, const QString& commandLine) {
    return NamesAClock(commandLine)
               ? mduTimeZones::UnknownClockNotice(program.Services, program.Module.Paths,
                                                  commandLine.trimmed())
               : QString();
}

bool ConfigSetup(const Program& program, ShellSettings& settings, const UserLists& lists,
                 const std::function<void(const QString&)>& tell) {
    const mduTimeZones::StartZone zone =
        mduTimeZones::ChooseStartZone(program.Services, program.Module.CommandLine);
    if (!zone.Problem.isEmpty()) {
        tell(zone.Problem);
    }
    tell(mduTimeZones::OldEditionNotice(program.Services.Zones.Edition(),
                                        program.Services.Clock.Now().date()));
    ClockProperties properties;
    const mduMain::SetupResult result =
        mduMain::SetupFiles(program.Module, program.Services, zone.Name, properties);
    settings.Take(properties);
    if (result == mduMain::SetupResult::Incomplete) {
        tell(u"%1 can't be made"_s.arg(program.Module.FailedSetupPath));
    }
    lists.TellUnreadableLists();
    settings.TellBrokenSettings();
    return result != mduMain::SetupResult::DefaultFileLost;
}

bool LaunchAtStart(const ModuleState& module, const std::function<bool(const QString&)>& launch) {
    const bool launchedAny = LaunchAutoStartClocks(module.AutoStartList, launch);
    const QString name = module.CommandLine.trimmed();
    const bool launchedNamed = NamesAClock(module.CommandLine) &&
                               mduLib::GetPropertyRaw(name, module.AutoStartList) != name &&
                               launch(name);
    return launchedNamed || launchedAny;
}

}  // namespace shell
