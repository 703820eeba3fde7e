#include "clock/PartMenus.h"

#include <algorithm>

#include "drawing/ClockSpecial.h"
#include "drawing/DialNumbers.h"
#include "foundation/Dates.h"
#include "foundation/MenuLists.h"
#include "foundation/NamedValues.h"
#include "foundation/PropertyLookup.h"
#include "platform/WallClock.h"
#include "timers/ActionList.h"
#include "timezones/ZoneArithmetic.h"

using namespace Qt::StringLiterals;

namespace clockcore {

namespace {

constexpr QStringView Separation = u"-";
constexpr QStringView Custom = u"Custom";

MenuNode Leaf(QStringView name, const QString& caption, std::function<void()> choose) {
    return {.Name = name.toString(), .Caption = caption, .Choose = std::move(choose)};
}

bool IsSeparator(const MenuNode& node) {
    return node.Caption == Separation;
}

/// A row that is left out leaves no separator at an end behind.
void TrimSeparators(std::vector<MenuNode>& nodes) {
    const auto first = std::find_if_not(nodes.begin(), nodes.end(), IsSeparator);
    nodes.erase(nodes.begin(), first);
    while (!nodes.empty() && IsSeparator(nodes.back())) {
        nodes.pop_back();
    }
}

}  // namespace

std::optional<MenuNode> PartMenus::MenuOf(const ClockHit& hit) const {
    const auto maker = makers_.find(hit.Part);
    const PartMenu* menu = FindPartMenu(hit.Part);
    if (maker == makers_.end() && (menu == nullptr || !IsOffered(hit.Part))) {
        return std::nullopt;
    }
    MenuNode made = maker != makers_.end() ? maker->second(hit) : Make(*menu, hit);
    return made.Children.empty() ? std::nullopt : std::optional(std::move(made));
}

bool PartMenus::IsOffered(ClockPart part) const {
    if (part == ClockPart::Input) {
        return drawing::ReadClockSpecial(data_.Properties()) != drawing::ClockSpecial::WorldMap;
    }
    if (part == ClockPart::Output) {
        return mduAPILib::ParseMoment(parts_.Controls.lblTimeOutput(1).Tag,
                                      program_.Services.Clock.Now().date().year())
            .has_value();
    }
    return true;
}

MenuNode PartMenus::SystemTrayMenu() const {
    const auto menus = PartMenuCatalogue();
    return Make(
        *std::find_if(menus.begin(), menus.end(), [](const PartMenu& menu) { return !menu.Part; }),
        {});
}

MenuNode PartMenus::Make(const PartMenu& menu, const ClockHit& hit) const {
    return {.Name = menu.Name.toString(), .Children = MakeRows(menu.Rows, hit)};
}

PartMenus::Nodes PartMenus::MakeRows(std::span<const PartMenuRow> rows, const ClockHit& hit) const {
    Nodes nodes;
    for (const PartMenuRow& row : rows) {
        if (row.Source == MenuSource::Choices && row.Caption.isEmpty()) {
            std::ranges::move(Entries(row), std::back_inserter(nodes));
        } else if (auto node = MakeRow(row, hit)) {
            nodes.push_back(std::move(*node));
        }
    }
    TrimSeparators(nodes);
    return nodes;
}

std::optional<MenuNode> PartMenus::MakeRow(const PartMenuRow& row, const ClockHit& hit) const {
    const QString caption = row.Caption.toString();
    switch (row.Source) {
        case MenuSource::Separator:
            return MenuNode{.Caption = Separation.toString()};
        case MenuSource::Times:
            return MakeTimes(row, hit);
        case MenuSource::Switch:
            return MakeSwitch(row);
        case MenuSource::Value:
            return Leaf(row.Name, caption, PutChoice(row, row.Value.toString()));
        case MenuSource::Command:
            return Leaf(row.Name, caption, CommandOf(row));
        default:
            break;
    }
    MenuNode node = Leaf(row.Name, caption, {});
    node.Children = row.Source == MenuSource::Group ? MakeRows(row.Rows, hit) : Entries(row);
    node.Enabled = !node.Children.empty();
    return node;
}

MenuNode PartMenus::MakeSwitch(const PartMenuRow& row) const {
    const bool on = mduUILib::YesNoToBool(Present(row));
    MenuNode node =
        Leaf(row.Name, row.Caption.toString(), PutChoice(row, mduUILib::BoolToYesNo(!on)));
    node.Ticked = TickIf(on);
    return node;
}

std::optional<MenuNode> PartMenus::MakeTimes(const PartMenuRow& row, const ClockHit& hit) const {
    if (!timeMenu_) {
        return std::nullopt;
    }
    MenuNode node = timeMenu_(TimeText(hit));
    node.Name = row.Name.toString();
    node.Caption = row.Caption.toString();
    return node;
}

// An hour number stands for its whole hour; a label between two hours for its twelve minutes.
QString PartMenus::TimeText(const ClockHit& hit) const {
    if (hit.Part == ClockPart::Output) {
        return parts_.Controls.lblTimeOutput(1).Tag;
    }
    return hit.Index % 5 == 0 ? QString::number(hit.Index / 5) : drawing::SpotTime(hit.Index);
}

PartMenus::Nodes PartMenus::Entries(const PartMenuRow& row) const {
    switch (row.Source) {
        case MenuSource::Voices:
            return VoiceEntries(row);
        case MenuSource::ActionTime:
            return ActionTimeEntries(row);
        default:
            return CaptionEntries(row, Captions(row));
    }
}

QStringList PartMenus::Captions(const PartMenuRow& row) const {
    QStringList choices = mduUILib::FillMenuFromList(
        mduLib::GetPropertyChoices(row.Key.toString(), data_.Properties()));
    if (row.Source == MenuSource::Choices) {
        return choices;
    }
    QStringList colours = mduUILib::FillColourMenu();
    if (row.Source == MenuSource::AnyColour) {
        for (const QString& choice : std::as_const(choices)) {
            if (!colours.contains(choice)) {
                colours += choice;
            }
        }
        colours.removeAll(Custom);
        colours += Custom.toString();
    }
    return colours;
}

PartMenus::Nodes PartMenus::CaptionEntries(const PartMenuRow& row,
                                           const QStringList& captions) const {
    const QString present = Present(row);
    Nodes nodes;
    for (const QString& caption : captions) {
        const bool asks = row.Source == MenuSource::AnyColour && mduUILib::IsCustomColour(caption);
        nodes.push_back(Leaf(row.Name, caption, asks ? PickChoice(row) : PutChoice(row, caption)));
        nodes.back().Ticked = TickIf(mduUILib::CheckMenuItem(caption, present));
    }
    return nodes;
}

// An entry is told by its number: two voices may have one name.
PartMenus::Nodes PartMenus::VoiceEntries(const PartMenuRow& row) const {
    const QString present = Present(row);
    Nodes nodes;
    int number = 0;
    for (const speech::VoiceEntry& voice : parts_.Voice.VoiceMenu()) {
        ++number;
        if (voice.Index >= 0) {
            nodes.push_back(Leaf(row.Name, voice.Caption,
                                 WhileOpen([this, number] { parts_.Settings.SetVoice(number); })));
            nodes.back().Ticked = TickIf(mduUILib::CheckMenuItem(voice.Caption, present));
        }
    }
    return nodes;
}

PartMenus::Nodes PartMenus::ActionTimeEntries(const PartMenuRow& row) const {
    Nodes nodes;
    for (const int minutes : timers::ActionTimes(MinutesLeft())) {
        nodes.push_back(Leaf(row.Name, QString::number(minutes), WhileOpen([this, minutes] {
                                 parts_.Messages.PostponeAction(minutes);
                             })));
    }
    return nodes;
}

QString PartMenus::Present(const PartMenuRow& row) const {
    if (row.Redraws == Redraw::Message) {
        return mduUILib::ColourName(parts_.Controls.lblMsg(1).ForeColor);
    }
    if (row.Redraws == Redraw::ActionMessage) {
        return mduUILib::ColourName(parts_.Controls.lblActionMsg(1).ForeColor);
    }
    const QString value = mduLib::GetProperty(row.Key.toString(), data_.Properties());
    return row.Source == MenuSource::AnyColour
               ? mduUILib::ColourCaption(value, program_.Services.Random)
               : value;
}

int PartMenus::MinutesLeft() const {
    const auto deadline = mduAPILib::ParseMoment(parts_.Messages.ActionDeadline(), 2000);
    const QDateTime now = mduTimeZones::GetClockTime(data_.Zone, program_.Services.Clock.Now());
    return deadline ? static_cast<int>(now.secsTo(deadline->Moment) / 60) : 0;
}

}  // namespace clockcore
