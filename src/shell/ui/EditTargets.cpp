#include "shell/ui/EditTargets.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>

#include "shell/ui/ClockArea.h"
#include "shell/ui/TextEditing.h"
#include "shell/ui/frmShortcuts.h"

namespace {

/// What a text leaves to its window where it can't do it itself.
bool IsWindowsToo(EditAction action) {
    return action == EditAction::Undo || action == EditAction::Redo || action == EditAction::Find;
}

}  // namespace

EditTargets::EditTargets(QWidget& window, const ClockArea& area) : window_(window), area_(area) {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        const bool isMenu =
            qobject_cast<QMenuBar*>(now) != nullptr || qobject_cast<QMenu*>(now) != nullptr;
        if (now != nullptr && !isMenu) {
            focus_ = now;
        }
    });
}

QWidget* EditTargets::Focus() const {
    const bool isHere = focus_ && window_.isAncestorOf(focus_) && focus_->isVisible();
    return isHere ? focus_.data() : nullptr;
}

IEditTarget* EditTargets::Window(EditAction action) const {
    IForm* form = area_.ActiveChild();
    IEditTarget* target = form != nullptr ? form->AsEditTarget() : nullptr;
    return target != nullptr && target->CanEdit(action) ? target : nullptr;
}

bool EditTargets::CanEdit(EditAction action) const {
    const std::optional<bool> text = TextEditing::CanEdit(Focus(), action);
    if (text && (*text || !IsWindowsToo(action))) {
        return *text;
    }
    return Window(action) != nullptr;
}

// The window of the keys records them.
bool EditTargets::KeysHold() const {
    return dynamic_cast<const frmShortcuts*>(area_.ActiveChild()) == nullptr;
}

void EditTargets::Edit(EditAction action) const {
    const std::optional<bool> text = TextEditing::CanEdit(Focus(), action);
    if (text && (*text || !IsWindowsToo(action))) {
        return TextEditing::Edit(Focus(), action);
    }
    if (IEditTarget* target = Window(action)) {
        target->Edit(action);
    }
}
