#include "clock/MenuSettings.h"

#include "foundation/NamedValues.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;

namespace clockcore {

void PutValue(const QString& key, const QString& value, ClockProperties& properties) {
    if (mduLib::GetPropertyRaw(key, properties).startsWith(u',')) {
        mduLib::PutPropertyKeepChoices(key, value, properties);
    } else {
        mduLib::PutProperty(key, value, properties);
    }
}

void MenuSettings::Put(const QStringList& keys, const QString& value, Redraw what) {
    for (const QString& key : keys) {
        PutValue(key, value, data_.EditProperties());
    }
    parts_.Redraws.Apply(what, value);
    Save(keys);
}

void MenuSettings::SetVoice(int entry) {
    parts_.Voice.SetVoiceByMenu(entry);
    Save({u"Speaker Voice"_s});
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
    if (parts_.Files.SaveKeys(keys)) {
        parts_.Look.TellSaved(u"the settings of "_s + parts_.Placement.Caption());
    }
    parts_.Timers.SaveTimer(data_.TimerFile);
    parts_.Canvas.ShowChanges();
}

}  // namespace clockcore
