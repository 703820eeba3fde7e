#include "editor/PropertyOwner.h"

#include "foundation/SetupPaths.h"
#include "platform/Dialogs.h"

using namespace Qt::StringLiterals;

namespace editor {

namespace {

constexpr int Exclamation = 48;
constexpr int NoPressed = 7;

}  // namespace

IClock* PropertyOwner::ClockOf(const QString& file) const {
    for (int i = 0; i < program_.Windows.Count(); ++i) {
        IClock* clock = program_.Windows[i].AsClock();
        if (clock != nullptr && !file.isEmpty() && clock->IniFile() == file) {
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

SheetAnswer PropertyOwner::AnswerTo(const SheetQuestion& question) const {
    const auto& [text, title, flags] = question;
    const int answer = shell_ != nullptr ? shell_->ShowMsgbox(text, flags, title)
                                         : program_.Services.Dialog.MessageBox(text, flags, title);
    if (answer == MsgBox::Yes) {
        return SheetAnswer::Yes;
    }
    return answer == NoPressed ? SheetAnswer::No : SheetAnswer::Neither;
}

bool PropertyOwner::Ask(const std::optional<SheetQuestion>& question) const {
    return !question || AnswerTo(*question) == SheetAnswer::Yes;
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
    } else if (shell_ != nullptr && IsShell() && file_() == program_.Module.Paths.CentralFile) {
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
