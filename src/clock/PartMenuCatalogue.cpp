#include "clock/PartMenuCatalogue.h"

#include <algorithm>

namespace clockcore {

namespace {

using enum MenuSource;

constexpr PartMenuRow HandColours[] = {
    {u"HourHandColours", u"Hour Hand", u"Hour Hand Colour", AnyColour, Redraw::Hands},
    {u"MinuteHandColours", u"Minute Hand", u"Minute Hand Colour", AnyColour, Redraw::Hands},
    {u"SecondHandColours", u"Second Hand", u"Second Hand Colour", AnyColour, Redraw::Hands},
    {u"HandHeadColours", u"Hand Head", u"Hand Head Colour", AnyColour, Redraw::Hands},
};

constexpr PartMenuRow HandStyles[] = {
    {u"HourHandStyles", u"Hour Hand", u"Hour Hand Style", Choices, Redraw::Hands},
    {u"MinuteHandStyles", u"Minute Hand", u"Minute Hand Style", Choices, Redraw::Hands},
    {u"SecondHandStyles", u"Second Hand", u"Second Hand Style", Choices, Redraw::Hands},
};

constexpr PartMenuRow HandLengths[] = {
    {u"HourHandLengths", u"Hour Hand", u"Hour Hand Length(%)", Choices, Redraw::Hands},
    {u"MinuteHandLengths", u"Minute Hand", u"Minute Hand Length(%)", Choices, Redraw::Hands},
    {u"SecondHandLengths", u"Second Hand", u"Second Hand Length(%)", Choices, Redraw::Hands},
};

constexpr PartMenuRow HandLineWidths[] = {
    {u"HourHandLineWidths", u"Hour Hand", u"Hour Hand Line Width", Choices, Redraw::Hands},
    {u"MinuteHandLineWidths", u"Minute Hand", u"Minute Hand Line Width", Choices, Redraw::Hands},
    {u"SecondHandLineWidths", u"Second Hand", u"Second Hand Line Width", Choices, Redraw::Hands},
};

constexpr PartMenuRow Hands[] = {
    {.Name = u"HandColours", .Caption = u"Hand Colour", .Source = Group, .Rows = HandColours},
    {.Name = u"HandStyles", .Caption = u"Hand Style", .Source = Group, .Rows = HandStyles},
    {.Name = u"HandLengths", .Caption = u"Hand Length (%)", .Source = Group, .Rows = HandLengths},
    {.Name = u"HandLineWidths",
     .Caption = u"Hand Line Width",
     .Source = Group,
     .Rows = HandLineWidths},
};

constexpr PartMenuRow Hour[] = {
    {u"SetTimer", u"Set Timer", {}, Times},
    {},
    {u"NumberStyle", u"Hour Number Style", u"Hour Number Style", Choices, Redraw::HourNumbers},
    {u"HourColour", u"Hour Number Colour", u"Hour Number Colour", AnyColour, Redraw::HourNumbers},
    {u"HourFont", u"Hour Number Font", u"Hour Number Font", Choices, Redraw::HourNumbers},
    {u"HourSize", u"Hour Number Size", u"Hour Number Size", Choices, Redraw::HourNumbers},
    {u"HourPosition", u"Hour Number Position (%)", u"Hour Number Position(%)", Choices,
     Redraw::HourNumbers},
    {},
    {u"SpotStyle", u"Minute Spot Style", u"Minute Spot Style", Choices, Redraw::MinuteSpots},
    {u"SpotSize", u"Minute Spot Size", u"Minute Spot Size", Choices, Redraw::MinuteSpots},
    {u"SpotPosition", u"Minute Spot Position (%)", u"Minute Spot Position(%)", Choices,
     Redraw::MinuteSpots},
};

constexpr PartMenuRow DigitalClock[] = {
    {u"DigitalFormat", u"Digital Clock Format", u"Digital Clock Format", Choices, Redraw::Digits},
    {u"FontColour", u"Number Colour", u"Digital Clock Colour", AnyColour, Redraw::Digits},
    {u"DigitalFont", u"Number Font", u"Digital Clock Font", Choices, Redraw::Digits},
    {u"DigitalNumberSize", u"Number Size", u"Digital Font Size", Choices, Redraw::Digits},
    {},
    {u"DigitalAutoPosition", u"Auto Position", u"Digital Clock CentralX(%)", Value, Redraw::Digits,
     u"-1", u"Digital Clock CentralY(%)"},
};

constexpr PartMenuRow CalculatorInput[] = {
    {u"LocalTimeFontColour", u"Local Time Font Colour", u"Calculator Local Time Font Colour",
     AnyColour, Redraw::Calculator},
    {u"LocalTimeFont", u"Local Time Font", u"Calculator Local Time Font", Choices,
     Redraw::Calculator},
    {u"LocalTimeFontSize", u"Local Time Font Size", u"Calculator Local Time Font Size", Choices,
     Redraw::Calculator},
};

constexpr PartMenuRow CalculatorOutput[] = {
    {u"OutputTimer", u"Set Timer", {}, Times},
    {},
    {u"CalculatedTimeFontColour", u"Calculated Time Font Colour", u"Calculator Time Font Colour",
     AnyColour, Redraw::Calculator},
    {u"CalculatedTimeFont", u"Calculated Time Font", u"Calculator Time Font", Choices,
     Redraw::Calculator},
    {u"CalculatedTimeFontSize", u"Calculated Time Font Size", u"Calculator Time Font Size", Choices,
     Redraw::Calculator},
};

constexpr PartMenuRow Location[] = {
    {u"LocationColour", u"Time Zone Colour", u"Time Zone Colour", AnyColour, Redraw::Location},
    {u"LocationSize", u"Time Zone Label Size", u"Time Zone Label Size", Choices, Redraw::Location},
    {},
    {u"LocationAutoPosition", u"Auto Position", u"Time Zone Name Left", Value, Redraw::Location,
     u"-1", u"Time Zone Name Top"},
};

constexpr PartMenuRow Message[] = {
    {u"HideMessage", u"Hide Message", {}, Command},
    {u"MessageFontColour", u"Set Message Font Colour", u"Message Colour", Colours, Redraw::Message},
};

constexpr PartMenuRow Action[] = {
    {u"ActionTime", u"Action Time", {}, ActionTime},
    {u"CancelAction", u"Cancel Action", {}, Command},
    {u"SetActionMsgColour", u"Set Action Message Font Colour", u"Message Action Colour", Colours,
     Redraw::ActionMessage},
};

constexpr PartMenuRow Speaker[] = {
    {u"HideSpeaker", u"Hide Speaker", u"Speaker", Value, Redraw::Speech, u"No"},
    {u"DaySPFormat", u"Day Speak Pattern", u"Speech Day Pattern", Choices, Redraw::Speech},
    {u"HourSPFormat", u"Hour Speak Pattern", u"Speech Hour Pattern", Choices, Redraw::Speech},
    {u"MinuteSPFormat", u"Minute Speak Pattern", u"Speech Minute Pattern", Choices, Redraw::Speech},
    {u"SecondSPFormat", u"Second Speak Pattern", u"Speech Second Pattern", Choices, Redraw::Speech},
    {u"SpeakTimerMessage", u"Speak Timer Message", u"Speak Timer Message", Switch, Redraw::Speech},
    {u"SpeakActionMessage", u"Speak Action Message", u"Speak Action Message", Switch,
     Redraw::Speech},
    {u"VoiceMenu", u"Speaker Voice", u"Speaker Voice", Voices},
    {u"SpeakerVolumeMenu", u"Speaker Volume", u"Speaker Volume", Choices, Redraw::SpeakerVolume},
    {u"SpeakRateMenu", u"Speak Rate", u"Speak Rate", Choices, Redraw::SpeakRate},
    {u"MusicVolumeMenu", u"Music Volume", u"Music Volume", Choices},
    {u"SpeakerAutoPosition", u"Auto Position", u"Speaker Image Left", Value, Redraw::SpeakerPlace,
     u"-1", u"Speaker Image Top"},
};

constexpr PartMenuRow Flag[] = {
    {.Name = u"FlagPos", .Key = u"Flag Position", .Source = Choices, .Redraws = Redraw::Flag},
};

// Nothing opens it as long as no clock has an icon in the tray.
constexpr PartMenuRow SystemTray[] = {
    {u"ShowClock", u"Show Clock", {}, Command},
    {u"SpeakTime", u"Speak Time", {}, Command},
    {},
    {u"CloseClock", u"Close", {}, Command},
};

constexpr PartMenu Menus[] = {
    {u"HandMenu", ClockPart::Hands, Hands},
    {u"HourMenu", ClockPart::HourNumber, Hour},
    {u"DigitalClockMenu", ClockPart::Digits, DigitalClock},
    {u"CalculatorInputMenu", ClockPart::Input, CalculatorInput},
    {u"CalculatorOutputMenu", ClockPart::Output, CalculatorOutput},
    {u"LocationMenu", ClockPart::Location, Location},
    {u"MessageMenu", ClockPart::Message, Message},
    {u"ActionMenu", ClockPart::Action, Action},
    {u"SpeakerMenu", ClockPart::Speaker, Speaker},
    {u"FlagMenu", ClockPart::Flag, Flag},
    {u"SystemTrayMenu", std::nullopt, SystemTray},
};

}  // namespace

std::span<const PartMenu> PartMenuCatalogue() {
    return Menus;
}

const PartMenu* FindPartMenu(ClockPart part) {
    const auto* found = std::find_if(std::begin(Menus), std::end(Menus),
                                     [part](const PartMenu& menu) { return menu.Part == part; });
    return found == std::end(Menus) ? nullptr : found;
}

}  // namespace clockcore
