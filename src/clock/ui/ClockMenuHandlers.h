#pragma once

#include <QWidget>

#include "clock/ClockClicks.h"
#include "clock/ClockKeys.h"
#include "clock/MenuSettings.h"
#include "clock/ui/FormPopup.h"
#include "foundation/Program.h"
#include "timers/ActionList.h"

class QMenu;

namespace clockcore {

/// What comes of clicks and keys on a clock. The pop-up menus on its parts are each made at the
/// moment of opening, and their entries go to `MenuSettings` (one property) or to the part itself;
/// that of the clock is `FormPopup`. A further menu needs a part in `ClockHit`, a row in
/// `ShowMenu`, and a function that shows it.
class ClockMenuHandlers final : public ClockMenus, public ClockClicks {
public:
    /// What the menus show and command. All of it outlives the menus.
    struct Parts {
        QWidget& Form;  ///< the parent of the menus
        mduUILib::ClockControls& Controls;
        drawing::Canvas& Canvas;
        MenuSettings& Settings;
        timers::ClockMessages& Messages;
        timers::ActionList& Actions;
        speech::SpeakerVoice& Voice;
        speech::SpokenTime& Spoken;
        FormPopup& Popup;
        FormCommands& Commands;
        ClockKeys& Keys;
    };

    ClockMenuHandlers(const ClockData& data, const Program& program, const Parts& parts)
        : data_(data), program_(program), parts_(parts) {}

    /// Builds the list of actions with the programs that the user added. Called by the first tick.
    void FillMenuArrays() override { parts_.Actions.FillActionMenu(); }

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
    /// An empty menu of the form, which deletes itself when it closes.
    QMenu* NewMenu(const QString& name);
    void ShowSpeakerMenu(const QPoint& globalPosition);
    void ShowActionMenu(const QPoint& globalPosition);
    void ShowMessageMenu(const QPoint& globalPosition);
    /// Whole minutes until the action runs, below 0 when it is late; 0 without a deadline.
    int MinutesLeft() const;

    const ClockData& data_;
    Program program_;
    Parts parts_;
};

}  // namespace clockcore
