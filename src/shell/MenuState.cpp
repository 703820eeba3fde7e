#include "shell/MenuState.h"

namespace shell {

MenuState::MenuState() {
    for (const MenuTable& menu : MenuCatalogue()) {
        for (const MenuEntry& entry : menu.Entries) {
            Take(entry);
        }
    }
}

void MenuState::Take(const MenuEntry& entry) {
    MenuArray& array = arrays_[entry.Name];
    int index = 0;
    for (const MenuRow& row : entry.Rows) {
        array.Load(++index) = {row.Caption, {}, !row.Caption.isEmpty(), true, false};
    }
    for (const MenuEntry& child : entry.Children) {
        Take(child);
    }
}

}  // namespace shell
