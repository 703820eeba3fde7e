#include "shell/ToolCommands.h"

#include <QStringList>
#include <array>

#include "foundation/Numbers.h"

using namespace Qt::StringLiterals;

namespace shell {

namespace {

struct ToolCommand {
    int Group = 0;  ///< 0 for a separator
    QString Tag;
    QStringList ToolTipLines;
    ToolAction Action;
};

ToolAction Opens(const QString& menu) {
    return {menu, {}};
}

ToolAction Runs(const QString& command) {
    return {{}, command};
}

const std::array<ToolCommand, Tool::Count>& Catalogue() {
    static const std::array<ToolCommand, Tool::Count> commands = {{
        {1,
         u"Launch"_s,
         {u"Create new timezones"_s, u"Launch clocks"_s, u"Launch previous opened clocks"_s,
          u"Choose timezones"_s, u"Remove timezones"_s, u"Close Tempolark Central"_s},
         Opens(u"File"_s)},
        {1, u"Close"_s, {u"Close opened clocks"_s}, Opens(u"OpenedAction"_s)},
        {1, u"Disable"_s, {u"Disable opened clocks"_s}, Opens(u"OpenedAction"_s)},
        {1, u"Enable"_s, {u"Enable opened clocks"_s}, Opens(u"OpenedAction"_s)},
        {1, u"Maximize"_s, {u"Maximize opened clocks"_s}, Opens(u"OpenedAction"_s)},
        {1, u"Minimize"_s, {u"Minimize opened clocks"_s}, Opens(u"OpenedAction"_s)},
        {1, u"Restore"_s, {u"Restore opened clocks"_s}, Opens(u"OpenedAction"_s)},
        {1,
         u"Auto Start"_s,
         {u"Set the selected clock"_s, u"to start automatically"_s},
         Opens(u"OpenedAction"_s)},
        {3, u"Property"_s, {u"Set properties"_s}, Runs(u"ActiveProperties"_s)},
        {3, u"Shortcut"_s, {u"Manage shortcuts"_s}, Runs(u"SetShortcut"_s)},
        {3, u"Timezone"_s, {u"Select timezones"_s}, Runs(u"ChooseTimeZone"_s)},
        {3,
         u"Clock Agent"_s,
         {u"Place Tempolark Agent to System tray"_s, u"Remove Tempolark Agent from System tray"_s},
         Opens(u"TempolarkAgent"_s)},
        {},
        {3, u"CProperty"_s, {u"Set tempolark central settings"_s}, Opens(u"CentralProperty"_s)},
        {3,
         u"Manage Clocks"_s,
         {u"Set all to analogue or digital or calculator"_s, u"Set all to clock style"_s,
          u"Set all to clock colour"_s, u"Save all properites of clocks"_s},
         Opens(u"WindowsProperty"_s)},
        {3,
         u"Organize Windows"_s,
         {u"Tile window"_s, u"Cascade window"_s, u"Arrange icons"_s, u"Maximise all"_s,
          u"Restore all"_s, u"Minimise all"_s, u"Close all"_s},
         Opens(u"Window"_s)},
        {3, u"Datebrook"_s, {u"Launch Datebrook"_s}, Runs(u"LaunchDatebrook"_s)},
        {},
        {9,
         u"Help"_s,
         {u"Tempolark Central Help"_s, u"Tempolark Help"_s, u"Tempolark Agent Help"_s},
         Runs(u"Help"_s)},
        {2, u"Exit"_s, {u"Close Tempolark Central"_s}, Runs(u"Exit"_s)},
    }};
    return commands;
}

const ToolCommand& Command(int index) {
    return Catalogue()[static_cast<std::size_t>(index - 1)];
}

int ImageOf(int index) {
    int image = 0;
    for (int i = 1; i <= index; ++i) {
        image += Command(i).Group != 0 ? 1 : 0;
    }
    return image;
}

}  // namespace

ToolButton SetupToolButton(int index, const QString& sizeName) {
    const ToolCommand& command = Command(index);
    if (command.Group == 0) {
        return {};
    }
    ToolButton button;
    button.Image = ImageOf(index);
    button.Key = u"\"%1,%2\""_s.arg(command.Group).arg(index);
    button.ToolTipText = command.ToolTipLines.join(u"\r\n"_s);
    button.Tag = command.Tag;
    button.Caption = sizeName.contains(u"Caption"_s) ? command.Tag : QString();
    button.Description = button.ToolTipText;
    button.Visible = index != Tool::Datebrook;
    return button;
}

ToolAction ActionOfTool(int index) {
    return index >= 1 && index <= Tool::Count ? Command(index).Action : ToolAction();
}

int ToolIndexOfKey(const QString& key) {
    return mduAPILib::IntegerValue(key.section(u',', 1, 1));
}

}  // namespace shell
