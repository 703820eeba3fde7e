#pragma once

#include "clock/ClockData.h"
#include "clock/ClockFiles.h"
#include "clock/ClockLook.h"
#include "clock/ClockWindow.h"
#include "drawing/Canvas.h"
#include "drawing/FaceParts.h"
#include "speech/SpeakerVoice.h"
#include "timers/ClockMessages.h"
#include "timers/TimerSlots.h"

namespace clockcore {

/// What the menus on parts of a clock set: one property at a time, applied and saved at once.
class MenuSettings {
public:
    /// What the settings are applied to. All of it outlives them.
    struct Parts {
        ClockFiles& Files;
        ClockLook& Look;
        ClockWindow& Window;
        const ClockPlacement& Placement;
        drawing::Canvas& Canvas;
        drawing::Overlays& Overlays;
        timers::ClockMessages& Messages;
        timers::TimerSlots& Timers;
        speech::SpeakerVoice& Voice;
        speech::SpokenTime& Spoken;
    };

    MenuSettings(ClockData& data, const Parts& parts) : data_(data), parts_(parts) {}

    /// Gives a key of the speaker's menu one of its choices.
    void SetSpeech(const QString& key, const QString& value);
    void SetVoice(int entry);  ///< an entry of the menu of voices, from 1
    /// Puts the speaker where it finds its place by itself.
    void PutSpeakerPosition();
    /// Gives the action that counts down, and those to come, a colour by its name.
    void SetActionColour(const QString& colour);
    void Enable();

private:
    void Save(const QStringList& keys);

    ClockData& data_;
    Parts parts_;
};

}  // namespace clockcore
