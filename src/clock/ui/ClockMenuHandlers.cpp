#include "clock/ui/ClockMenuHandlers.h"

#include <QMenu>

#include "clock/ui/MenuView.h"
#include "clock/ui/TimersOnDial.h"
#include "drawing/StockPictures.h"

using namespace Qt::StringLiterals;

namespace clockcore {

void ClockMenuHandlers::FillMenuArrays() {
    parts_.Actions.FillActionMenu();
    parts_.Timers.FillMenus();
}

void ClockMenuHandlers::ShowMenu(const ClockHit& hit, const QPoint& globalPosition) {
    if (const auto menu = parts_.Menus.MenuOf(hit)) {
        MakeMenu(&parts_.Form, *menu)->popup(globalPosition);
    } else {
        parts_.Popup.FormRightClick(globalPosition);
    }
}

void ClockMenuHandlers::ClickAction() {
    parts_.Voice.SpeakNow(parts_.Messages.PendingAction());
    if (parts_.Voice.IsSpeaking()) {
        parts_.Controls.imgAction(1).Picture =
            drawing::GetStockPicture(drawing::StockPicture::ActionSpeaking);
        parts_.Canvas.ShowChanges();
    }
}

void ClockMenuHandlers::ShowDisabledMenu(const QPoint& globalPosition) {
    const MenuNode enable{.Name = u"EnableActive"_s,
                          .Caption = u"Enable Clock"_s,
                          .Choose = [this] { parts_.Commands.SetEnabled(true); }};
    MakeMenu(&parts_.Form, {.Name = u"DisabledMenu"_s, .Children = {enable}})
        ->popup(globalPosition);
}

}  // namespace clockcore
