#include "clock/ui/SpeakerMenu.h"

#include "clock/ui/MenuEntries.h"
#include "foundation/NamedValues.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;

namespace clockcore {

namespace {

using SetValue = std::function<void(const QString& key, const QString& value)>;

/// A sub-menu of one key's choices.
struct ChoiceMenu {
    QStringView Caption;
    QStringView Name;
    QStringView Key;
};

constexpr ChoiceMenu Patterns[] = {
    {u"Day Speak Pattern", u"DaySPFormat", u"Speech Day Pattern"},
    {u"Hour Speak Pattern", u"HourSPFormat", u"Speech Hour Pattern"},
    {u"Minute Speak Pattern", u"MinuteSPFormat", u"Speech Minute Pattern"},
    {u"Second Speak Pattern", u"SecondSPFormat", u"Speech Second Pattern"},
};

constexpr ChoiceMenu Numbers[] = {
    {u"Speaker Volume", u"SpeakerVolumeMenu", u"Speaker Volume"},
    {u"Speak Rate", u"SpeakRateMenu", u"Speak Rate"},
    {u"Music Volume", u"MusicVolumeMenu", u"Music Volume"},
};

void AddChoices(QMenu& menu, const ChoiceMenu& what, const ClockProperties& properties,
                const SetValue& choose) {
    QMenu* choices = menu.addMenu(what.Caption.toString());
    choices->setObjectName(what.Name.toString());
    const QString key = what.Key.toString();
    const QString present = mduLib::GetProperty(key, properties);
    const QString list = mduLib::GetPropertyChoices(key, properties);
    for (const QString& value : list.split(u',', Qt::SkipEmptyParts)) {
        QAction* action = AddEntry(*choices, value, [choose, key, value] { choose(key, value); });
        Mark(*action, value.trimmed() == present.trimmed());
    }
}

/// An entry that turns a yes into a no and back.
void AddSwitch(QMenu& menu, const QString& name, const QString& key,
               const ClockProperties& properties, const SetValue& choose) {
    const bool on = mduUILib::YesNoToBool(mduLib::GetProperty(key, properties));
    QAction* action =
        AddEntry(menu, key, [choose, key, on] { choose(key, mduUILib::BoolToYesNo(!on)); });
    action->setObjectName(name);
    Mark(*action, on);
}

void AddVoices(QMenu& menu, const std::vector<speech::VoiceEntry>& voices,
               const ClockProperties& properties, const std::function<void(int)>& choose) {
    const QString present = mduLib::GetProperty(u"Speaker Voice"_s, properties).trimmed();
    QMenu* list = menu.addMenu(u"Speaker Voice"_s);
    list->setObjectName(u"VoiceMenu"_s);
    int number = 0;
    for (const speech::VoiceEntry& voice : voices) {
        ++number;
        if (voice.Index >= 0) {
            Mark(*AddEntry(*list, voice.Caption, [choose, number] { choose(number); }),
                 voice.Caption.trimmed() == present);
        }
    }
}

}  // namespace

QMenu* MakeSpeakerMenu(QWidget* clock, const ClockProperties& properties,
                       const std::vector<speech::VoiceEntry>& voices,
                       const SpeakerCommands& commands) {
    auto* menu = new QMenu(clock);
    menu->setObjectName(u"SpeakerMenu"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const SetValue set = commands.SetValue;
    AddEntry(*menu, u"Hide Speaker"_s, [set] { set(u"Speaker"_s, u"No"_s); });
    for (const ChoiceMenu& pattern : Patterns) {
        AddChoices(*menu, pattern, properties, set);
    }
    AddSwitch(*menu, u"SpeakTimerMessage"_s, u"Speak Timer Message"_s, properties, set);
    AddSwitch(*menu, u"SpeakActionMessage"_s, u"Speak Action Message"_s, properties, set);
    AddVoices(*menu, voices, properties, commands.SetVoice);
    for (const ChoiceMenu& number : Numbers) {
        AddChoices(*menu, number, properties, set);
    }
    AddEntry(*menu, u"Auto Position"_s, commands.AutoPosition);
    return menu;
}

}  // namespace clockcore
