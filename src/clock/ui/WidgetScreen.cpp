#include "clock/ui/WidgetScreen.h"

#include "foundation/NamedValues.h"

namespace clockcore {

bool WidgetScreen::IsInSight() const {
    return widget_.isVisible() && !widget_.visibleRegion().isEmpty() &&
           !widget_.window()->isMinimized();
}

int WidgetScreen::ShellBackColor() const {
    return shell_ != nullptr ? shell_->BackColor() : mduUILib::TransparentKey;
}

void WidgetScreen::ShowStatus(const QString& text) {
    if (shell_ != nullptr) {
        shell_->ShowStatusMsg(text);
    }
}

}  // namespace clockcore
