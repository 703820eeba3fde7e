#include "shell/ui/ShellWindows.h"

#include <QMdiSubWindow>

#include "foundation/PropertyFile.h"
#include "platform/HelpViewer.h"
#include "platform/ZoneDatabase.h"
#include "shell/ui/AboutBox.h"
#include "shell/ui/ClockArea.h"
#include "timezones/ZoneEdition.h"
#include "timezones/ui/frmTimeZones.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int ShellHelp = 100;  // help context numbers
constexpr int ZonesHelp = 200;
constexpr int ClockHelp = 600;

}  // namespace

ShellWindows::ShellWindows(const Program& program, const Owner& owner, ClockArea& area,
                           const shell::ShellSettings& settings, std::function<void()> covered)
    : program_(program),
      owner_(owner),
      area_(area),
      settings_(settings),
      covered_(std::move(covered)) {}

void ShellWindows::AddTo(shell::MenuCommands& commands) {
    commands.Handle(u"NewClock"_s, [this] { ShowCentralProperties(true); });
    commands.Handle(u"ChooseTimeZone"_s, [this] { OpenTimeZones(); });
    commands.Handle(u"SetShortcut"_s, [this] { OpenShortcuts(); });
    commands.Handle(u"Properties"_s, [this] { ShowCentralProperties(false); });
    commands.Handle(u"ActiveProperties"_s, [this] { OpenProperties(); });
    commands.Handle(u"Help"_s, [this] { ShowHelp(); });
    commands.Handle(u"About"_s, [this] { ShowAbout(); });
}

void ShellWindows::Open(ShellWindow window) {
    switch (window) {
        case ShellWindow::Properties:
            return OpenProperties();
        case ShellWindow::TimeZones:
            return OpenTimeZones();
        case ShellWindow::Shortcuts:
            return OpenShortcuts();
        case ShellWindow::About:
            return ShowAbout();
    }
}

void ShellWindows::ShowAbout() {
    ShowAboutBox(&owner_.Window, mduTimeZones::EditionText(program_.Services.Zones.Edition()));
}

// The property window comes later; what it will read is laid out for it.
void ShellWindows::ShowCentralProperties(bool forNewClock) {
    PathTable& paths = program_.Module.Paths;
    if (forNewClock) {
        paths.CurrentPropertyFile = paths.ZoneDefaultFile();
        mduLib::ReadPropertyFile(program_.Services.FileSystem, paths.CurrentPropertyFile,
                                 program_.Module.CurrentProperties);
        OpenTimeZones();
        return;
    }
    paths.CurrentPropertyFile = paths.CentralFile;
    program_.Module.CurrentProperties = settings_.Properties();
    owner_.Shell.ShowStatusMsg(u"The property window can't be opened yet"_s);
}

void ShellWindows::OpenProperties() {
    const IForm* active = area_.ActiveChild();
    if (active != nullptr && active->Name() == ClockWindowName) {
        owner_.Shell.ShowStatusMsg(u"The property window can't be opened yet"_s);
    } else {
        ShowCentralProperties(false);
    }
}

void ShellWindows::OpenShortcuts() {
    owner_.Shell.ShowStatusMsg(u"The shortcut window can't be opened yet"_s);
}

void ShellWindows::OpenTimeZones() {
    if (ShowOpenTimeZones()) {
        return;
    }
    auto* window = new frmTimeZones(program_, &area_);
    timeZones_ = window;
    auto* frame = area_.addSubWindow(window);
    frame->setAttribute(Qt::WA_DeleteOnClose);
    window->ShowMe(owner_.Form, &owner_.Shell, 0, 0);
    const QSize room = area_.viewport()->size();
    const QSize size = window->sizeHint().boundedTo(room);
    frame->setGeometry((room.width() - size.width()) / 2, (room.height() - size.height()) / 2,
                       size.width(), size.height());
    frame->show();
    covered_();
}

bool ShellWindows::ShowOpenTimeZones() {
    if (!timeZones_) {
        return false;
    }
    auto* frame = qobject_cast<QMdiSubWindow*>(timeZones_->parentWidget());
    if (frame->isMinimized()) {
        frame->showNormal();
    }
    area_.setActiveSubWindow(frame);
    timeZones_->setFocus();
    return true;
}

void ShellWindows::ShowHelp(const QString& name) {
    OpenHelp(name.isEmpty() ? u"TempolarkCentral.chm"_s : name, ShellHelp);
}

void ShellWindows::ShowClockHelp() {
    OpenHelp(u"Tempolark.chm"_s, ClockHelp);
}

// The window in front may have a page of its own; @p otherwise is the page of a window without one.
void ShellWindows::OpenHelp(const QString& name, int otherwise) {
    const IForm* active = area_.ActiveChild();
    const bool hasOwn = active != nullptr && active->Name() == u"frmTimeZones"_s;
    const int context = hasOwn ? ZonesHelp : otherwise;
    const QString refusal =
        program_.Services.Help.Show(program_.Module.Paths.AppFolder + u"/Help/"_s + name, context);
    if (!refusal.isEmpty()) {
        owner_.Shell.ShowStatusMsg(refusal);
    }
}
