// What the shell's timer does: the late part of the start, the message line, the eye and the time.
#include <QEvent>
#include <QMouseEvent>

#include "foundation/FileHelpers.h"
#include "foundation/NamedValues.h"
#include "platform/Files.h"
#include "shell/StartMessage.h"
#include "shell/ui/ClockArea.h"
#include "shell/ui/HeaderArt.h"
#include "shell/ui/StatusBar.h"
#include "shell/ui/frmMain.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int BusyInterval = 400;  // milliseconds, while the message line holds something
constexpr int IdleInterval = 10000;

void FillColours(shell::MenuArray& menu, const QStringList& names) {
    int index = 0;
    for (const QString& name : names) {
        menu.Load(++index) = {name, name, true, true, false};
    }
}

}  // namespace

void frmMain::TimerCtrl() {
    switch (shellStage_) {
        case 2:
            FirstTick();
            break;
        case 3:
            FitOnScreen();
            if (header_->isVisible()) {
                header_->ShowHeaderAnimation(Setting(u"Heading Variation"_s));
            }
            shellStage_ = 1;
            timerCtrl_->SetInterval(BusyInterval);
            break;
        default:
            MessageTick();
    }
}

// What would only hold up the moment at which the window appears.
void frmMain::FirstTick() {
    shellStage_ = 3;
    SpeakMessage(shell::StartMessage(Setting(u"Start Message"_s), program_.Services.Clock.Now()));
    ApplyBackgroundFile();
    FillLateMenus();
    timerCtrl_->SetInterval(BusyInterval);
    ShowTime();
}

void frmMain::FillLateMenus() {
    FillColours(menuState_[u"BGColour"_s], mduUILib::MenuColours() + QStringList{u"Custom"_s});
    FillColours(menuState_[u"ClockColours"_s],
                mduUILib::MenuColours() + QStringList{u"Transparent"_s, u"Custom"_s});
    const QString& folder = program_.Module.Paths.StylesFolder;
    QStringList styles;
    for (const QString& file : program_.Services.FileSystem.FileNames(folder)) {
        if (file.right(4).toLower() == u".ini"_s) {
            styles += file;
        }
    }
    styles.sort(Qt::CaseInsensitive);
    shell::MenuArray& menu = menuState_[u"ClockStyles"_s];
    int index = 0;
    for (const QString& file : styles) {
        menu.Load(++index) = {mduLib::StripIniExtension(file), folder + file, true, true, false};
    }
    menu.Load(++index) = {u"More"_s, {}, true, true, false};
}

void frmMain::MessageTick() {
    if (status_.Panel().isEmpty()) {
        statusBar_->SetEye(0);
        timerCtrl_->SetInterval(IdleInterval);
    } else {
        timerCtrl_->SetInterval(BusyInterval);
        status_.Tick();
        const QTime now = program_.Services.Clock.Now().time();
        if (eye_.AnimateEye(now.msecsSinceStartOfDay() / 10)) {
            statusBar_->SetEye(eye_.EyeFrame());
        }
    }
    statusBar_->SetMessage(status_.Panel());
    ShowTime();
}

void frmMain::ShowTime() {
    statusBar_->SetTimeText(program_.Services.Clock.Now().time().toString(u"hh:mm"_s));
}

void frmMain::ShowEye() {
    statusBar_->SetEye(1);
}

void frmMain::ShowStatusMsg(const QString& text) {
    status_.ShowStatusMsg(text);
    statusBar_->SetMessage(status_.Panel());
    // During the start the stages keep their own pace.
    if (shellStage_ == 1 && !status_.Panel().isEmpty()) {
        timerCtrl_->SetInterval(BusyInterval);
    }
}

void frmMain::SetHeaderVisible(bool visible) {
    header_->setVisible(visible);
    ArrangeHeader();
}

void frmMain::ArrangeHeader() {
    header_->setGeometry(area_->viewport()->rect());
    header_->lower();
}

// The last window has gone: the shell invites again.
void frmMain::ShowHeaderWhenEmpty() {
    if (shellStage_ != 2 && !header_->isVisible() && area_->subWindowList().isEmpty()) {
        SetHeaderVisible(true);
        header_->ApplyHeaderStyle(Setting(u"Heading Variation"_s));
    }
}

void frmMain::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && header_ != nullptr) {
        ShowHeaderWhenEmpty();
        ArrangeHeader();
    }
}

bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    if (watched != area_->viewport()) {
        return QMainWindow::eventFilter(watched, event);
    }
    if (event->type() == QEvent::Resize) {
        ArrangeHeader();
    } else if (event->type() == QEvent::MouseButtonRelease) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() == Qt::RightButton) {
            ShowWindowMenu(mouse->globalPosition().toPoint());
            ShowStatusMsg({});
        }
    }
    return QMainWindow::eventFilter(watched, event);
}
