#pragma once

#include <QWidget>

#include "clock/ClockClicks.h"
#include "clock/LookDialogs.h"
#include "clock/MenuSettings.h"
#include "clock/PartMenus.h"
#include "clock/StyleFiles.h"
#include "clock/ui/WidgetScreen.h"
#include "foundation/Program.h"
#include "timers/ActionList.h"

class QMenu;

namespace clockcore {

/// What comes of clicks on a clock, and the pop-up menus that show there. The menus of the parts
/// are those of `PartMenus`; the one of the whole clock goes to `ClockLook` or, with a question
/// first, to `LookDialogs`.
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
        const PartMenus& Menus;
    };

    ClockMenuHandlers(const ClockData& data, const Program& program, const Parts& parts)
        : data_(data), program_(program), parts_(parts) {}

    /// Builds the list of actions with the programs that the user added. Called by the first tick.
    void FillMenuArrays() override { parts_.Actions.FillActionMenu(); }

    void ClickSpeaker() override { parts_.Voice.ClickSpeaker(parts_.Spoken); }
    /// Speaks the action that counts down; its mark shows that for as long as the voice speaks.
    void ClickAction() override;
    QString SpeakerHint() const override { return parts_.Voice.HintText(); }
    /// Opens the menu of that part, or that of the clock for a part without one. Each kind of menu
    /// has an object name for those who look from outside: "FormPopup", "MessageMenu", and so on.
    void ShowMenu(const ClockHit& hit, const QPoint& globalPosition) override;
    /// A single entry, "Enable Clock".
    void ShowDisabledMenu(const QPoint& globalPosition) override;

private:
    /// An empty menu of the form, which deletes itself when it closes.
    QMenu* NewMenu(const QString& name);
    /// Of the look. The clock's file becomes the current one first.
    void ShowFormMenu(const QPoint& globalPosition);
    /// A name of `StyleFiles::Names`, or "More", which asks for a file.
    void ChooseStyle(const QString& name);
    /// A colour's name, or "Custom", which asks for a colour.
    void ChooseColour(const QString& name);
    /// Nothing without a shell.
    void ShowHelp();

    const ClockData& data_;
    Program program_;
    Parts parts_;
};

}  // namespace clockcore
