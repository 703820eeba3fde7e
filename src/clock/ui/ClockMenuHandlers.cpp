#include "clock/ui/ClockMenuHandlers.h"

#include "clock/ui/LookMenu.h"
#include "clock/ui/MenuEntries.h"
#include "clock/ui/MenuView.h"
#include "drawing/StockPictures.h"
#include "foundation/NamedValues.h"

using namespace Qt::StringLiterals;

namespace clockcore {

void ClockMenuHandlers::ShowMenu(const ClockHit& hit, const QPoint& globalPosition) {
    if (const auto menu = parts_.Menus.MenuOf(hit)) {
        MakeMenu(&parts_.Form, *menu)->popup(globalPosition);
    } else {
        ShowFormMenu(globalPosition);
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

QMenu* ClockMenuHandlers::NewMenu(const QString& name) {
    auto* menu = new QMenu(&parts_.Form);
    menu->setObjectName(name);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    return menu;
}

void ClockMenuHandlers::ShowDisabledMenu(const QPoint& globalPosition) {
    QMenu* menu = NewMenu(u"DisabledMenu"_s);
    AddEntry(*menu, u"Enable Clock"_s, [this] { parts_.Settings.Enable(); });
    menu->popup(globalPosition);
}

void ClockMenuHandlers::ShowFormMenu(const QPoint& globalPosition) {
    parts_.Files.MakeCurrent();
    MakeLookMenu(
        &parts_.Form, GetClockType(data_.Properties()), parts_.Styles.Names(),
        {[this](ClockKind kind) { parts_.Look.SetClocks(kind); },
         [this](const QString& name) { ChooseStyle(name); },
         [this](const QString& name) { ChooseColour(name); },
         [this] { parts_.Look.SaveCurrentStyle(); }, [this] { parts_.Dialogs.SaveStyleAs(); },
         [this] { ShowHelp(); }, [this] { parts_.Window.CloseClock(); }})
        ->popup(globalPosition);
}

void ClockMenuHandlers::ChooseStyle(const QString& name) {
    parts_.Dialogs.SetClockStyle(name == u"More"_s ? name
                                                   : program_.Module.Paths.StylesFolder + name);
}

void ClockMenuHandlers::ChooseColour(const QString& name) {
    if (mduUILib::IsCustomColour(name)) {
        parts_.Dialogs.PickWindowBackColour();
    } else {
        parts_.Look.SetWindowBackColour({}, name);
    }
}

void ClockMenuHandlers::ShowHelp() {
    if (parts_.Screen.Shell() != nullptr) {
        parts_.Screen.Shell()->ShowClockHelp();
    }
}

}  // namespace clockcore
