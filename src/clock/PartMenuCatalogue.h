#pragma once

#include <QStringView>
#include <optional>
#include <span>

#include "clock/ClockHit.h"

/// The pop-up menus on the parts of a clock, as data. `PartMenus` makes what is shown of them.
namespace clockcore {

/// What a row of a menu is, and where a sub-menu takes its entries from. Where nothing else is said
/// a click on an entry stores its caption under the row's key, and the entry whose caption is the
/// present value is ticked.
enum class MenuSource {
    Group,       ///< a sub-menu that holds rows
    Choices,     ///< the choices that the property file gives the key, in their order
    Colours,     ///< the eight colours of every menu of colours
    AnyColour,   ///< those, then what else the key's choices hold, then "Custom", which asks
    Voices,      ///< the voices of the machine
    Times,       ///< twelve times at which a timer may be set; the timers make the sub-menu
    ActionTime,  ///< minutes that an action is put off by; stores nothing, ticks none
    Switch,      ///< no sub-menu: a key of yes and no, which a click turns over
    Value,       ///< no sub-menu: a click stores `Value` under both keys
    Command,     ///< no sub-menu: a click does what the row's name says
    Separator
};

/// What a changed property brings up to date.
enum class Redraw {
    Nothing,  ///< it is found by itself: music at the next tick
    Hands,
    HourNumbers,
    MinuteSpots,
    Digits,
    Calculator,
    Location,
    Flag,
    Message,        ///< the running one, whose colour is the value
    ActionMessage,  ///< the text of the action that counts down
    Speech,         ///< the speaker mark and the patterns
    SpeakerVolume,
    SpeakRate,
    SpeakerPlace
};

/// A row of a menu.
struct PartMenuRow {
    QStringView Name = {};  ///< by which tests and scripts find it: "HourHandColours"
    /// Of the row; without one the entries of a sub-menu stand in the menu itself.
    QStringView Caption = {};
    QStringView Key = {};  ///< of the property; empty for a group and a command
    MenuSource Source = MenuSource::Separator;
    Redraw Redraws = Redraw::Nothing;
    QStringView Value = {};                  ///< of `MenuSource::Value`
    QStringView OtherKey = {};               ///< of `MenuSource::Value`; empty for none
    std::span<const PartMenuRow> Rows = {};  ///< of `MenuSource::Group`
};

/// A menu of the catalogue.
struct PartMenu {
    QStringView Name;
    std::optional<ClockPart> Part;  ///< nothing for the menu of the icon in the tray
    std::span<const PartMenuRow> Rows;
};

/// All menus. The rows live as long as the program.
std::span<const PartMenu> PartMenuCatalogue();

/// The menu of a part; null for a part whose menu is not in the catalogue.
const PartMenu* FindPartMenu(ClockPart part);

}  // namespace clockcore
