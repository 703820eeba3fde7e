#include "shell/ScreenSaver.h"

#include "platform/SettingsStore.h"

using namespace Qt::StringLiterals;

namespace shell {

namespace {

const QString DesktopKey = u"Control Panel\\Desktop"_s;
const QString RunKey = u"Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s;

}  // namespace

QString CurrentScreenSaver(const platform::SettingsStore& settings) {
    return settings.Value(DesktopKey, u"SCRNSAVE.EXE"_s).toString();
}

void FillScreenSaverMenu(MenuArray& menu, const platform::SettingsStore& settings,
                         const QString& appPath) {
    constexpr int times = 12;
    constexpr int step = 10;  // minutes
    const bool ours = CurrentScreenSaver(settings) == appPath;
    for (int i = 1; i <= times; ++i) {
        menu.Load(i) = {QString::number(i * step), {}, !ours, true, false};
    }
    if (ours) {
        menu(1) = {u"Disabled"_s, {}, true, true, false};
    }
}

bool IsInRunKey(const platform::SettingsStore& settings, const QString& name) {
    return !settings.Value(RunKey, name).toString().isEmpty();
}

void RefreshAutoStartItem(MenuItem& item, const platform::SettingsStore& settings,
                          const QString& name) {
    const bool runs = IsInRunKey(settings, name);
    const QString prefix = runs ? u"Disable"_s : u"Enable"_s;
    item.Tag = runs ? u"1"_s : u"0"_s;
    if (!item.Caption.startsWith(prefix)) {
        item.Caption = prefix + u' ' + item.Caption.right(10);
    }
}

}  // namespace shell
