#pragma once

#include <QWidget>

#include "clock/ClockClicks.h"
#include "clock/ClockKeys.h"
#include "clock/PartMenus.h"
#include "clock/ui/FormPopup.h"
#include "timers/ActionList.h"

namespace clockcore {

class TimersOnDial;

/// What comes of clicks and keys on a clock, and the pop-up menus that show there. The menus of the
/// parts are those of `PartMenus`; that of the whole clock is `FormPopup`.
class ClockMenuHandlers final : public ClockMenus, public ClockClicks {
public:
    /// What the menus show and command. All of it outlives the menus.
    struct Parts {
        QWidget& Form;  ///< the parent of the menus
        mduUILib::ClockControls& Controls;
        drawing::Canvas& Canvas;
        timers::ClockMessages& Messages;
        timers::ActionList& Actions;
        speech::SpeakerVoice& Voice;
        speech::SpokenTime& Spoken;
        FormPopup& Popup;
        FormCommands& Commands;
        ClockKeys& Keys;
        const PartMenus& Menus;
        TimersOnDial& Timers;
    };

    explicit ClockMenuHandlers(const Parts& parts) : parts_(parts) {}

    /// Builds the list of actions with the programs that the user added, and asks for what the
    /// menus of timers have to know. Called by the first tick.
    void FillMenuArrays() override;

    void ClickSpeaker() override { parts_.Voice.ClickSpeaker(parts_.Spoken); }
    /// Speaks the action that counts down; its mark shows that for as long as the voice speaks.
    void ClickAction() override;
    QString SpeakerHint() const override { return parts_.Voice.HintText(); }
    void DoubleClickGround() override { parts_.Commands.ToggleMaximised(); }
    bool PressKey(int code, int shift) override { return parts_.Keys.ClockKeyDown(code, shift); }
    /// Opens the menu of that part, or that of the clock for a part without one. Each kind of menu
    /// has an object name for those who look from outside: "FormPopup", "MessageMenu", and so on.
    void ShowMenu(const ClockHit& hit, const QPoint& globalPosition) override;
    /// A single entry, "Enable Clock".
    void ShowDisabledMenu(const QPoint& globalPosition) override;

private:
    Parts parts_;
};

}  // namespace clockcore
