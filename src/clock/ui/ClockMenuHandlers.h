#pragma once

#include <QWidget>

#include "clock/ClockClicks.h"
#include "clock/LookDialogs.h"
#include "clock/MenuSettings.h"
#include "clock/StyleFiles.h"
#include "clock/ui/WidgetScreen.h"
#include "foundation/Program.h"
#include "timers/ActionList.h"

class QMenu;

namespace clockcore {

/// The pop-up menus on the parts of a clock: each is made at the moment of opening, and its entries
/// go to `MenuSettings` (one property), `ClockLook` (the look as a whole), `LookDialogs` (with a
/// question first) or to the part itself. A further menu needs a part in `ClockHit`, a row in
/// `ShowMenu`, and a function that shows it.
class ClockMenuHandlers final : public ClockMenus, public ClockClicks {
public:
    /// What the menus show and command. All of it outlives the menus.
    struct Parts {
        QWidget& Form;  ///< the parent of the menus
        WidgetScreen& Screen;
        ClockWindow& Window;
        mduUILib::ClockControls& Controls;
        drawing::Canvas& Canvas;
        ClockFiles& Files;
        const StyleFiles& Styles;
        ClockLook& Look;
        LookDialogs& Dialogs;
        MenuSettings& Settings;
        timers::ClockMessages& Messages;
        timers::ActionList& Actions;
        speech::SpeakerVoice& Voice;
        speech::SpokenTime& Spoken;
    };

    ClockMenuHandlers(const ClockData& data, const Program& program, const Parts& parts)
        : data_(data), program_(program), parts_(parts) {}

    void FillMenuArrays() override { parts_.Actions.FillActionMenu(); }

    void ClickSpeaker() override { parts_.Voice.ClickSpeaker(parts_.Spoken); }
    /// Speaks the action that counts down; its mark shows that.
    void ClickAction() override;
    QString SpeakerHint() const override { return parts_.Voice.HintText(); }
    void ShowMenu(ClockPart part, const QPoint& globalPosition) override;
    void ShowDisabledMenu(const QPoint& globalPosition) override;

private:
    QMenu* NewMenu(const QString& name);
    void ShowFormMenu(const QPoint& globalPosition);
    void ShowSpeakerMenu(const QPoint& globalPosition);
    void ShowActionMenu(const QPoint& globalPosition);
    void ShowMessageMenu(const QPoint& globalPosition);
    int MinutesLeft() const;
    void ChooseStyle(const QString& name);
    void ChooseColour(const QString& name);
    void ShowHelp();

    const ClockData& data_;
    Program program_;
    Parts parts_;
};

}  // namespace clockcore
