#include "clock/ui/FormPopup.h"

#include <algorithm>

#include "clock/FormMenuState.h"
#include "clock/MenuIcons.h"
#include "clock/ui/MenuView.h"
#include "platform/Dialogs.h"

using namespace Qt::StringLiterals;

namespace clockcore {

MenuNode FormPopup::Fill() {
    const FormMenuState state = ReadFormMenuState(program_, data_,
                                                  {.IsMDIChild = parts_.Window.IsMDIChild(),
                                                   .IsEnabled = parts_.Window.IsEnabled(),
                                                   .WindowState = parts_.Placement.WindowState(),
                                                   .Showable = Showable()});
    MenuNode menu =
        MakeFormMenu(state, {[this](const FormEntry& entry) { parts_.Commands.Run(entry); },
                             [this](const QString& style) { preview_.Show(style); },
                             [this] { preview_.EndStyle(); }});
    SetMenuIcon(menu, program_);
    return menu;
}

ShowableParts FormPopup::Showable() const {
    const auto& voices = parts_.Voice.VoiceMenu();
    return {.Speaker = std::any_of(voices.begin(), voices.end(),
                                   [](const speech::VoiceEntry& each) { return each.Index >= 0; }),
            .Flag = controls_.imgFlag(1).Picture != nullptr};
}

void FormPopup::FormRightClick(const QPoint& globalPosition) {
    parts_.Files.MakeCurrent();
    menu_ = MakeMenu(&form_, Fill());
    // However it closes: a row of styles may have been highlighted without its sub-menu.
    QObject::connect(menu_, &QMenu::aboutToHide, menu_, [this] { preview_.EndStyle(); });
    menu_->popup(globalPosition);
}

void FormPopup::RightClick(const QPointF& point) const {
    constexpr int icon = 1;
    const mduUILib::Control& label = controls_.lblClock(1);
    if (label.Rect().contains(point)) {
        program_.Services.Dialog.PostMessageBox(label.Tag, icon, u"Right Click"_s);
    }
}

}  // namespace clockcore
