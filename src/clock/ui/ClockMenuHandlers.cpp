#include "clock/ui/ClockMenuHandlers.h"

#include "clock/ui/ActionMenu.h"
#include "clock/ui/MenuEntries.h"
#include "clock/ui/SpeakerMenu.h"
#include "drawing/StockPictures.h"
#include "foundation/Dates.h"
#include "foundation/NamedValues.h"
#include "platform/WallClock.h"
#include "timezones/ZoneArithmetic.h"

using namespace Qt::StringLiterals;

namespace clockcore {

void ClockMenuHandlers::ShowMenu(const ClockHit& hit, const QPoint& globalPosition) {
    constexpr struct {
        ClockPart Part;
        void (ClockMenuHandlers::*Show)(const QPoint&);
    } menus[] = {{ClockPart::Speaker, &ClockMenuHandlers::ShowSpeakerMenu},
                 {ClockPart::Action, &ClockMenuHandlers::ShowActionMenu},
                 {ClockPart::Message, &ClockMenuHandlers::ShowMessageMenu}};
    for (const auto& menu : menus) {
        if (menu.Part == hit.Part) {
            return (this->*menu.Show)(globalPosition);
        }
    }
    parts_.Popup.FormRightClick(globalPosition);
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

void ClockMenuHandlers::ShowMessageMenu(const QPoint& globalPosition) {
    QMenu* menu = NewMenu(u"MessageMenu"_s);
    AddEntry(*menu, u"Hide Message"_s, [this] {
        parts_.Messages.HideMessage();
        parts_.Canvas.ShowChanges();
    });
    menu->popup(globalPosition);
}

void ClockMenuHandlers::ShowDisabledMenu(const QPoint& globalPosition) {
    QMenu* menu = NewMenu(u"DisabledMenu"_s);
    AddEntry(*menu, u"Enable Clock"_s, [this] { parts_.Settings.SetEnabled(true); });
    menu->popup(globalPosition);
}

// Whole minutes until the action runs; 0 without a deadline.
int ClockMenuHandlers::MinutesLeft() const {
    const auto deadline = mduAPILib::ParseMoment(parts_.Messages.ActionDeadline(), 2000);
    const QDateTime now = mduTimeZones::GetClockTime(data_.Zone, program_.Services.Clock.Now());
    return deadline ? static_cast<int>(now.secsTo(deadline->Moment) / 60) : 0;
}

void ClockMenuHandlers::ShowActionMenu(const QPoint& globalPosition) {
    const auto postpone = [this](int minutes) { parts_.Messages.PostponeAction(minutes); };
    const auto cancel = [this] {
        parts_.Messages.CancelAction();
        parts_.Canvas.ShowChanges();
    };
    const auto setColour = [this](const QString& name) { parts_.Settings.SetActionColour(name); };
    const QString colour = mduUILib::ColourName(parts_.Controls.lblActionMsg(1).ForeColor);
    MakeActionMenu(&parts_.Form, timers::ActionTimes(MinutesLeft()), colour,
                   {postpone, cancel, setColour})
        ->popup(globalPosition);
}

void ClockMenuHandlers::ShowSpeakerMenu(const QPoint& globalPosition) {
    MakeSpeakerMenu(&parts_.Form, data_.Properties(), parts_.Voice.VoiceMenu(),
                    {[this](const QString& key, const QString& value) {
                         parts_.Settings.SetSpeech(key, value);
                     },
                     [this](int entry) { parts_.Settings.SetVoice(entry); },
                     [this] { parts_.Settings.PutSpeakerPosition(); }})
        ->popup(globalPosition);
}

}  // namespace clockcore
