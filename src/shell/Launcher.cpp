#include "shell/Launcher.h"

#include "foundation/FileHelpers.h"
#include "foundation/FilePickers.h"
#include "foundation/OpenClocks.h"
#include "platform/Dialogs.h"
#include "shell/ClockCommands.h"
#include "timezones/ZoneSources.h"

using namespace Qt::StringLiterals;

namespace shell {

namespace {

constexpr int FewestRows = 25;  // of a property file that is in order

}  // namespace

int Launcher::LaunchTempolark(QString name) {
    if (name.isEmpty()) {
        name = mduTimeZones::GetLocalZone(program_.Services).StandardName;
    }
    if (IForm* open = mduLib::FindClock(program_.Windows, name)) {
        return ShowOpen(*open, name);
    }
    IClock* clock = makeClock_();
    if (!clock->ShowMeMDIChild(name)) {
        delete clock;
        status_(u"Failed to launch Tempolark for "_s + name + u" due to run of memory."_s);
        return 0;
    }
    status_({});
    const int handle = clock->hwnd();
    if (clock->Name() == ClockWindowName) {
        lastOpened_.PushLastOpened(name);
    }
    if (program_.Module.CurrentProperties.UpperBound() >= FewestRows) {
        status_(u"Launched Tempolark for "_s + name + u" successfully."_s);
    } else {
        status_(
            u"The property file of the time zone has been corrupted, please open the property window and then refresh it by default"_s);
    }
    return handle;
}

int Launcher::ShowOpen(IForm& clock, const QString& name) {
    mduLib::BringToFront(clock);
    lastOpened_.PushLastOpened(name);
    status_(u"Tempolark for "_s + name + u" is open already."_s);
    return clock.hwnd();
}

int Launcher::LaunchFromFileDialog() {
    const QString file = mduUILib::PickFile(program_.Services.Dialog, u"Launch Tempolark"_s,
                                            u"Time Zone"_s, program_.Module.Paths);
    if (file.right(4).toLower() != u".ini"_s) {
        return 0;
    }
    return LaunchTempolark(mduLib::FileBaseName(file, false));
}

}  // namespace shell
