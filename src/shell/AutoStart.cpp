#include "shell/AutoStart.h"

#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;

namespace shell {

void MarkAutoStartItems(MenuArray& opened, const ClockProperties& autoStartList) {
    for (int i = 1; i <= opened.Count(); ++i) {
        const QString value = mduLib::GetProperty(opened(i).Caption, autoStartList);
        opened(i).Checked = value != u"0"_s && !value.isEmpty();
    }
}

void SetAutoStartEntry(ClockProperties& autoStartList, const MenuArray& opened, const QString& name,
                       bool checked) {
    const auto set = [&](const QString& key) {
        mduLib::PutProperty(key, checked ? QString() : key, autoStartList);
    };
    if (name != u"All"_s) {
        set(name);
        return;
    }
    for (int i = 1; i < opened.Count(); ++i) {
        set(opened(i).Caption);
    }
}

bool LaunchAutoStartClocks(const ClockProperties& autoStartList,
                           const std::function<void(const QString&)>& launch) {
    bool launchedAny = false;
    // A launch may change the list, so that it is read from a copy.
    const ClockProperties list = autoStartList;
    for (int row = 1; row <= list.UpperBound(); ++row) {
        if (!list[row].Value.isEmpty()) {
            launch(list[row].Value);
            launchedAny = true;
        }
    }
    return launchedAny;
}

}  // namespace shell
