// What clicks on the entries of a clock's menus do.
#include "clock/PartMenus.h"
#include "foundation/NamedValues.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;

namespace clockcore {

// A menu may be open while its clock is closed by other means.
PartMenus::Choice PartMenus::WhileOpen(Choice choice) const {
    return [this, choice = std::move(choice)] {
        if (data_.State != ClockState::Closing) {
            choice();
        }
    };
}

PartMenus::Choice PartMenus::PutChoice(const PartMenuRow& row, const QString& value) const {
    if (row.Redraws == Redraw::ActionMessage) {
        return WhileOpen([this, value] { parts_.Settings.SetActionColour(value); });
    }
    QStringList keys = {row.Key.toString()};
    if (!row.OtherKey.isEmpty()) {
        keys += row.OtherKey.toString();
    }
    return WhileOpen(
        [this, keys, value, what = row.Redraws] { parts_.Settings.Put(keys, value, what); });
}

// The clock may have gone by the answer; then there is none.
PartMenus::Choice PartMenus::PickChoice(const PartMenuRow& row) const {
    return WhileOpen([this, key = row.Key.toString(), what = row.Redraws] {
        const QString present = mduLib::GetProperty(key, data_.Properties());
        const int colour = mduUILib::ColourValue(present, program_.Services.Random);
        if (const auto picked = parts_.Dialogs.PickColour(colour)) {
            parts_.Settings.Put({key}, QString::number(*picked), what);
        }
    });
}

PartMenus::Choice PartMenus::CommandOf(const PartMenuRow& row) const {
    constexpr struct {
        QStringView Name;
        void (PartMenus::*Run)() const;
    } commands[] = {{u"HideMessage", &PartMenus::HideMessage},
                    {u"CancelAction", &PartMenus::CancelAction},
                    {u"ShowClock", &PartMenus::ShowClock},
                    {u"SpeakTime", &PartMenus::SpeakTime},
                    {u"CloseClock", &PartMenus::CloseClock}};
    for (const auto& command : commands) {
        if (command.Name == row.Name) {
            return WhileOpen([this, run = command.Run] { (this->*run)(); });
        }
    }
    return {};
}

void PartMenus::HideMessage() const {
    parts_.Messages.HideMessage();
    parts_.Canvas.ShowChanges();
}

void PartMenus::CancelAction() const {
    parts_.Messages.CancelAction();
    parts_.Canvas.ShowChanges();
}

// A maximised clock stays so.
void PartMenus::ShowClock() const {
    if (!parts_.Placement.IsShown()) {
        parts_.Placement.ShowClockWindow(true);
    }
    if (parts_.Placement.WindowState() == 1) {
        parts_.Placement.SetWindowState(0);
    }
}

void PartMenus::SpeakTime() const {
    parts_.Voice.ClickSpeaker(parts_.Spoken);
}

void PartMenus::CloseClock() const {
    parts_.Window.CloseClock();
}

}  // namespace clockcore
