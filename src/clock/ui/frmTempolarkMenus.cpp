// The pop-up menus on parts of the clock: message, action, speaker; and that of its look.
#include <algorithm>

#include "clock/ClockMode.h"
#include "clock/ui/ActionMenu.h"
#include "clock/ui/LookMenu.h"
#include "clock/ui/MenuEntries.h"
#include "clock/ui/SpeakerMenu.h"
#include "clock/ui/frmTempolark.h"
#include "foundation/Dates.h"
#include "foundation/NamedValues.h"
#include "foundation/PropertyLookup.h"
#include "timezones/ZoneArithmetic.h"

using namespace Qt::StringLiterals;

void frmTempolark::ShowMessageMenu(const QPoint& globalPosition) {
    auto* menu = new QMenu(this);
    menu->setObjectName(u"MessageMenu"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    clockcore::AddEntry(*menu, u"Hide Message"_s, [this] {
        messages_.HideMessage();
        canvas_.ShowChanges();
    });
    menu->popup(globalPosition);
}

void frmTempolark::ShowActionMenu(const QPoint& globalPosition) {
    const auto deadline = mduAPILib::ParseMoment(messages_.ActionDeadline(), 2000);
    const QDateTime now = mduTimeZones::GetClockTime(data_.Zone, program_.Services.Clock.Now());
    const int left = deadline ? static_cast<int>(now.secsTo(deadline->Moment) / 60) : 0;
    const auto cancel = [this] {
        messages_.CancelAction();
        canvas_.ShowChanges();
    };
    const auto setColour = [this](const QString& name) {
        messages_.SetActionColour(name);
        SaveByMenu({u"Message Action Colour"_s});
    };
    const QString colour = mduUILib::ColourName(controls_.lblActionMsg(1).ForeColor);
    clockcore::MakeActionMenu(
        this, timers::ActionTimes(left), colour,
        {[this](int minutes) { messages_.PostponeAction(minutes); }, cancel, setColour})
        ->popup(globalPosition);
}

void frmTempolark::ShowSpeakerMenu(const QPoint& globalPosition) {
    const auto setVoice = [this](int entry) {
        voice_.SetVoiceByMenu(entry);
        SaveByMenu({u"Speaker Voice"_s});
    };
    clockcore::MakeSpeakerMenu(
        this, data_.Properties(), voice_.VoiceMenu(),
        {[this](const QString& key, const QString& value) { SetByMenu(key, value); }, setVoice,
         [this] { PutSpeakerPosition(); }})
        ->popup(globalPosition);
}

// The voice hears of its volume and its rate here and nowhere else.
void frmTempolark::SetByMenu(const QString& key, const QString& value) {
    if (key == u"Speaker Volume"_s) {
        voice_.SetVolumeByMenu(value);
    } else if (key == u"Speak Rate"_s) {
        voice_.SetRateByMenu(value);
    } else {
        mduLib::PutProperty(key, value, data_.EditProperties());
        voice_.PrepareSpeaker();
        spoken_.ReadPatterns();
    }
    SaveByMenu({key});
}

void frmTempolark::PutSpeakerPosition() {
    const QStringList keys = {u"Speaker Image Left"_s, u"Speaker Image Top"_s};
    for (const QString& key : keys) {
        mduLib::PutProperty(key, u"-1"_s, data_.EditProperties());
    }
    overlays_.SetSpeakerPosition();
    SaveByMenu(keys);
}

void frmTempolark::SaveByMenu(const QStringList& keys) {
    if (std::all_of(keys.begin(), keys.end(),
                    [this](const QString& key) { return files_.SaveKey(key); })) {
        TellSaved(u"the settings of "_s + Caption());
    }
    timers_.SaveTimer(data_.TimerFile);
    canvas_.ShowChanges();
}

void frmTempolark::ShowDisabledMenu(const QPoint& globalPosition) {
    auto* menu = new QMenu(this);
    menu->setObjectName(u"DisabledMenu"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    clockcore::AddEntry(*menu, u"Enable Clock"_s, [this] { EnableByMenu(); });
    menu->popup(globalPosition);
}

void frmTempolark::EnableByMenu() {
    mduLib::PutProperty(u"Enable"_s, mduUILib::BoolToYesNo(true), data_.EditProperties());
    EnableWindow(true);
    SaveByMenu({u"Enable"_s});
}

void frmTempolark::ShowFormMenu(const QPoint& globalPosition) {
    files_.MakeCurrent();
    const auto setStyle = [this](const QString& name) {
        SetClockStyle(name == u"More"_s ? name : program_.Module.Paths.StylesFolder + name);
    };
    const auto setColour = [this](const QString& name) {
        if (mduUILib::IsCustomColour(name)) {
            PickWindowBackColour();
        } else {
            SetWindowBackColour({}, name);
        }
    };
    QMenu* menu =
        clockcore::MakeLookMenu(this, clockcore::GetClockType(data_.Properties()), styles_.Names(),
                                {[this](int mode) { SetClocks(mode); }, setStyle, setColour,
                                 [this] { SaveCurrentStyle(); }, [this] { SaveStyleAs(); },
                                 [this] {
                                     if (screen_.Shell() != nullptr) {
                                         screen_.Shell()->ShowClockHelp();
                                     }
                                 },
                                 [this] { Unload(); }});
    menu->popup(globalPosition);
}
