#include "shell/ui/frmMain.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QMouseEvent>

#include "clock/ui/frmTempolark.h"
#include "foundation/NamedValues.h"
#include "platform/Dialogs.h"
#include "platform/WallClock.h"
#include "shell/ClockCommands.h"
#include "shell/ConfigSetup.h"
#include "shell/LateMenus.h"
#include "shell/StartMessage.h"
#include "shell/ui/ClockArea.h"
#include "shell/ui/EditTargets.h"
#include "shell/ui/ShellHeader.h"
#include "shell/ui/ShellLook.h"
#include "shell/ui/ShellMenus.h"
#include "shell/ui/ShellWindows.h"
#include "shell/ui/StatusBar.h"
#include "shell/ui/ToolBarCommands.h"

using namespace Qt::StringLiterals;

frmMain::frmMain(const Program& program)
    : program_(program),
      handle_(program.Windows.NewHandle()),
      stages_(program.Services.Clock, StageHooks()),
      voice_(program.Services.Speech, [this](const QString& text) { ShowStatusMsg(text); }),
      settings_(program, [this](const QString& text) { ShowStatusMsg(text); }),
      lists_(program, [this](const QString& text) { ShowStatusMsg(text); }),
      launcher_(
          program, lists_.Opened(), [this] { return new frmTempolark(program_, this, area_); },
          [this](const QString& text) { ShowStatusMsg(text); }),
      zones_(program, menuState_, lists_, *this,
             [this] {
                 if (launcher_.LaunchFromFileDialog() != 0) {
                     SetHeaderVisible(false);
                 }
             }),
      fills_(program, menuState_, settings_, lists_, MenuSources()) {
    setObjectName(u"frmMain"_s);
    setWindowTitle(u"Tempolark Central"_s);
    program_.Windows.Add(*this);
    MakeInnerParts();
}

frmMain::~frmMain() {
    // The clocks go first: they still take leave of the window list and of the shell. What happens
    // to their area meanwhile is nobody's business any more.
    area_->viewport()->removeEventFilter(this);
    disconnect(area_, nullptr, this, nullptr);
    header_ = nullptr;
    delete area_;
    program_.Windows.Remove(*this);
}

bool frmMain::Load() {
    if (!ConfigSetup()) {
        return false;
    }
    area_->Arrange(shell::Arrangement::Cascade);
    lists_.LoadOpenedForms();
    lists_.FillLastOpenedMenu(menuState_[u"FileItem"_s]);
    ApplyCentralProperties(false);
    if (IsScreenSaverRun()) {
        ApplyScreenSaverLook();
    }
    placement_.LayOutHidden();
    const bool launchedAny = shell::LaunchAtStart(
        program_.Module, [this](const QString& name) { return LaunchTempolark(name) != 0; });
    ShowStatusMsg(NoticeOf(program_.Module.CommandLine));
    SetHeaderVisible(!launchedAny);
    stages_.Start();
    if (IsScreenSaverRun()) {
        SetWindowState(2);
    } else {
        placement_.ShowAtStart();
    }
    if (!launchedAny) {
        header_->ShowHeaderAnimation();
    }
    return true;
}

bool frmMain::ConfigSetup() {
    return shell::ConfigSetup(program_, settings_, lists_,
                              [this](const QString& text) { ShowStatusMsg(text); });
}

QString frmMain::NoticeOf(const QString& commandLine) const {
    return shell::NoticeOf(program_, commandLine);
}

bool frmMain::IsScreenSaverRun() const {
    return shell::IsScreenSaverRun(program_.Module.CommandLine);
}

// What would only hold up the moment at which the window appears.
void frmMain::FirstTick() {
    SpeakMessage(shell::StartMessage(Setting(u"Start Message"_s), program_.Services.Clock.Now()));
    look_->ApplyBackgroundFile();
    shell::FillLateMenus(menuState_, program_.Services.FileSystem,
                         program_.Module.Paths.StylesFolder);
}

void frmMain::SecondTick() {
    placement_.FitOnScreen();
    if (header_->IsVisible()) {
        header_->ShowHeaderAnimation();
    }
}

void frmMain::ApplyCentralProperties(bool keepPlacement) {
    if (!keepPlacement) {
        placement_.ApplyPlacement();
    }
    look_->ApplyCentralProperties();
    placement_.ApplyTitleBar(settings_.Says(u"Window Title Bar"_s));
}

// Nothing stands around the clocks.
void frmMain::ApplyScreenSaverLook() {
    look_->HideBars();
    menuBar()->hide();
    placement_.TakeScreen();
}

void frmMain::ToggleTitleBar() {
    const bool shown = placement_.HasTitleBar();
    placement_.ApplyTitleBar(!shown);
    settings_.WriteSetting(u"Window Title Bar"_s, mduUILib::BoolToYesNo(!shown));
}

int frmMain::LaunchTempolark(const QString& name) {
    const int handle = launcher_.LaunchTempolark(name);
    if (handle != 0) {
        SetHeaderVisible(false);
    }
    return handle;
}

// A new clock is launched by the property window's own button, not here: what was saved always
// reaches the shell.
int frmMain::RefreshForm(const QString& /*zoneName*/) {
    settings_.Take(program_.Module.CurrentProperties);
    ApplyCentralProperties(true);
    header_->ApplyHeaderStyle();
    return 0;
}

void frmMain::ShowCentralProperties(bool forNewClock) {
    windows_->ShowCentralProperties(forNewClock);
}

void frmMain::ShowHelp(const QString& name) {
    windows_->ShowHelp(name);
}

void frmMain::ShowClockHelp() {
    windows_->ShowClockHelp();
}

void frmMain::OpenWindow(ShellWindow window) {
    windows_->Open(window);
}

int frmMain::ShowMsgbox(const QString& text, int flags, const QString& title) {
    ++boxes_;
    const int answer = program_.Services.Dialog.MessageBox(text, flags, title);
    if (--boxes_ == 0 && std::exchange(quitAsked_, false)) {
        QMetaObject::invokeMethod(this, &frmMain::Quit, Qt::QueuedConnection);
    }
    return answer;
}

// A window that closes already can't be closed from within its own question.
void frmMain::Quit() {
    if (boxes_ > 0) {
        quitAsked_ = true;
    } else if (!isHidden()) {
        close();
    }
}

int frmMain::BackColor() const {
    return look_->BackColor();
}

void frmMain::ShowEye() {
    statusBar_->SetEye(1);
}

void frmMain::SetHeaderVisible(bool visible) {
    header_->SetHeaderVisible(visible);
}

void frmMain::ShowHeaderWhenEmpty() {
    if (stages_.HasBegun()) {
        header_->ShowHeaderWhenEmpty();
    }
}

void frmMain::ShowWindowMenu(const QPoint& onScreen) {
    menus_->EndMenu();
    menus_->Popup(u"Window"_s, onScreen);
}

// What could not be saved keeps the shell open.
void frmMain::closeEvent(QCloseEvent* event) {
    if (!windows_->CloseEditors() || !shell::CloseAllChildren(program_.Windows)) {
        event->ignore();
        return;
    }
    ExitShell();
    event->accept();
}

void frmMain::ExitShell() {
    lists_.SaveOpenedForms();
    SaveWindowPlacement();
    SaveAutoStartList();
}

// What the property window saved meanwhile stays.
void frmMain::SaveWindowPlacement() {
    settings_.ReadAgain();
    placement_.SavePlacement();
    // A screen-saver run hides the bar for its own time only.
    if (!IsScreenSaverRun()) {
        settings_.PutToolbar(look_->Look(WindowState()));
    }
    settings_.WriteSettings();
    buttons_->SaveToolbarLayout();
}

void frmMain::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && header_ != nullptr) {
        ShowHeaderWhenEmpty();
        header_->ArrangeHeader();
    }
}

bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    if (watched != area_->viewport()) {
        return QMainWindow::eventFilter(watched, event);
    }
    if (event->type() == QEvent::Resize) {
        header_->ArrangeHeader();
    } else if (event->type() == QEvent::MouseButtonRelease) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() == Qt::RightButton) {
            ShowWindowMenu(mouse->globalPosition().toPoint());
            ShowStatusMsg({});
        }
    }
    return QMainWindow::eventFilter(watched, event);
}
