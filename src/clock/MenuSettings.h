#pragma once

#include "clock/ClockData.h"
#include "clock/ClockFiles.h"
#include "clock/ClockLook.h"
#include "clock/ClockWindow.h"
#include "clock/PropertyRedraw.h"
#include "drawing/Canvas.h"
#include "speech/SpeakerVoice.h"
#include "timers/ClockMessages.h"
#include "timers/TimerSlots.h"

namespace clockcore {

/// Gives a key its value and keeps its choices, for a menu lists them: also those of a row that
/// begins with a comma, which has choices and no value. A new key is added.
void PutValue(const QString& key, const QString& value, ClockProperties& properties);

/// What the menus on parts of a clock set: one property at a time, applied and saved at once.
///
/// Each setting writes its own key into the clock's file and leaves the others as the file has
/// them, so that a look that was only tried out is not saved along with it. The status bar tells
/// that the settings have been saved; what could not be saved has been told by `ClockFiles`. The
/// timers are saved and the face is brought up to date each time.
class MenuSettings {
public:
    /// What the settings are applied to. All of it outlives them.
    struct Parts {
        ClockFiles& Files;
        ClockLook& Look;
        ClockWindow& Window;
        const ClockPlacement& Placement;
        drawing::Canvas& Canvas;
        timers::ClockMessages& Messages;
        timers::TimerSlots& Timers;
        speech::SpeakerVoice& Voice;
        PropertyRedraw& Redraws;
    };

    MenuSettings(ClockData& data, const Parts& parts) : data_(data), parts_(parts) {}

    /// Gives one or several keys a value, the same for all, and brings up to date what goes by
    /// them. A value such as "Red" or "-1", as a menu shows it or as a picker answers.
    void Put(const QStringList& keys, const QString& value, Redraw what);
    /// Lets another voice speak: an entry of `SpeakerVoice::VoiceMenu`, from 1.
    void SetVoice(int entry);
    /// Gives the action that counts down, and those to come, a colour by its name. Without a
    /// countdown the colour stays as it is.
    void SetActionColour(const QString& colour);
    /// Makes a disabled clock usable again, or disables it, now and at its next start.
    void SetEnabled(bool enabled);
    /// Brings keys that have been given their values already into the file, all at once.
    /// Tells of a save only when all the keys are in the file.
    void Save(const QStringList& keys);

private:
    ClockData& data_;
    Parts parts_;
};

}  // namespace clockcore
