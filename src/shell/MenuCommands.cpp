#include "shell/MenuCommands.h"

#include <array>

using namespace Qt::StringLiterals;

namespace shell {

namespace {

struct NumberedMenu {
    float Id;
    QLatin1StringView Entry;
};

constexpr std::array<NumberedMenu, 3> NumberedMenus = {
    {{1, "TimeZone"_L1}, {8, "WindowItem"_L1}, {9, "MainItem"_L1}}};

}  // namespace

void MenuCommands::Handle(const QString& command, ItemHandler handler) {
    handlers_[command] = std::move(handler);
}

void MenuCommands::Handle(const QString& command, const std::function<void()>& handler) {
    handlers_[command] = [handler](int, const MenuItem&) { handler(); };
}

QStringList MenuCommands::Names() const {
    QStringList names;
    for (const auto& [name, handler] : handlers_) {
        names += name;
    }
    return names;
}

bool MenuCommands::Run(const QString& command) const {
    const auto found = handlers_.find(command);
    if (found != handlers_.end()) {
        found->second(0, {});
    }
    return found != handlers_.end();
}

bool MenuCommands::Click(const QString& entry, int index) const {
    const auto found = handlers_.find(CommandOf(entry, index));
    const MenuArray* items = state_.Find(entry);
    if (found == handlers_.end() || items == nullptr || index > items->Count()) {
        return false;
    }
    // A copy: what the handler does may fill the menus anew.
    found->second(index, MenuItem((*items)(index)));
    return true;
}

bool MenuCommands::DoMenuItem(float menuId, int index) const {
    for (const NumberedMenu& menu : NumberedMenus) {
        if (menu.Id == menuId) {
            return Click(menu.Entry, index);
        }
    }
    return false;
}

const QStringList& MenuCommands::ThatDoNothing() {
    static const QStringList names = {
        u"Action"_s,                     // the title of a pop-up
        u"Startup"_s,                    // tells how things are
        u"TempolarkAgentSpeakOption"_s,  // hidden: no agent runs
    };
    return names;
}

}  // namespace shell
