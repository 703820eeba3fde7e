#include "clock/TimerMenus.h"

#include <algorithm>

#include "foundation/Dates.h"
#include "foundation/FileHelpers.h"
#include "foundation/MenuLists.h"
#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"
#include "platform/Files.h"
#include "platform/SoundDevices.h"
#include "platform/WallClock.h"
#include "timers/SystemActions.h"
#include "timers/TimeMenus.h"
#include "timers/TimerFile.h"

using namespace Qt::StringLiterals;
using mduUILib::CheckMenuItem;

namespace clockcore {

namespace {

using timers::ClockTimer;

constexpr int SecondsBefore = 6 * 60;  // of the times that are offered instead of a timer's own

MenuNode Separator() {
    return {.Caption = u"-"_s};
}

}  // namespace

MenuNode TimerMenus::SetTimerMenu(const QString& time) const {
    MenuNode menu{.Name = u"SetTimer"_s, .Caption = u"Set Timer"_s};
    const auto moment = mduAPILib::ParseMoment(time, PresentYear());
    const bool isOfTheDial = !moment || !moment->HasDate;
    for (const QString& entry : timers::FillTimeMenu(time, PresentYear())) {
        AddTime(menu, isOfTheDial ? parts_.Timers.PickedTime(entry) : entry);
    }
    return menu;
}

void TimerMenus::AddTime(MenuNode& menu, const QString& time) const {
    menu.Children.push_back({.Name = u"TimerTime"_s, .Caption = time, .Choose = [this, time] {
                                 parts_.Timers.SetNewTimer(time);
                             }});
}

int TimerMenus::PresentYear() const {
    return program_.Services.Clock.Now().date().year();
}

MenuNode TimerMenus::ImgTimerMenu(int slot) {
    CountSoundDevices();
    MenuNode menu{.Name = u"ImgTimerMenu"_s, .Caption = u"Img Timer Menu"_s};
    const ChosenTimer chosen = parts_.Timers.Choose(slot);
    if (!parts_.Timers.IsThere(chosen)) {
        return menu;
    }
    menu.Children = {{.Name = u"EditMessage"_s,
                      .Caption = u"Edit Message"_s,
                      .Choose = [this, chosen] { parts_.Timers.EditMessage(chosen); }},
                     Colours(chosen),
                     DisplayTimes(chosen)};
    if (*devices_ > 0) {
        menu.Children.push_back(Sounds(chosen));
    }
    menu.Children.push_back(ActionMenu(chosen));
    menu.Children.push_back(MusicVolumes(chosen));
    menu.Children.push_back(OtherTimes(chosen));
    menu.Children.push_back({.Name = u"RemoveTimer"_s,
                             .Caption = u"Remove Timer "_s + chosen.Timer.TimerTime,
                             .Choose = [this, chosen] { parts_.Timers.Remove(chosen); }});
    menu.Children.push_back(PermanentEntry(chosen));
    return menu;
}

MenuNode TimerMenus::Colours(const ChosenTimer& chosen) const {
    MenuNode menu{.Name = u"SetMessageColour"_s, .Caption = u"Set Message Colour"_s};
    const QString present = mduUILib::ColourName(chosen.Timer.MessageColour);
    for (const QString& name : mduUILib::FillColourMenu()) {
        const auto choose = [this, chosen, name] {
            const int colour = mduUILib::ColourValue(name, program_.Services.Random);
            parts_.Timers.Change(chosen,
                                 [colour](ClockTimer& timer) { timer.MessageColour = colour; });
        };
        menu.Children.push_back({.Name = u"MessageColour"_s,
                                 .Caption = name,
                                 .Ticked = TickIf(CheckMenuItem(name, present)),
                                 .Choose = choose});
    }
    menu.Children.push_back({.Name = u"MessageColour"_s,
                             .Caption = u"Custom"_s,
                             .Choose = [this, chosen] { parts_.Dialogs.PickColour(chosen); }});
    return menu;
}

// The twelve numbers begin with the present one. The property's smaller choices stand behind them:
// without them a message could only be shown longer and longer.
MenuNode TimerMenus::DisplayTimes(const ChosenTimer& chosen) const {
    MenuNode menu{.Name = u"SetMessageDisplayTime"_s, .Caption = u"Set Message Display Time"_s};
    const int present = timers::WholeNumber(chosen.Timer.DisplayMinutes);
    const auto add = [&](const QString& minutes) {
        const auto choose = [this, chosen, minutes] {
            parts_.Timers.Change(chosen,
                                 [minutes](ClockTimer& timer) { timer.DisplayMinutes = minutes; });
        };
        menu.Children.push_back(
            {.Name = u"MessageDisplayTime"_s,
             .Caption = minutes,
             .Ticked = TickIf(CheckMenuItem(minutes, chosen.Timer.DisplayMinutes)),
             .Choose = choose});
    };
    for (const QString& minutes : timers::FillMinutesMenu(present)) {
        add(minutes);
    }
    QStringList smaller = mduUILib::FillMenuFromList(
        mduLib::GetPropertyChoices(u"Message Display Time"_s, data_.Properties()));
    smaller.removeIf(
        [present](const QString& minutes) { return mduAPILib::Val(minutes) >= present; });
    if (!smaller.isEmpty()) {
        menu.Children.push_back(Separator());
    }
    for (const QString& minutes : smaller) {
        add(minutes);
    }
    return menu;
}

MenuNode TimerMenus::Sounds(const ChosenTimer& chosen) const {
    MenuNode menu{.Name = u"SetSoundFile"_s, .Caption = u"Set Timer Sound"_s};
    const PathTable& paths = program_.Module.Paths;
    menu.Children.push_back(SoundEntry(chosen, u"None"_s, {}));
    QStringList names = program_.Services.FileSystem.FileNames(paths.SoundFilesFolder);
    names.sort(Qt::CaseInsensitive);
    for (const QString& name : names) {
        menu.Children.push_back(
            SoundEntry(chosen, name, mduLib::ToStoredPath(u"./SoundFiles/"_s + name)));
    }
    menu.Children.push_back({.Name = u"SoundFile"_s,
                             .Caption = u"More"_s,
                             .Choose = [this, chosen] { parts_.Dialogs.PickSound(chosen); }});
    return menu;
}

MenuNode TimerMenus::SoundEntry(const ChosenTimer& chosen, const QString& caption,
                                const QString& stored) const {
    const bool isPresent = mduUILib::IsNoneValue(chosen.Timer.SoundFile)
                               ? stored.isEmpty()
                               : CheckMenuItem(stored, chosen.Timer.SoundFile);
    return {.Name = u"SoundFile"_s,
            .Caption = caption,
            .Ticked = TickIf(isPresent),
            .Choose = [this, chosen, stored] {
                parts_.Timers.ChangeText(chosen, &ClockTimer::SoundFile, stored);
            }};
}

MenuNode TimerMenus::ActionMenu(const ChosenTimer& chosen) const {
    MenuNode menu{.Name = u"SetAction"_s, .Caption = u"Set Timer Action"_s};
    const QString present = chosen.Timer.TimerAction.isEmpty() ? QString(timers::ActionText::None)
                                                               : chosen.Timer.TimerAction;
    const std::vector<timers::ActionEntry>& entries = parts_.Actions.Entries();
    for (const timers::ActionEntry& entry : entries) {
        MenuNode node{.Name = u"TimerAction"_s, .Caption = entry.Caption};
        if (entry.Caption == "More"_L1) {
            node.Choose = [this, chosen] { parts_.Dialogs.PickProgram(chosen); };
        } else if (entry.Caption != "-"_L1) {
            node.Ticked = TickIf(CheckMenuItem(entry.Value, present));
            node.Choose = [this, chosen, value = entry.Value] {
                parts_.Timers.ChangeText(chosen, &ClockTimer::TimerAction, value);
            };
        }
        menu.Children.push_back(std::move(node));
    }
    return menu;
}

// A timer that leaves the volume alone has that of the clock.
MenuNode TimerMenus::MusicVolumes(const ChosenTimer& chosen) const {
    MenuNode menu{.Name = u"TimerPlayMusic"_s, .Caption = u"Play Music Volume"_s};
    const QString key = u"Music Volume"_s;
    const QString present = mduAPILib::Val(chosen.Timer.MusicVolume) > 0
                                ? chosen.Timer.MusicVolume
                                : mduLib::GetProperty(key, data_.Properties());
    const QString choices = mduLib::GetPropertyChoices(key, data_.Properties());
    for (const QString& volume : mduUILib::FillMenuFromList(choices)) {
        const auto choose = [this, chosen, volume] {
            parts_.Timers.Change(chosen,
                                 [volume](ClockTimer& timer) { timer.MusicVolume = volume; });
        };
        menu.Children.push_back({.Name = u"MusicVolumeMenu1"_s,
                                 .Caption = volume,
                                 .Ticked = TickIf(CheckMenuItem(volume, present)),
                                 .Choose = choose});
    }
    return menu;
}

MenuNode TimerMenus::OtherTimes(const ChosenTimer& chosen) const {
    MenuNode menu{.Name = u"ChangeTimer"_s, .Caption = u"Change Timer "_s + chosen.Timer.TimerTime};
    const int presentYear = PresentYear();
    const std::optional<QTime> time = timers::TimeOfText(chosen.Timer.TimerTime, presentYear);
    const QString from = time ? timers::HourMinute(time->addSecs(-SecondsBefore)) : QString();
    for (const QString& entry : timers::FillTimeMenu(from, presentYear)) {
        menu.Children.push_back(
            {.Name = u"Timer1"_s,
             .Caption = entry,
             .Ticked = TickIf(CheckMenuItem(entry, chosen.Timer.TimerTime)),
             .Choose = [this, chosen, entry] { parts_.Timers.ChangeTime(chosen, entry); }});
    }
    return menu;
}

MenuNode TimerMenus::PermanentEntry(const ChosenTimer& chosen) const {
    const bool isPermanent = chosen.Timer.IsPermanent();
    return {.Name = u"SetTimerPermanent"_s,
            .Caption = isPermanent ? u"Remove Permanent Timer"_s : u"Set Permanent Timer"_s,
            .Choose = [this, chosen, isPermanent] {
                parts_.Timers.Change(chosen, [isPermanent](ClockTimer& timer) {
                    timer.Permanent = isPermanent ? QString() : u"P"_s;
                });
            }};
}

void TimerMenus::CountSoundDevices() {
    program_.Services.Sound.Count([known = devices_](int count) { *known = count; });
}

}  // namespace clockcore
