#include "editor/PropertyOwner.h"

#include "foundation/SetupPaths.h"
#include "platform/Dialogs.h"

using namespace Qt::StringLiterals;

namespace editor {

namespace {

constexpr int Exclamation = 48;

}  // namespace

IClock* PropertyOwner::Clock() const {
    IForm* owner = IsShell() ? nullptr : program_.Windows.Find(handle_);
    return owner == nullptr ? nullptr : owner->AsClock();
}

IClock* PropertyOwner::ClockOf(const QString& file) const {
    for (int i = 0; i < program_.Windows.Count(); ++i) {
        IClock* clock = program_.Windows[i].AsClock();
        if (clock != nullptr && clock->IniFile() == file) {
            return clock;
        }
    }
    return nullptr;
}

PropertySheet::Source PropertyOwner::SourceOf(const QString& zoneName) const {
    const PathTable& paths = program_.Module.Paths;
    if (zoneName.isEmpty()) {
        return {SheetKind::NewClock, {}, paths.ZoneDefaultFile()};
    }
    return IsShell() ? PropertySheet::Source{SheetKind::Shell, zoneName, paths.CentralDefaultFile()}
                     : PropertySheet::Source{SheetKind::Clock, zoneName, paths.ZoneDefaultFile()};
}

bool PropertyOwner::Ask(const std::optional<SheetQuestion>& question) const {
    if (!question) {
        return true;
    }
    const int answer =
        shell_ != nullptr
            ? shell_->ShowMsgbox(question->Text, MsgBox::YesNoQuestion, question->Title)
            : program_.Services.Dialog.MessageBox(question->Text, MsgBox::YesNoQuestion,
                                                  question->Title);
    return answer == MsgBox::Yes;
}

void PropertyOwner::Tell(const QString& text) const {
    if (text.isEmpty()) {
        return;
    }
    if (shell_ != nullptr) {
        shell_->ShowStatusMsg(text);
    } else {
        program_.Services.Dialog.PostMessageBox(text, Exclamation, u"Properties"_s);
    }
}

ClockProperties PropertyOwner::Now() const {
    IClock* clock = Clock();
    if (clock == nullptr) {
        return {};
    }
    ClockProperties& slot = program_.Module.CurrentProperties;
    ClockProperties others = slot;
    clock->SetProperty();
    std::swap(slot, others);
    return others;
}

void PropertyOwner::RefreshForm(const QString& name) const {
    if (IClock* clock = Clock()) {
        clock->RefreshForm(name);
    } else if (IsShell() && shell_ != nullptr) {
        shell_->RefreshForm(name);
    }
}

void PropertyOwner::Preview(const ClockProperties& values) const {
    if (IClock* clock = Clock()) {
        clock->PreviewProperties(values);
    }
}

bool PropertyOwner::Launch(const QString& zoneName) const {
    return shell_ != nullptr && shell_->LaunchTempolark(zoneName) != 0;
}

void PropertyOwner::ShowHelp() const {
    if (shell_ != nullptr) {
        shell_->ShowClockHelp();
    }
}

}  // namespace editor
