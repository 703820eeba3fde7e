#include "shell/ui/ShellWindows.h"

#include <QMdiSubWindow>

#include "editor/ui/frmProperties.h"
#include "foundation/HelpContexts.h"
#include "foundation/OpenClocks.h"
#include "foundation/PropertyFile.h"
#include "foundation/SetupPaths.h"
#include "foundation/Twips.h"
#include "platform/HelpViewer.h"
#include "platform/ZoneDatabase.h"
#include "shell/Placement.h"
#include "shell/ui/AboutBox.h"
#include "shell/ui/ClockArea.h"
#include "shell/ui/frmShortcuts.h"
#include "timezones/ZoneEdition.h"
#include "timezones/ui/frmTimeZones.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int LeastHeight = 1500;  ///< twips, of a window over the corner of the area

/// A window of the shell; null for a widget that is none.
IForm* FormIn(const QMdiSubWindow& frame) {
    return dynamic_cast<IForm*>(frame.widget());
}

}  // namespace

ShellWindows::ShellWindows(const Program& program, const Owner& owner, ClockArea& area,
                           const shell::ShellSettings& settings, shell::MenuState& menus,
                           std::function<void()> covered)
    : program_(program),
      owner_(owner),
      area_(area),
      settings_(settings),
      menus_(menus),
      covered_(std::move(covered)) {}

void ShellWindows::AddTo(shell::MenuCommands& commands) {
    commands.Handle(u"NewClock"_s, [this] {
        menus_[u"NewClock"_s](1).Tag = u"True"_s;
        ShowCentralProperties(true);
    });
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

void ShellWindows::ShowCentralProperties(bool forNewClock) {
    PathTable& paths = program_.Module.Paths;
    const QString file = forNewClock ? QString() : paths.CentralFile;
    if (ShowOpenEditor(file)) {
        return;
    }
    paths.CurrentPropertyFile = forNewClock ? paths.ZoneDefaultFile() : paths.CentralFile;
    ClockProperties& slot = program_.Module.CurrentProperties;
    slot = settings_.Properties();
    if (forNewClock) {
        slot.Reset();
        mduLib::ReadPropertyFile(program_.Services.FileSystem, paths.CurrentPropertyFile, slot);
    }
    ShowProperties(forNewClock ? QString() : mduMain::CentralExeName, 0, {});
}

void ShellWindows::OpenProperties() {
    IForm* active = area_.ActiveChild();
    if (active != nullptr && active->AsPropertyWindow() != nullptr) {
        mduLib::BringToFront(*active);
        return;
    }
    IClock* clock = active != nullptr ? active->AsClock() : nullptr;
    if (clock != nullptr) {
        OpenClockProperties(*clock);
    } else {
        ShowCentralProperties(false);
    }
}

void ShellWindows::OpenClockProperties(IClock& clock) {
    if (ShowOpenEditor(clock.IniFile())) {
        return;
    }
    program_.Module.Paths.CurrentPropertyFile = clock.IniFile();
    clock.SetProperty();
    ShowProperties(clock.Caption(), clock.hwnd(), area_.activeSubWindow()->geometry());
}

bool ShellWindows::ShowOpenEditor(const QString& file) {
    for (int i = 0; i < program_.Windows.Count(); ++i) {
        IForm& form = program_.Windows[i];
        const IPropertyWindow* editor = form.AsPropertyWindow();
        if (editor != nullptr && editor->PropertyFile() == file) {
            mduLib::BringToFront(form);
            return true;
        }
    }
    return false;
}

void ShellWindows::ShowProperties(const QString& zoneName, int ownerHandle, const QRect& clock) {
    auto* window = new frmProperties(program_, &owner_.Shell, &area_);
    const QSize size = AddChild(window)->sizeHint();
    const QRect place = PlaceFor(clock, size);
    window->ShowPropertyMDIChild(zoneName, ownerHandle, place.x() * TwipsPerPixel,
                                 place.y() * TwipsPerPixel, place.width() * TwipsPerPixel,
                                 place.height() * TwipsPerPixel);
    covered_();
}

QMdiSubWindow* ShellWindows::AddChild(QWidget* window) {
    QMdiSubWindow* frame = area_.addSubWindow(window);
    frame->setAttribute(Qt::WA_DeleteOnClose);
    return frame;
}

QRect ShellWindows::PlaceFor(const QRect& clock, const QSize& size) const {
    const QSize room = area_.viewport()->size();
    if (!clock.isNull()) {
        return shell::PlaceBeside(clock, size, room);
    }
    const int least = static_cast<int>(LeastHeight / TwipsPerPixel);
    return {QPoint(0, 0), size.boundedTo(room).expandedTo({0, least})};
}

void ShellWindows::OpenShortcuts() {
    if (shortcuts_) {
        mduLib::BringToFront(*shortcuts_);
        return;
    }
    const IForm* active = area_.ActiveChild();
    const bool isClock = active != nullptr && active->Name() == ClockWindowName;
    const QRect clock = isClock ? area_.activeSubWindow()->geometry() : QRect();
    shortcuts_ = new frmShortcuts(program_, &owner_.Shell, &area_);
    QMdiSubWindow* frame = AddChild(shortcuts_);
    frame->setGeometry(PlaceFor(clock, frame->sizeHint()));
    shortcuts_->ShowMe(u"Clock Shortcuts"_s, program_.Module.Paths.ShortcutsFile);
    covered_();
}

void ShellWindows::OpenTimeZones() {
    if (timeZones_) {
        mduLib::BringToFront(*timeZones_);
        return;
    }
    timeZones_ = new frmTimeZones(program_, &area_);
    QMdiSubWindow* frame = AddChild(timeZones_);
    timeZones_->ShowMe(owner_.Form, &owner_.Shell, 0, 0);
    const QSize room = area_.viewport()->size();
    const QSize size = timeZones_->sizeHint().boundedTo(room);
    frame->setGeometry((room.width() - size.width()) / 2, (room.height() - size.height()) / 2,
                       size.width(), size.height());
    frame->show();
    covered_();
}

// A frame that is about to be deleted is hidden.
bool ShellWindows::CloseEditors() {
    const QList<QMdiSubWindow*> all = area_.subWindowList();
    const QList<QPointer<QMdiSubWindow>> frames(all.begin(), all.end());
    for (const QPointer<QMdiSubWindow>& frame : frames) {
        IForm* form = frame ? FormIn(*frame) : nullptr;
        if (form != nullptr && form->AsEditTarget() != nullptr) {
            form->Unload();
            if (frame && !frame->isHidden()) {
                return false;
            }
        }
    }
    return true;
}

void ShellWindows::ShowHelp(const QString& name) {
    OpenHelp(name.isEmpty() ? u"TempolarkCentral.chm"_s : name, HelpContext::Shell);
}

// A window that asks for it without being a clock has its page in the shell's book.
void ShellWindows::ShowClockHelp() {
    const IForm* active = area_.ActiveChild();
    if (active != nullptr && HelpContext::OfWindow(active->Name()) != 0) {
        ShowHelp();
    } else {
        OpenHelp(u"Tempolark.chm"_s, HelpContext::Clock);
    }
}

// The window in front may have a page of its own; @p otherwise is the page of a window without one.
void ShellWindows::OpenHelp(const QString& name, int otherwise) {
    const IForm* active = area_.ActiveChild();
    const int own = active != nullptr ? HelpContext::OfWindow(active->Name()) : 0;
    const int context = own != 0 ? own : otherwise;
    const QString refusal =
        program_.Services.Help.Show(program_.Module.Paths.AppFolder + u"/Help/"_s + name, context);
    if (!refusal.isEmpty()) {
        owner_.Shell.ShowStatusMsg(refusal);
    }
}
