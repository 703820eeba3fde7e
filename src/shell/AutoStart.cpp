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
        // Raw: a comma in a name begins no list of choices.
        mduLib::PutPropertyRaw(key, checked ? QString() : key, autoStartList);
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
                           const std::function<bool(const QString&)>& launch) {
    // A launch may change the list, so that its values are taken from it first.
    QStringList names;
    for (int row = 1; row <= autoStartList.UpperBound(); ++row) {
        if (!autoStartList[row].Value.isEmpty()) {
            names += autoStartList[row].Value;
        }
    }
    bool launchedAny = false;
    for (const QString& name : names) {
        launchedAny = launch(name) || launchedAny;
    }
    return launchedAny;
}

}  // namespace shell
