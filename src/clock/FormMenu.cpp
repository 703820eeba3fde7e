#include "clock/FormMenu.h"

#include "foundation/MenuLists.h"
#include "foundation/NamedValues.h"

using namespace Qt::StringLiterals;

namespace clockcore {

namespace {

using State = FormMenuState;
using Tick = MenuNode::Tick;

const QString More = u"More"_s;

// Captions that tell what a click does depend on the state.

QString AutoStartCaption(const State& state) {
    const QString verb = state.AutoStarts ? u"Disable"_s : u"Enable"_s;
    return verb + u' ' + state.ZoneFile + u" Auto Start"_s;
}

QString EnableCaption(const State& state) {
    return state.Enabled ? u"Disable Clock"_s : u"Enable Clock"_s;
}

bool HasHiddenParts(const State& state) {
    return !state.HiddenParts.isEmpty();
}

bool IsMaximised(const State& state) {
    return state.WindowState == 2;
}

// The members of the sub-menus.

struct Members {
    QStringList Captions;
    QString Present = {};  ///< the caption that is ticked
    bool HasTicks = true;
    bool HasMore = false;
    bool IsPreviewed = false;
};

Members Kinds(const State& state) {
    return {ClockKindNames(), ClockKindName(state.Kind)};
}

Members Styles(const State& state) {
    return {state.Styles, {}, false, true, true};
}

Members WindowStates(const State& state) {
    return {{u"Normal"_s, u"Minimized"_s, u"Maximized"_s},
            mduUILib::WindowStateName(state.WindowState)};
}

Members Positions(const State&) {
    return {WindowPositions(), {}, false};
}

Members Colours(const State& state) {
    return {mduUILib::FillColourMenu() + QStringList{u"Transparent"_s, u"Custom"_s}, state.Colour};
}

Members Zones(const State& state) {
    return {state.Zones, {}, false, true};
}

Members ScreenSaverTimes(const State& state) {
    return {state.ScreenSaverTimes, state.ScreenSaverTime};
}

Members Hidden(const State& state) {
    return {state.HiddenParts, {}, false};
}

/// An entry of the menu. One with an array is a sub-menu; one without a name separates.
struct Row {
    QStringView Name = {};
    QStringView Caption = {};
    QString (*CaptionOf)(const State&) = nullptr;  ///< in place of the caption
    bool (*IsThere)(const State&) = nullptr;       ///< null: it always is
    QStringView Array = {};
    Members (*MembersOf)(const State&) = nullptr;
};

constexpr Row Rows[] = {
    {u"Clocks", u"Clocks", nullptr, nullptr, u"ClocksMenu", Kinds},
    {u"ClockStyle", u"Clock Style", nullptr, nullptr, u"ClockStyles", Styles},
    {u"WindowState", u"Window State", nullptr, nullptr, u"WindowStateMenu", WindowStates},
    {u"windowPositionMenu", u"Window Position", nullptr, nullptr, u"WindowPosition", Positions},
    {u"ClockColour", u"Clock Colour", nullptr, nullptr, u"ClockColourMenu", Colours},
    {u"Restore", u"Restore", nullptr, IsMaximised},
    {},
    {u"SelectCountry", u"Select Country", nullptr, nullptr, u"CountryTimeZone", Zones},
    {u"ChooseTimeZones", u"Choose Time Zones"},
    {u"ShowTimeZoneDetails", u"Show Time Zone Details"},
    {},
    {u"AutoStart", {}, AutoStartCaption},
    {u"ScreenSaverMenu", u"Set Screen Saver", nullptr, nullptr, u"ScreenSaverTime",
     ScreenSaverTimes},
    {u"EnableActive", {}, EnableCaption},
    {},
    {u"Help", u"Help"},
    {u"About", u"About"},
    {u"Close", u"Close"},
    {},
    {u"SaveStyle", u"Save Current Style"},
    {u"SaveStyleAs", u"Save Style As"},
    {u"PropertyMenu", u"Properties"},
    {u"HiddenParts", u"Show Hidden Part", nullptr, HasHiddenParts, u"HiddenPart", Hidden},
};

std::vector<MenuNode> MakeMembers(const QString& array, const Members& members,
                                  const FormMenuActions& actions) {
    std::vector<MenuNode> nodes;
    int index = 0;
    const auto add = [&](const QString& caption, bool more) {
        MenuNode node{.Name = array, .Caption = caption};
        node.Choose = [run = actions.Run, entry = FormEntry{array, ++index, caption, more}] {
            run(entry);
        };
        if (members.HasTicks) {
            node.Ticked = TickIf(mduUILib::CheckMenuItem(caption, members.Present));
        }
        if (members.IsPreviewed && !more && actions.Preview) {
            node.Preview = [preview = actions.Preview, caption] { preview(caption); };
            node.EndPreview = actions.EndPreview;
        }
        nodes.push_back(std::move(node));
    };
    for (const QString& caption : members.Captions) {
        add(caption, false);
    }
    if (members.HasMore) {
        add(More, true);
    }
    return nodes;
}

MenuNode MakeNode(const Row& row, const State& state, const FormMenuActions& actions) {
    if (row.Name.isEmpty()) {
        return {.Caption = u"-"_s};
    }
    MenuNode node{
        .Name = row.Name.toString(),
        .Caption = row.CaptionOf != nullptr ? row.CaptionOf(state) : row.Caption.toString()};
    if (row.MembersOf != nullptr) {
        node.Children = MakeMembers(row.Array.toString(), row.MembersOf(state), actions);
    } else {
        node.Choose = [run = actions.Run, entry = FormEntry{node.Name, 1, node.Caption}] {
            run(entry);
        };
    }
    return node;
}

}  // namespace

MenuNode MakeFormMenu(const FormMenuState& state, const FormMenuActions& actions) {
    MenuNode menu{.Name = u"FormPopup"_s};
    for (const Row& row : Rows) {
        if (row.IsThere == nullptr || row.IsThere(state)) {
            menu.Children.push_back(MakeNode(row, state, actions));
        }
    }
    return menu;
}

QStringList WindowPositions() {
    return {u"Top Left"_s,     u"Top Right"_s, u"Bottom Left"_s,
            u"Bottom Right"_s, u"Centre"_s,    u"Centre Auto Size"_s};
}

}  // namespace clockcore
