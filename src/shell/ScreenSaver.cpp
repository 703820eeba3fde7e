#include "shell/ScreenSaver.h"

#include "foundation/SystemSettings.h"
#include "platform/SettingsStore.h"

using namespace Qt::StringLiterals;

namespace shell {

void FillScreenSaverMenu(MenuArray& menu, const platform::SettingsStore& settings,
                         const QString& appPath) {
    const QStringList captions = mduLib::ScreenSaverTimes(settings, appPath);
    for (int i = 1; i <= mduLib::MostScreenSaverTimes; ++i) {
        const bool visible = i <= captions.size();
        menu.Load(i) = {visible ? captions[i - 1] : QString(), {}, visible, true, false};
    }
}

void RefreshAutoStartItem(MenuItem& item, const platform::SettingsStore& settings,
                          const QString& name) {
    const bool runs = mduLib::IsInRunKey(settings, name);
    const QString prefix = runs ? u"Disable"_s : u"Enable"_s;
    item.Tag = runs ? u"1"_s : u"0"_s;
    if (!item.Caption.startsWith(prefix)) {
        item.Caption = prefix + u' ' + item.Caption.right(10);
    }
}

}  // namespace shell
