// The shell's toolbar, its pop-up menus and what their items do.
#include <QMdiSubWindow>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>
#include <functional>
#include <map>

#include "foundation/FileHelpers.h"
#include "foundation/Numbers.h"
#include "shell/AutoStart.h"
#include "shell/ClockCommands.h"
#include "shell/FileList.h"
#include "shell/OpenedMenu.h"
#include "shell/ui/frmMain.h"
#include "timezones/ZoneSources.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int MostFiles = 15;
constexpr float TimeZoneMenu = 1;
constexpr float WindowMenu = 8;
constexpr float MainMenu = 9;

/// A name as a menu shows it: an ampersand is a character, not a key.
QString MenuText(QString caption) {
    return caption.replace(u'&', u"&&"_s);
}

/// Shows a menu array in a menu; a click passes the item's index on.
void ShowItems(QMenu& menu, const shell::MenuArray& items, const QObject* context,
               const std::function<void(int)>& onClick) {
    for (int i = 1; i <= items.Count(); ++i) {
        const shell::MenuItem& item = items(i);
        if (!item.Visible) {
            continue;
        }
        QAction* action = menu.addAction(MenuText(item.Caption));
        action->setEnabled(item.Enabled);
        action->setCheckable(item.Checked);
        action->setChecked(item.Checked);
        QObject::connect(action, &QAction::triggered, context, [onClick, i] { onClick(i); });
    }
}

}  // namespace

void frmMain::MakeToolbar() {
    auto* bar = new QToolBar(u"Tool Bar"_s, this);
    bar->setObjectName(u"toolbar"_s);
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    addToolBar(bar);
    const auto lines = [](const QStringList& texts) { return texts.join(u"\r\n"_s); };
    bar->addWidget(AddButton(u"Launch"_s,
                             lines({u"Launch clocks"_s, u"Launch previous opened clocks"_s,
                                    u"Choose timezones"_s, u"Close Tempolark Central"_s}),
                             MakeFileMenu()));
    const std::map<QString, QString> toolTips = {
        {u"Close"_s, u"Close opened clocks"_s},
        {u"Disable"_s, u"Disable opened clocks"_s},
        {u"Enable"_s, u"Enable opened clocks"_s},
        {u"Maximize"_s, u"Maximize opened clocks"_s},
        {u"Minimize"_s, u"Minimize opened clocks"_s},
        {u"Restore"_s, u"Restore opened clocks"_s},
        {u"Auto Start"_s, u"Set the selected clock\r\nto start automatically"_s},
    };
    for (const shell::OpenedCommand& command : shell::OpenedCommands()) {
        bar->addWidget(
            AddButton(command.Tag, toolTips.at(command.Tag), MakeOpenedMenu(command.Tag)));
    }
    bar->addWidget(
        AddButton(u"Organize Windows"_s,
                  lines({u"Tile window"_s, u"Cascade window"_s, u"Arrange icons"_s,
                         u"Maximise all"_s, u"Restore all"_s, u"Minimise all"_s, u"Close all"_s}),
                  MakeWindowMenu()));
}

QToolButton* frmMain::AddButton(const QString& tag, const QString& toolTip, QMenu* menu) {
    auto* button = new QToolButton(this);
    button->setObjectName(u"tool_"_s + tag);
    button->setText(tag);
    button->setToolTip(toolTip);
    button->setMenu(menu);
    button->setPopupMode(QToolButton::InstantPopup);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

QMenu* frmMain::MakeFileMenu() {
    auto* menu = new QMenu(u"File"_s, this);
    menu->setObjectName(u"File"_s);
    openMenu_ = menu->addMenu(u"Open"_s);
    openMenu_->setObjectName(u"Open"_s);
    lastOpenedMenu_ = menu->addMenu(u"Open Last Opened"_s);
    lastOpenedMenu_->setObjectName(u"LastOpened"_s);
    QMenu* zones = menu->addMenu(u"Choose Time Zone"_s);
    zones->setObjectName(u"ChooseTimeZone"_s);
    connect(zones, &QMenu::aboutToShow, this, [this, zones] { FillZoneMenu(*zones); });
    menu->addSeparator();
    connect(menu->addAction(u"&Exit"_s), &QAction::triggered, this, [this] { Unload(); });
    connect(menu, &QMenu::aboutToShow, this, [this] { FillFileMenu(); });
    return menu;
}

void frmMain::FillFileMenu() {
    platform::Files& files = program_.Services.FileSystem;
    const PathTable& paths = program_.Module.Paths;
    shell::FillFileList(timeZone_, files, paths.ZoneFileFolder, u"More"_s, MostFiles);
    shell::MarkOpenItems(timeZone_, program_.Windows);
    openMenu_->clear();
    ShowItems(*openMenu_, timeZone_, this, [this](int index) { DoMenuItem(TimeZoneMenu, index); });

    // A list that could not be saved is not read back: it would come without its newest names.
    if (SaveOpenedForms()) {
        lastOpened_.LoadOpenedForms(files, paths.OpenedFormsFile());
    }
    lastOpened_.FillLastOpenedMenu(fileItem_, files, paths);
    shell::MarkOpenItems(fileItem_, program_.Windows);
    lastOpenedMenu_->clear();
    ShowItems(*lastOpenedMenu_, fileItem_, this, [this](int index) { OpenLast(index); });
}

// One sub-menu for each offset, named by what stands in front of the cities: "(GMT-05:00)".
void frmMain::FillZoneMenu(QMenu& menu) {
    menu.clear();
    std::map<std::pair<int, QString>, std::vector<TimeZoneRecord>> byOffset;
    for (const TimeZoneRecord& zone : mduTimeZones::ListWindowsTimeZones(program_.Services)) {
        if (!zone.StandardName.isEmpty()) {
            const QString offset = zone.DisplayName.section(u')', 0, 0) + u')';
            byOffset[{-zone.StandardBias, offset}].push_back(zone);
        }
    }
    for (const auto& [offset, zones] : byOffset) {
        QMenu* sub = menu.addMenu(offset.second);
        for (const TimeZoneRecord& zone : zones) {
            const QString cities = zone.DisplayName.section(u')', 1).trimmed();
            QAction* action = sub->addAction(MenuText(cities + u"\t"_s + zone.StandardName));
            connect(action, &QAction::triggered, this,
                    [this, name = zone.StandardName] { LaunchTempolark(name); });
        }
    }
}

void frmMain::OpenLast(int index) {
    const auto open = [this](const QString& name) {
        LaunchTempolark(name);
        lastOpened_.PushLastOpened(name);
    };
    const shell::MenuItem item = fileItem_(index);
    if (item.Caption == u"All"_s) {
        QStringList names;
        for (int i = 1; i < fileItem_.Count(); ++i) {
            names += fileItem_(i).Tag;
        }
        for (const QString& name : names) {
            open(name);
        }
    } else if (item.Caption != u"None"_s) {
        open(item.Tag);
    } else {
        return;
    }
    SetHeaderVisible(false);
}

QMenu* frmMain::MakeOpenedMenu(const QString& tag) {
    auto* menu = new QMenu(this);
    menu->setObjectName(u"OpenedAction_"_s + tag);
    connect(menu, &QMenu::aboutToShow, this, [this, menu, tag] { FillOpenedAction(tag, *menu); });
    return menu;
}

void frmMain::FillOpenedAction(const QString& tag, QMenu& menu) {
    const std::vector<shell::OpenedCommand>& commands = shell::OpenedCommands();
    const auto command = std::find_if(commands.begin(), commands.end(),
                                      [&tag](const auto& each) { return each.Tag == tag; });
    shell::FillOpenedMenu(opened_, program_.Windows, ClockWindowName, command->StyleMask);
    if (command->Run == nullptr) {
        shell::MarkAutoStartItems(opened_, program_.Module.AutoStartList);
    }
    menu.clear();
    menu.addSection(tag);
    ShowItems(menu, opened_, this, [this, tag](int index) { RunOpenedItem(tag, index); });
}

void frmMain::RunOpenedItem(const QString& tag, int index) {
    for (const shell::OpenedCommand& command : shell::OpenedCommands()) {
        if (command.Tag != tag) {
            continue;
        }
        if (command.Run != nullptr) {
            command.Run(program_.Windows, opened_(index).Tag);
            return;
        }
        const bool all = index == opened_.Count();
        shell::SetAutoStartEntry(program_.Module.AutoStartList, opened_, opened_(index).Caption,
                                 opened_(all ? 1 : index).Checked);
        SaveAutoStartList();
        return;
    }
}

QMenu* frmMain::MakeWindowMenu() {
    auto* menu = new QMenu(u"&Window"_s, this);
    menu->setObjectName(u"Window"_s);
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { FillWindowMenu(*menu); });
    return menu;
}

void frmMain::FillWindowMenu(QMenu& menu) {
    menu.clear();
    const QStringList captions = {u"Tile"_s,         u"Cascade"_s,     u"Arrang Icons"_s,
                                  u"Maximise All"_s, u"Restore All"_s, u"Minimise All"_s,
                                  QString(),         u"Close All"_s};
    for (int i = 1; i <= captions.size(); ++i) {
        if (captions[i - 1].isEmpty()) {
            menu.addSeparator();
            continue;
        }
        connect(menu.addAction(captions[i - 1]), &QAction::triggered, this,
                [this, i] { DoMenuItem(WindowMenu, i); });
    }
    const QString windowNames =
        ClockWindowName + u"frmProperties"_s + u"frmShortcuts"_s + u"frmTimeZones"_s;
    shell::FillOpenedMenu(openedWindow_, program_.Windows, windowNames, shell::StyleFilter::None);
    if (!openedWindow_(1).Enabled) {
        ShowItems(menu, openedWindow_, this, [](int) {});
        return;
    }
    menu.addSeparator();
    for (int i = 1; i <= openedWindow_.Count(); ++i) {
        const IForm* active = ActiveChild();
        openedWindow_(i).Checked =
            active != nullptr && mduAPILib::IntegerValue(openedWindow_(i).Tag) == active->hwnd();
    }
    ShowItems(menu, openedWindow_, this, [this](int index) {
        shell::ActivateWindowByHandle(program_.Windows,
                                      mduAPILib::IntegerValue(openedWindow_(index).Tag));
    });
}

void frmMain::DoMenuItem(float menuId, int index) {
    if (menuId == TimeZoneMenu) {
        if (timeZone_(index).Tag.isEmpty()) {
            launcher_.LaunchFromFileDialog();
        } else {
            LaunchTempolark(timeZone_(index).Tag);
        }
        SetHeaderVisible(false);
    } else if (menuId == WindowMenu) {
        switch (index) {
            case 1:
            case 2:
            case 3:
                Arrange(static_cast<shell::Arrangement>(index));
                break;
            case 4:
                shell::MaximiseAllChildren(program_.Windows, *this);
                break;
            case 5:
                shell::RestoreAllChildren(program_.Windows);
                break;
            case 6:
                shell::MinimiseAllChildren(program_.Windows);
                break;
            case 8:
                shell::CloseAllChildren(program_.Windows);
                break;
            default:
                break;
        }
    } else if (menuId == MainMenu && index == 3) {
        Unload();
    }
}

IForm* frmMain::ActiveChild() const {
    const QMdiSubWindow* active = area_->activeSubWindow();
    return active != nullptr ? dynamic_cast<IForm*>(active->widget()) : nullptr;
}

void frmMain::Arrange(shell::Arrangement code) {
    if (code == shell::Arrangement::Cascade) {
        area_->cascadeSubWindows();
        return;
    }
    const bool icons = code == shell::Arrangement::Icons;
    QList<QMdiSubWindow*> children;
    for (QMdiSubWindow* child : area_->subWindowList()) {
        if (child->isVisible() && child->isMinimized() == icons) {
            children += child;
        }
    }
    const int count = static_cast<int>(children.size());
    // Not the viewport's: what is arranged needs no scroll bars any more.
    const QSize room = area_->contentsRect().size();
    const std::vector<QRect> places =
        icons ? shell::IconPlaces(count, room, children.isEmpty() ? QSize() : children[0]->size())
              : shell::TilePlaces(count, room, code == shell::Arrangement::TileColumns);
    for (int i = 0; i < count; ++i) {
        if (!icons) {
            children[i]->showNormal();
        }
        children[i]->setGeometry(places[static_cast<std::size_t>(i)]);
    }
}
