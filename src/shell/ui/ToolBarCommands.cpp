#include "shell/ui/ToolBarCommands.h"

#include <QToolButton>

#include "foundation/ui/mduBalloonTipLib.h"
#include "platform/SettingsStore.h"
#include "shell/ToolCommands.h"
#include "shell/ToolbarLook.h"
#include "shell/ui/CustomizeToolbar.h"
#include "shell/ui/ShellMenus.h"
#include "shell/ui/ToolBar.h"

using namespace Qt::StringLiterals;

namespace {

/// From a button's corner to where its menu stands: beside the bar, away from the window's edge.
QPoint MenuPlace(int align, const QSize& button, const QSize& menu) {
    switch (align) {
        case shell::Align::Bottom:
            return {0, -menu.height()};
        case shell::Align::Left:
            return {button.width(), 0};
        case shell::Align::Right:
            return {-menu.width(), 0};
        default:
            return {0, button.height()};
    }
}

}  // namespace

ToolBarCommands::ToolBarCommands(const Program& program, const Parts& parts,
                                 std::function<void(const QString&)> tell)
    : program_(program),
      parts_(parts),
      tell_(std::move(tell)),
      balloonTips_{CBalloonToolTip(program.Services.Clock),
                   CBalloonToolTip(program.Services.Clock)} {}

void ToolBarCommands::AddTo(shell::MenuCommands& commands) {
    commands.Handle(u"AutoShowToolTips"_s, [this](int, const shell::MenuItem& item) {
        parts_.Settings.WriteSetting(u"Auto Show Balloon Tips"_s, item.Tag);
    });
    commands.Handle(u"ToolbarCustomize"_s,
                    [this] { Customize(parts_.Toolbar, parts_.Toolbar.window()); });
    commands.Handle(u"SaveToolbarSetting"_s, [this] {
        if (SaveToolbarLayout()) {
            parts_.Settings.TellSaved(u"the toolbar"_s);
        } else {
            tell_(u"The toolbar can't be written"_s);
        }
    });
    commands.Handle(u"LaunchDatebrook"_s, [this] { LaunchDatebrook(); });
}

void ToolBarCommands::HandleToolButton(int index) {
    const shell::ToolAction action = shell::ActionOfTool(index);
    if (action.Menu == u"OpenedAction"_s) {
        parts_.State[u"Action"_s](1) = {
            shell::SetupToolButton(index, {}).Tag, {}, true, false, false};
    }
    if (!action.Menu.isEmpty()) {
        PopupAtButton(index, action.Menu);
    } else {
        parts_.Commands.Run(action.Command);
    }
}

void ToolBarCommands::PopupAtButton(int index, const QString& menu) {
    const QToolButton* button = parts_.Toolbar.Button(index);
    const QPoint place =
        MenuPlace(parts_.Toolbar.AlignCode(), button->size(), parts_.Menus.SizeNow(menu));
    parts_.Menus.EndMenu();
    parts_.Menus.Popup(menu, button->mapToGlobal(place));
}

void ToolBarCommands::ShowToolTip(int index) {
    CBalloonToolTip& tip = balloonTips_[0];
    tip.Destroy();
    if (index == 0 || !parts_.Settings.Says(u"Auto Show Balloon Tips"_s)) {
        return;
    }
    const shell::ToolButton button = shell::SetupToolButton(index, {});
    mduBalloonTipLib::SetupBalloon(tip, &parts_.Toolbar, button.Tag, button.ToolTipText);
    tip.SetBeside(shell::IsVertical(parts_.Toolbar.AlignCode()));
    tip.AfterDelay([this, &tip, index] {
        mduBalloonTipLib::ShowBalloonOver(tip, parts_.Toolbar, *parts_.Toolbar.Button(index));
    });
}

bool ToolBarCommands::SaveToolbarLayout() const {
    return program_.Services.Settings.SetValue(
        u"TempolarkCentralToolbar"_s, program_.Module.Paths.UserName, parts_.Toolbar.Layout());
}

void ToolBarCommands::LaunchDatebrook() {
    const QString text = u"Failed to launch Datebrook as datebrook.dll is missing"_s;
    parts_.Toolbar.Button(shell::Tool::Datebrook)->setToolTip(text);
    tell_(text);
}
