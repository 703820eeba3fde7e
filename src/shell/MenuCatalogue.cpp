#include "shell/MenuCatalogue.h"

#include <map>

using namespace Qt::StringLiterals;

namespace shell {

namespace {

const MenuRow Line = {{}, u"-"_s};
const MenuEntry Dash = {{}, {Line}, {}};

MenuEntry Item(const QString& name, const QString& caption) {
    return {name, {{name, caption}}, {}};
}

/// Items of one command, which goes by their numbers, captions or Tags.
MenuEntry Items(const QString& name, const QStringList& captions) {
    MenuEntry entry{name, {}, {}};
    for (const QString& caption : captions) {
        entry.Rows.push_back(caption == u"-"_s ? Line : MenuRow{name, caption});
    }
    return entry;
}

/// A list that is filled while the program runs.
MenuEntry List(const QString& name) {
    return Item(name, {});
}

MenuEntry Sub(const QString& name, const QString& caption, std::vector<MenuEntry> children) {
    return {name, {{{}, caption}}, std::move(children)};
}

MenuTable FileMenu() {
    return {u"File"_s,
            u"File"_s,
            {Item(u"NewClock"_s, u"New"_s), Sub(u"Open"_s, u"Open"_s, {List(u"TimeZone"_s)}),
             Sub(u"LastOpened"_s, u"Open Last Opened"_s, {List(u"FileItem"_s)}),
             Item(u"ChooseTimeZone"_s, u"Choose Time Zone"_s),
             Sub(u"Remove"_s, u"Remove Time Zone"_s, {List(u"DeleteTimeZone"_s)}), Dash,
             Item(u"Exit"_s, u"&Exit"_s), Dash, Item(u"SetShortcut"_s, u"Set Shortcuts"_s)}};
}

MenuTable AgentMenu() {
    return {u"TempolarkAgent"_s,
            {},
            {Sub(u"TempolarkAgentSpeakerMenu"_s, u"Tempolark Agent Speaker"_s,
                 {Items(u"TempolarkAgentSpeakOption"_s,
                        {u"Speak Time"_s, u"Speak/Show Time"_s, u"None"_s})}),
             {u"sp1"_s, {Line}, {}},
             Items(u"TempolarkAgentAction"_s, {u"Remove Me From Tray"_s, u"Close Me"_s})}};
}

MenuTable MainMenu() {
    return {
        u"MainMenu"_s,
        {},
        {Item(u"AutoStart"_s, u"Auto Start"_s),
         Sub(u"SetScreenSaverMainMenu"_s, u"Set Screen Saver"_s, {List(u"ScreenSaverTimeMain"_s)}),
         Dash,
         {u"MainItem"_s,
          {{},
           Line,
           {u"Exit"_s, u"Exit"_s},
           Line,
           {u"Help"_s, u"Help"_s},
           {u"About"_s, u"About"_s},
           Line,
           {u"SaveTempolarkCentralSettings"_s, u"Save Current Settings"_s},
           {u"Properties"_s, u"Properties"_s}},
          {}}}};
}

// What they do goes by their numbers, see `EditActionOf`.
MenuTable EditMenu() {
    return {u"Edit"_s,
            u"&Edit"_s,
            {Items(u"EditItem"_s,
                   {u"Undo"_s, u"Redo"_s, u"Cut"_s, u"Copy"_s, u"Paste"_s, u"-"_s, u"Delete"_s,
                    u"Clear"_s, u"Select All"_s, u"-"_s, u"Find"_s, u"Check Spelling"_s})}};
}

MenuEntry StatusBarMenu() {
    return Sub(u"StatusBarMenu"_s, u"Status Bar"_s,
               {Item(u"StatusBarAction"_s, u"Hide Status Bar"_s),
                Item(u"ClearStatusMessage"_s, u"Clear Status Message"_s)});
}

MenuEntry ToolBarMenu() {
    return Sub(u"ToolBarMenu"_s, u"Tool Bar"_s,
               {Sub(u"ToolBarSizeMenu"_s, u"ToolBar Size"_s,
                    {Items(u"ToolBarSize"_s, {u"Small Size"_s, u"Small Size with Caption"_s,
                                              u"Large Size"_s, u"Large Size with Caption"_s})}),
                Sub(u"ToolBarPositionMenu"_s, u"Tool Bar Position"_s,
                    {Items(u"ToolBarPositions"_s,
                           {u"Top"_s, u"Bottom"_s, u"Left"_s, u"Right"_s, u"Hide"_s})}),
                Item(u"AutoShowToolTips"_s, u"Auto Show Tool Tips"_s),
                Item(u"ToolbarCustomize"_s, u"Customize Toolbar"_s),
                Item(u"SaveToolbarSetting"_s, u"Save Current Toolbar Setting"_s)});
}

/// Its one item has the number 15.
MenuEntry ToolsItems() {
    std::vector<MenuRow> rows(15);
    rows.back() = {u"Startup"_s, u"Startup"_s};
    return {u"ToolsItem"_s, rows, {}};
}

// Whatever can be hidden is brought back from here, too: the menu bar itself always stays.
MenuTable ViewMenu() {
    return {u"View"_s,
            u"&View"_s,
            {StatusBarMenu(),
             ToolBarMenu(),
             Item(u"WindowTitleBar"_s, u"Show Window Title Bar"_s),
             {u"ViewItem"_s, {{}, {}, Line}, {}},
             ToolsItems()}};
}

/// On a right click on the menu bar.
MenuTable BarsMenu() {
    return {u"BarsMenu"_s, {}, {StatusBarMenu(), ToolBarMenu()}};
}

MenuTable CentralMenu() {
    return {u"CentralProperty"_s,
            {},
            {Sub(u"BackgroundColour"_s, u"Background Colour"_s, {List(u"BGColour"_s)}),
             Item(u"WindowTitleBar"_s, u"Show Window Title Bar"_s), ToolBarMenu(),
             Item(u"HideStatusBar"_s, u"Hide Status Bar"_s),
             Item(u"SaveTempolarkCentralSettings"_s, u"Save Tempolark Central Settings"_s),
             Sub(u"SetScreenSaverMenu"_s, u"Set Screen Saver"_s, {List(u"ScreenSaverTime"_s)})}};
}

MenuTable WindowMenu() {
    return {u"Window"_s,
            u"&Window"_s,
            {{u"WindowItem"_s,
              {{u"Tile"_s, u"Tile"_s},
               {u"Cascade"_s, u"Cascade"_s},
               {u"ArrangeIcons"_s, u"Arrang Icons"_s},  // spelt as meant
               {u"MaximiseAll"_s, u"Maximise All"_s},
               {u"RestoreAll"_s, u"Restore All"_s},
               {u"MinimiseAll"_s, u"Minimise All"_s},
               Line,
               {u"CloseAll"_s, u"Close All"_s},
               Line},
              {}},
             List(u"OpenedWindow"_s)}};
}

MenuTable ClocksMenu() {
    return {u"WindowsProperty"_s,
            {},
            {Sub(u"Clock"_s, u"Clock"_s,
                 {Items(u"Clocks"_s, {u"Analogue"_s, u"Digital"_s, u"Calculator"_s})}),
             Sub(u"ClockStyle"_s, u"Clock Style"_s, {List(u"ClockStyles"_s)}),
             Sub(u"ClockColour"_s, u"Clock Colour"_s, {List(u"ClockColours"_s)}),
             Item(u"SaveSettings"_s, u"Save Settings"_s)}};
}

using RowsByEntry = std::map<QString, std::vector<MenuRow>>;

void Collect(const std::vector<MenuEntry>& entries, RowsByEntry& rows) {
    for (const MenuEntry& entry : entries) {
        if (entry.Children.empty()) {
            rows[entry.Name] = entry.Rows;
        }
        Collect(entry.Children, rows);
    }
}

/// The rows of all entries that are no submenus, by their names.
const RowsByEntry& AllRows() {
    static const RowsByEntry rows = [] {
        RowsByEntry all;
        for (const MenuTable& menu : MenuCatalogue()) {
            Collect(menu.Entries, all);
        }
        return all;
    }();
    return rows;
}

}  // namespace

const std::vector<MenuTable>& MenuCatalogue() {
    static const std::vector<MenuTable> menus = {
        FileMenu(),    {u"OpenedAction"_s, {}, {Item(u"Action"_s, {}), List(u"Opened"_s)}},
        AgentMenu(),   MainMenu(),
        EditMenu(),    ViewMenu(),
        CentralMenu(), WindowMenu(),
        ClocksMenu(),  BarsMenu()};
    return menus;
}

QString CommandOf(const QString& entry, int index) {
    const auto found = AllRows().find(entry);
    if (found == AllRows().end() || index < 1) {
        return {};
    }
    const std::vector<MenuRow>& rows = found->second;
    const auto row = static_cast<std::size_t>(index - 1);
    return row < rows.size() ? rows[row].Command : entry;
}

QStringList CommandsOfMenus() {
    QStringList commands;
    for (const auto& [entry, rows] : AllRows()) {
        for (const MenuRow& row : rows) {
            commands += row.Command;
        }
    }
    commands.removeAll(QString());
    commands.removeDuplicates();
    return commands;
}

}  // namespace shell
