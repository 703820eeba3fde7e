// What the buttons of the toolbar do, and the windows that they open.
#include <QMdiSubWindow>
#include <QToolButton>

#include "foundation/NamedValues.h"
#include "foundation/PropertyFile.h"
#include "foundation/ui/mduBalloonTipLib.h"
#include "platform/HelpViewer.h"
#include "shell/ToolCommands.h"
#include "shell/ToolbarLook.h"
#include "shell/ui/ClockArea.h"
#include "shell/ui/ShellMenus.h"
#include "shell/ui/ToolBar.h"
#include "shell/ui/frmMain.h"
#include "timezones/ui/frmTimeZones.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int ShellHelp = 100;  // help context numbers
constexpr int ZonesHelp = 200;
constexpr int ClockHelp = 600;

}  // namespace

void frmMain::HandleToolButton(int index) {
    switch (index) {
        case shell::Tool::Launch:
            PopupAtButton(index, u"File"_s);
            break;
        case shell::Tool::Property:
            OpenProperties();
            break;
        case shell::Tool::Shortcut:
            OpenShortcuts();
            break;
        case shell::Tool::Timezone:
            OpenTimeZones();
            break;
        case shell::Tool::ClockAgent:
            PopupAtButton(index, u"TempolarkAgent"_s);
            break;
        case shell::Tool::CProperty:
            PopupAtButton(index, u"CentralProperty"_s);
            break;
        case shell::Tool::ManageClocks:
            PopupAtButton(index, u"WindowsProperty"_s);
            break;
        case shell::Tool::OrganizeWindows:
            PopupAtButton(index, u"Window"_s);
            break;
        case shell::Tool::Datebrook:
            LaunchDatebrook();
            break;
        case shell::Tool::Help:
            ShowHelp();
            break;
        case shell::Tool::Exit:
            Unload();
            break;
        default:
            if (index >= shell::Tool::Close && index <= shell::Tool::AutoStart) {
                shell::MenuItem& title = menuState_[u"Action"_s](1);
                title = {shell::SetupToolButton(index, {}).Tag, {}, true, false, false};
                PopupAtButton(index, u"OpenedAction"_s);
            }
    }
}

void frmMain::PopupAtButton(int index, const QString& menu) {
    const QToolButton* button = toolbar_->Button(index);
    const QSize size = menus_->SizeNow(menu);
    QPoint place;
    switch (toolbar_->AlignCode()) {
        case shell::Align::Bottom:
            place = {0, -size.height()};
            break;
        case shell::Align::Left:
            place = {button->width(), 0};
            break;
        case shell::Align::Right:
            place = {-size.width(), 0};
            break;
        default:
            place = {0, button->height()};
    }
    menus_->EndMenu();
    menus_->Popup(menu, button->mapToGlobal(place));
}

void frmMain::ShowToolTip(int index) {
    CBalloonToolTip& tip = balloonTips_[0];
    tip.Destroy();
    if (index == 0 || !mduUILib::YesNoToBool(Setting(u"Auto Show Balloon Tips"_s))) {
        return;
    }
    const shell::ToolButton button = shell::SetupToolButton(index, {});
    mduBalloonTipLib::SetupBalloon(tip, toolbar_, button.Tag, button.ToolTipText);
    tip.SetBeside(shell::IsVertical(toolbar_->AlignCode()));
    tip.AfterDelay([this, &tip, index] {
        mduBalloonTipLib::ShowBalloonOver(tip, *toolbar_, *toolbar_->Button(index));
    });
}

// The property window comes later; what it will read is laid out for it.
void frmMain::ShowCentralProperties(bool forNewClock) {
    PathTable& paths = program_.Module.Paths;
    if (forNewClock) {
        newClockTag_ = u"True"_s;
        paths.CurrentPropertyFile = paths.ZoneDefaultFile();
        mduLib::ReadPropertyFile(program_.Services.FileSystem, paths.CurrentPropertyFile,
                                 program_.Module.CurrentProperties);
        OpenTimeZones();
        return;
    }
    paths.CurrentPropertyFile = IniFile();
    program_.Module.CurrentProperties = centralProperties_;
    ShowStatusMsg(u"The property window can't be opened yet"_s);
}

// Of the clock in front, or of the shell where none is.
void frmMain::OpenProperties() {
    const IForm* active = ActiveChild();
    if (active != nullptr && active->Name() == ClockWindowName) {
        ShowStatusMsg(u"The property window can't be opened yet"_s);
    } else {
        ShowCentralProperties(false);
    }
}

void frmMain::OpenShortcuts() {
    ShowStatusMsg(u"The shortcut window can't be opened yet"_s);
}

void frmMain::OpenTimeZones() {
    if (timeZones_) {
        auto* frame = qobject_cast<QMdiSubWindow*>(timeZones_->parentWidget());
        if (frame->isMinimized()) {
            frame->showNormal();
        }
        area_->setActiveSubWindow(frame);
        timeZones_->setFocus();
        return;
    }
    auto* window = new frmTimeZones(program_, area_);
    timeZones_ = window;
    auto* frame = area_->addSubWindow(window);
    frame->setAttribute(Qt::WA_DeleteOnClose);
    window->ShowMe(*this, this, 0, 0);
    const QSize room = area_->viewport()->size();
    const QSize size = window->sizeHint().boundedTo(room);
    frame->setGeometry((room.width() - size.width()) / 2, (room.height() - size.height()) / 2,
                       size.width(), size.height());
    frame->show();
    SetHeaderVisible(false);
}

void frmMain::LaunchDatebrook() {
    const QString text = u"Failed to launch Datebrook as datebrook.dll is missing"_s;
    toolbar_->Button(shell::Tool::Datebrook)->setToolTip(text);
    ShowStatusMsg(text);
}

void frmMain::ShowHelp(const QString& name) {
    OpenHelp(name.isEmpty() ? u"TempolarkCentral.chm"_s : name, ShellHelp);
}

void frmMain::ShowClockHelp() {
    OpenHelp(u"Tempolark.chm"_s, ClockHelp);
}

// The window in front may have a page of its own; @p otherwise is the page of a window without one.
void frmMain::OpenHelp(const QString& name, int otherwise) {
    const IForm* active = ActiveChild();
    const bool hasOwn = active != nullptr && active->Name() == u"frmTimeZones"_s;
    const int context = hasOwn ? ZonesHelp : otherwise;
    const QString refusal =
        program_.Services.Help.Show(program_.Module.Paths.AppFolder + u"/Help/"_s + name, context);
    if (!refusal.isEmpty()) {
        ShowStatusMsg(refusal);
    }
}
