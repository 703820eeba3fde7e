// The parts of the shell's window, and how they are joined.
#include <QMdiSubWindow>
#include <QMenuBar>

#include "shell/EditMenu.h"
#include "shell/WindowCommands.h"
#include "shell/ui/ClockArea.h"
#include "shell/ui/EditTargets.h"
#include "shell/ui/ShellFrame.h"
#include "shell/ui/ShellHeader.h"
#include "shell/ui/ShellLook.h"
#include "shell/ui/ShellMenus.h"
#include "shell/ui/ShellPictures.h"
#include "shell/ui/ShellWindows.h"
#include "shell/ui/StatusBar.h"
#include "shell/ui/ToolBar.h"
#include "shell/ui/ToolBarCommands.h"
#include "shell/ui/frmMain.h"

using namespace Qt::StringLiterals;

namespace {

/// The pictures of the eye, of which the status bar shows one at a time.
std::vector<QIcon> EyeFrames(const platform::Files& files, const QString& folder) {
    std::vector<QIcon> frames;
    for (int i = 1; i <= shell::Eye::Frames; ++i) {
        frames.push_back(
            ShellPicture(files, u"%1/eye-%2.svg"_s.arg(folder).arg(i, 2, 10, QChar(u'0'))));
    }
    return frames;
}

}  // namespace

void frmMain::MakeInnerParts() {
    MakeMenus();
    MakeBars(program_.Module.Paths.AppFolder + u"/Images"_s);
    MakeHeader();
    const auto tell = [this](const QString& text) { ShowStatusMsg(text); };
    look_ = std::make_unique<ShellLook>(
        program_, settings_,
        ShellLook::Parts{*area_, header_->Art(), *toolbar_, *statusBar_, *frame_});
    windows_ =
        std::make_unique<ShellWindows>(program_, ShellWindows::Owner{*this, *this, *this}, *area_,
                                       settings_, menuState_, [this] { SetHeaderVisible(false); });
    buttons_ = std::make_unique<ToolBarCommands>(
        program_, ToolBarCommands::Parts{*toolbar_, *menus_, menuState_, commands_, settings_},
        tell);
    edit_ = std::make_unique<EditTargets>(*this, *area_);
    HandleCommands();
    area_->viewport()->installEventFilter(this);
    area_->WatchKeysOf(*this);
    connect(area_, &QMdiArea::subWindowActivated, this, [this] { ShowHeaderWhenEmpty(); });
}

void frmMain::MakeMenus() {
    menus_ =
        new ShellMenus(this, menuState_,
                       {[this](const QString& menu) { fills_.Refresh(menu); },
                        [this](const QString& name, int index) { commands_.Click(name, index); }});
    menus_->AddTo(*menuBar());
    menuBar()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(menuBar(), &QWidget::customContextMenuRequested, this,
            [this](const QPoint& at) { menus_->Popup(u"BarsMenu"_s, menuBar()->mapToGlobal(at)); });
}

void frmMain::MakeBars(const QString& pictures) {
    const platform::Files& files = program_.Services.FileSystem;
    const auto hover = [this](int index) {
        if (buttons_) {  // the bar places its buttons while it is being made, too
            buttons_->ShowToolTip(index);
        }
    };
    toolbar_ = new ToolBar(files, pictures,
                           {[this](int index) { buttons_->HandleToolButton(index); }, hover,
                            [this](const QPoint& at) { menus_->Popup(u"ToolBarMenu"_s, at); }},
                           this);
    area_ = new ClockArea(this);
    statusBar_ = new StatusBar(EyeFrames(files, pictures + u"/Shell"_s), this);
    statusBar_->OnMenu = [this](const QPoint& at) { menus_->Popup(u"StatusBarMenu"_s, at); };
    frame_ = new ShellFrame(area_, toolbar_, statusBar_, this);
    setCentralWidget(frame_);
}

void frmMain::MakeHeader() {
    header_ = std::make_unique<ShellHeader>(
        program_, *area_, settings_, [this] { windows_->OpenTimeZones(); },
        [this](const QPoint& at) { menus_->Popup(u"MainMenu"_s, at); });
}

// Each part brings its own commands; these are the window's, and those that only answer yet.
void frmMain::HandleCommands() {
    zones_.AddTo(commands_);
    look_->AddTo(commands_);
    windows_->AddTo(commands_);
    buttons_->AddTo(commands_);
    shell::AddWindowCommands(commands_, program_.Windows, *this,
                             [this](shell::Arrangement code) { area_->Arrange(code); });
    shell::AddClockCommands(commands_, program_, *this);
    commands_.Handle(u"EditItem"_s, [this](int index, const shell::MenuItem&) {
        if (const auto action = shell::EditActionOf(index)) {
            edit_->Edit(*action);
        }
    });
    commands_.Handle(u"Exit"_s, [this] { Unload(); });
    commands_.Handle(u"WindowTitleBar"_s, [this] { ToggleTitleBar(); });
    commands_.Handle(u"ClearStatusMessage"_s, [this] { stages_.ClearMessages(); });
    commands_.Handle(u"SaveTempolarkCentralSettings"_s,
                     [this] { settings_.SaveCentralSettings(look_->Look(WindowState())); });
    // What comes with the agent and with the system's settings answers until then.
    const auto answer = [this](const QString& command, const QString& text) {
        commands_.Handle(command, [this, text] { ShowStatusMsg(text); });
    };
    answer(u"TempolarkAgentAction"_s, u"Tempolark Agent is not here yet"_s);
    answer(u"AutoStart"_s, u"Starting with the system can't be set yet"_s);
    answer(u"ScreenSaverTime"_s, u"The screen saver can't be set yet"_s);
    answer(u"ScreenSaverTimeMain"_s, u"The screen saver can't be set yet"_s);
}

shell::ShellStages::Hooks frmMain::StageHooks() {
    return {[this] { FirstTick(); }, [this] { SecondTick(); },
            [this](const QString& text) { statusBar_->SetMessage(text); },
            [this](int frame) { statusBar_->SetEye(frame); },
            [this](const QString& time) { statusBar_->SetTimeText(time); }};
}

shell::MenuFills::Sources frmMain::MenuSources() {
    const auto activeHandle = [this] {
        const IForm* active = area_->ActiveChild();
        return active != nullptr ? active->hwnd() : 0;
    };
    return {[this] { return look_->Look(WindowState()); }, activeHandle,
            [this] { return !stages_.Panel().isEmpty(); },
            [this](EditAction action) { return edit_->CanEdit(action); },
            [this] { return edit_->KeysHold(); }};
}
