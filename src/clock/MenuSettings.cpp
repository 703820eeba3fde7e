#include "clock/MenuSettings.h"

#include <algorithm>

#include "foundation/NamedValues.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;

namespace clockcore {

// The voice hears of its volume and its rate here and nowhere else.
void MenuSettings::SetSpeech(const QString& key, const QString& value) {
    if (key == u"Speaker Volume"_s) {
        parts_.Voice.SetVolumeByMenu(value);
    } else if (key == u"Speak Rate"_s) {
        parts_.Voice.SetRateByMenu(value);
    } else {
        mduLib::PutProperty(key, value, data_.EditProperties());
        parts_.Voice.PrepareSpeaker();
        parts_.Spoken.ReadPatterns();
    }
    Save({key});
}

void MenuSettings::SetVoice(int entry) {
    parts_.Voice.SetVoiceByMenu(entry);
    Save({u"Speaker Voice"_s});
}

void MenuSettings::PutSpeakerPosition() {
    const QStringList keys = {u"Speaker Image Left"_s, u"Speaker Image Top"_s};
    for (const QString& key : keys) {
        mduLib::PutProperty(key, u"-1"_s, data_.EditProperties());
    }
    parts_.Overlays.SetSpeakerPosition();
    Save(keys);
}

void MenuSettings::SetActionColour(const QString& colour) {
    parts_.Messages.SetActionColour(colour);
    Save({u"Message Action Colour"_s});
}

void MenuSettings::SetEnabled(bool enabled) {
    mduLib::PutProperty(u"Enable"_s, mduUILib::BoolToYesNo(enabled), data_.EditProperties());
    parts_.Window.EnableWindow(enabled);
    Save({u"Enable"_s});
}

void MenuSettings::Save(const QStringList& keys) {
    if (std::all_of(keys.begin(), keys.end(),
                    [this](const QString& key) { return parts_.Files.SaveKey(key); })) {
        parts_.Look.TellSaved(u"the settings of "_s + parts_.Placement.Caption());
    }
    parts_.Timers.SaveTimer(data_.TimerFile);
    parts_.Canvas.ShowChanges();
}

}  // namespace clockcore
