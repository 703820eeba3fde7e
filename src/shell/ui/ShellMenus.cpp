#include "shell/ui/ShellMenus.h"

#include <QMenuBar>
#include <set>

using namespace Qt::StringLiterals;

namespace {

/// Entries whose captions are zones, windows, styles or colours: an ampersand in them is a
/// character. In all others it marks the key.
const std::set<QString>& NamedByUsers() {
    static const std::set<QString> names = {u"TimeZone"_s, u"FileItem"_s,     u"DeleteTimeZone"_s,
                                            u"Opened"_s,   u"OpenedWindow"_s, u"ClockStyles"_s};
    return names;
}

QString Text(const QString& name, QString caption) {
    return NamedByUsers().contains(name) ? caption.replace(u'&', u"&&"_s) : caption;
}

}  // namespace

ShellMenus::ShellMenus(QWidget* owner, shell::MenuState& state, Hooks hooks)
    : QObject(owner), owner_(owner), state_(state), hooks_(std::move(hooks)) {
    for (const shell::MenuTable& table : shell::MenuCatalogue()) {
        QMenu* menu = Make(table.Name, table.Name);
        menu->setTitle(table.Caption);
        connect(menu, &QMenu::aboutToShow, this, [this, name = table.Name] { Refill(name); });
        for (const shell::MenuEntry& entry : table.Entries) {
            MakeChildren(entry, table.Name);
        }
    }
}

QMenu* ShellMenus::Make(const QString& name, const QString& top) {
    QMenu*& menu = menus_[name];
    if (menu == nullptr) {
        menu = new QMenu(owner_);
        menu->setObjectName(name);
        tops_[name] = top;
    }
    return menu;
}

void ShellMenus::MakeChildren(const shell::MenuEntry& entry, const QString& top) {
    if (entry.Children.empty()) {
        return;
    }
    Make(entry.Name, top);
    for (const shell::MenuEntry& child : entry.Children) {
        MakeChildren(child, top);
    }
}

QMenu* ShellMenus::Menu(const QString& name) const {
    const auto found = menus_.find(name);
    return found == menus_.end() ? nullptr : found->second;
}

QSize ShellMenus::SizeNow(const QString& name) {
    Refill(tops_.at(name));
    return menus_.at(name)->sizeHint();
}

void ShellMenus::Popup(const QString& name, const QPoint& place) {
    const QString& top = tops_.at(name);
    if (top != name) {
        Refill(top);
    }
    menus_.at(name)->popup(place);
}

void ShellMenus::EndMenu() {
    for (const auto& [name, menu] : menus_) {
        menu->close();
    }
}

void ShellMenus::AddTo(QMenuBar& bar) const {
    for (const shell::MenuTable& table : shell::MenuCatalogue()) {
        if (!table.Caption.isEmpty()) {
            bar.addMenu(Menu(table.Name));
        }
    }
}

void ShellMenus::Refill(const QString& top) {
    hooks_.Refresh(top);
    for (const shell::MenuTable& table : shell::MenuCatalogue()) {
        if (table.Name == top) {
            Fill(*Menu(top), table.Entries);
        }
    }
}

void ShellMenus::Fill(QMenu& menu, const std::vector<shell::MenuEntry>& entries) {
    menu.clear();
    for (const shell::MenuEntry& entry : entries) {
        if (entry.Children.empty()) {
            AddItems(menu, entry.Name);
            continue;
        }
        const shell::MenuItem& item = state_[entry.Name](1);
        if (item.Visible) {
            QMenu* sub = Menu(entry.Name);
            sub->setTitle(item.Caption);
            menu.addMenu(sub);
            Fill(*sub, entry.Children);
        }
    }
}

void ShellMenus::AddItems(QMenu& menu, const QString& name) {
    if (name.isEmpty()) {
        menu.addSeparator();
        return;
    }
    const shell::MenuArray& items = state_[name];
    for (int i = 1; i <= items.Count(); ++i) {
        const shell::MenuItem& item = items(i);
        if (!item.Visible) {
            continue;
        }
        if (shell::IsSeparator(item)) {
            menu.addSeparator();
            continue;
        }
        const QString keys = item.Keys.isEmpty() ? QString() : u'\t' + item.Keys;
        QAction* action = menu.addAction(Text(name, item.Caption) + keys);
        action->setObjectName(u"%1(%2)"_s.arg(name).arg(i));
        action->setEnabled(item.Enabled);
        action->setCheckable(item.Checked);
        action->setChecked(item.Checked);
        connect(action, &QAction::triggered, this, [this, name, i] { hooks_.Click(name, i); });
    }
}
