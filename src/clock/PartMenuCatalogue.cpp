#include "clock/PartMenuCatalogue.h"

#include <algorithm>

namespace clockcore {

namespace {

using enum MenuSource;

constexpr PartMenuRow HandColours[] = {
    {AnyColour, u"HourHandColours", u"Hour Hand", u"Hour Hand Colour", Redraw::Hands},
    {AnyColour, u"MinuteHandColours", u"Minute Hand", u"Minute Hand Colour", Redraw::Hands},
    {AnyColour, u"SecondHandColours", u"Second Hand", u"Second Hand Colour", Redraw::Hands},
    {AnyColour, u"HandHeadColours", u"Hand Head", u"Hand Head Colour", Redraw::Hands},
};

constexpr PartMenuRow HandStyles[] = {
    {Choices, u"HourHandStyles", u"Hour Hand", u"Hour Hand Style", Redraw::Hands},
    {Choices, u"MinuteHandStyles", u"Minute Hand", u"Minute Hand Style", Redraw::Hands},
    {Choices, u"SecondHandStyles", u"Second Hand", u"Second Hand Style", Redraw::Hands},
};

constexpr PartMenuRow HandLengths[] = {
    {Choices, u"HourHandLengths", u"Hour Hand", u"Hour Hand Length(%)", Redraw::Hands},
    {Choices, u"MinuteHandLengths", u"Minute Hand", u"Minute Hand Length(%)", Redraw::Hands},
    {Choices, u"SecondHandLengths", u"Second Hand", u"Second Hand Length(%)", Redraw::Hands},
};

constexpr PartMenuRow HandLineWidths[] = {
    {Choices, u"HourHandLineWidths", u"Hour Hand", u"Hour Hand Line Width", Redraw::Hands},
    {Choices, u"MinuteHandLineWidths", u"Minute Hand", u"Minute Hand Line Width", Redraw::Hands},
    {Choices, u"SecondHandLineWidths", u"Second Hand", u"Second Hand Line Width", Redraw::Hands},
};

constexpr PartMenuRow Hands[] = {
    {.Source = Group, .Name = u"HandColours", .Caption = u"Hand Colour", .Rows = HandColours},
    {.Source = Group, .Name = u"HandStyles", .Caption = u"Hand Style", .Rows = HandStyles},
    {.Source = Group, .Name = u"HandLengths", .Caption = u"Hand Length (%)", .Rows = HandLengths},
    {.Source = Group,
     .Name = u"HandLineWidths",
     .Caption = u"Hand Line Width",
     .Rows = HandLineWidths},
};

constexpr PartMenuRow Hour[] = {
    {Times, u"SetTimer", u"Set Timer"},
    {},
    {Choices, u"NumberStyle", u"Hour Number Style", u"Hour Number Style", Redraw::HourNumbers},
    {AnyColour, u"HourColour", u"Hour Number Colour", u"Hour Number Colour", Redraw::HourNumbers},
    {Choices, u"HourFont", u"Hour Number Font", u"Hour Number Font", Redraw::HourNumbers},
    {Choices, u"HourSize", u"Hour Number Size", u"Hour Number Size", Redraw::HourNumbers},
    {Choices, u"HourPosition", u"Hour Number Position (%)", u"Hour Number Position(%)",
     Redraw::HourNumbers},
    {},
    {Choices, u"SpotStyle", u"Minute Spot Style", u"Minute Spot Style", Redraw::MinuteSpots},
    {Choices, u"SpotSize", u"Minute Spot Size", u"Minute Spot Size", Redraw::MinuteSpots},
    {Choices, u"SpotPosition", u"Minute Spot Position (%)", u"Minute Spot Position(%)",
     Redraw::MinuteSpots},
};

constexpr PartMenuRow DigitalClock[] = {
    {Choices, u"DigitalFormat", u"Digital Clock Format", u"Digital Clock Format", Redraw::Digits},
    {AnyColour, u"FontColour", u"Number Colour", u"Digital Clock Colour", Redraw::Digits},
    {Choices, u"DigitalFont", u"Number Font", u"Digital Clock Font", Redraw::Digits},
    {Choices, u"DigitalNumberSize", u"Number Size", u"Digital Font Size", Redraw::Digits},
    {},
    {Value, u"DigitalAutoPosition", u"Auto Position", u"Digital Clock CentralX(%)", Redraw::Digits,
     u"-1", u"Digital Clock CentralY(%)"},
};

constexpr PartMenuRow CalculatorInput[] = {
    {AnyColour, u"LocalTimeFontColour", u"Local Time Font Colour",
     u"Calculator Local Time Font Colour", Redraw::Calculator},
    {Choices, u"LocalTimeFont", u"Local Time Font", u"Calculator Local Time Font",
     Redraw::Calculator},
    {Choices, u"LocalTimeFontSize", u"Local Time Font Size", u"Calculator Local Time Font Size",
     Redraw::Calculator},
};

constexpr PartMenuRow CalculatorOutput[] = {
    {Times, u"OutputTimer", u"Set Timer"},
    {},
    {AnyColour, u"CalculatedTimeFontColour", u"Calculated Time Font Colour",
     u"Calculator Time Font Colour", Redraw::Calculator},
    {Choices, u"CalculatedTimeFont", u"Calculated Time Font", u"Calculator Time Font",
     Redraw::Calculator},
    {Choices, u"CalculatedTimeFontSize", u"Calculated Time Font Size", u"Calculator Time Font Size",
     Redraw::Calculator},
};

constexpr PartMenuRow Location[] = {
    {AnyColour, u"LocationColour", u"Time Zone Colour", u"Time Zone Colour", Redraw::Location},
    {Choices, u"LocationSize", u"Time Zone Label Size", u"Time Zone Label Size", Redraw::Location},
    {},
    {Value, u"LocationAutoPosition", u"Auto Position", u"Time Zone Name Left", Redraw::Location,
     u"-1", u"Time Zone Name Top"},
};

constexpr PartMenuRow Message[] = {
    {Command, u"HideMessage", u"Hide Message"},
    {Colours, u"MessageFontColour", u"Set Message Font Colour", u"Message Colour", Redraw::Message},
};

constexpr PartMenuRow Action[] = {
    {ActionTime, u"ActionTime", u"Action Time"},
    {Command, u"CancelAction", u"Cancel Action"},
    {Colours, u"SetActionMsgColour", u"Set Action Message Font Colour", u"Message Action Colour",
     Redraw::ActionMessage},
};

constexpr PartMenuRow Speaker[] = {
    {Value, u"HideSpeaker", u"Hide Speaker", u"Speaker", Redraw::Speech, u"No"},
    {Choices, u"DaySPFormat", u"Day Speak Pattern", u"Speech Day Pattern", Redraw::Speech},
    {Choices, u"HourSPFormat", u"Hour Speak Pattern", u"Speech Hour Pattern", Redraw::Speech},
    {Choices, u"MinuteSPFormat", u"Minute Speak Pattern", u"Speech Minute Pattern", Redraw::Speech},
    {Choices, u"SecondSPFormat", u"Second Speak Pattern", u"Speech Second Pattern", Redraw::Speech},
    {Switch, u"SpeakTimerMessage", u"Speak Timer Message", u"Speak Timer Message", Redraw::Speech},
    {Switch, u"SpeakActionMessage", u"Speak Action Message", u"Speak Action Message",
     Redraw::Speech},
    {Voices, u"VoiceMenu", u"Speaker Voice", u"Speaker Voice"},
    {Choices, u"SpeakerVolumeMenu", u"Speaker Volume", u"Speaker Volume", Redraw::SpeakerVolume},
    {Choices, u"SpeakRateMenu", u"Speak Rate", u"Speak Rate", Redraw::SpeakRate},
    {Choices, u"MusicVolumeMenu", u"Music Volume", u"Music Volume"},
    {Value, u"SpeakerAutoPosition", u"Auto Position", u"Speaker Image Left", Redraw::SpeakerPlace,
     u"-1", u"Speaker Image Top"},
};

constexpr PartMenuRow Flag[] = {
    {.Source = Choices, .Name = u"FlagPos", .Key = u"Flag Position", .Redraws = Redraw::Flag},
};

// Nothing opens it as long as no clock has an icon in the tray.
constexpr PartMenuRow SystemTray[] = {
    {Command, u"ShowClock", u"Show Clock"},
    {Command, u"SpeakTime", u"Speak Time"},
    {},
    {Command, u"CloseClock", u"Close"},
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
