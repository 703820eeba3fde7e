#pragma once

#include <map>
#include <optional>

#include "clock/LookDialogs.h"
#include "clock/MenuNode.h"
#include "clock/MenuSettings.h"
#include "clock/PartMenuCatalogue.h"
#include "foundation/Program.h"

namespace clockcore {

/// Makes the pop-up menus on the parts of a clock: the rows of the catalogue, filled at the moment
/// of opening with what the properties hold then. A click sets one property through
/// `MenuSettings`; a clock that is closing takes none any more.
///
/// A key without choices has a sub-menu that can't be opened. A value that no caption tells leaves
/// nothing ticked.
class PartMenus {
public:
    /// What the menus show and command. All of it outlives the menus, and the nodes that were made.
    struct Parts {
        const mduUILib::ClockControls& Controls;
        ClockWindow& Window;
        ClockPlacement& Placement;
        drawing::Canvas& Canvas;
        MenuSettings& Settings;
        LookDialogs& Dialogs;
        timers::ClockMessages& Messages;
        speech::SpeakerVoice& Voice;
        speech::SpokenTime& Spoken;
    };
    /// Makes the menu of one part for a hit on it.
    using Maker = std::function<MenuNode(const ClockHit& hit)>;
    /// Makes the sub-menu of the times at which a timer may be set, from a text: an hour such as
    /// "3", or one with a time of day in it such as "25/03/2008 9:05:07".
    using TimeMenu = std::function<MenuNode(const QString& time)>;

    PartMenus(const ClockData& data, const Program& program, const Parts& parts)
        : data_(data), program_(program), parts_(parts) {}

    /// The menu of a part that the catalogue doesn't tell of is made there from now on.
    void SetMaker(ClockPart part, Maker make) { makers_[part] = std::move(make); }
    /// Until it is set, no menu offers a timer.
    void SetTimeMenu(TimeMenu make) { timeMenu_ = std::move(make); }

    /// The menu of that part; nothing for a part without one or with nothing to choose, for the
    /// local time on a world map, and for a calculated time that is no date and time.
    std::optional<MenuNode> MenuOf(const ClockHit& hit) const;
    /// The menu of the clock's icon in the tray.
    MenuNode SystemTrayMenu() const;

private:
    using Nodes = std::vector<MenuNode>;
    using Choice = std::function<void()>;

    MenuNode Make(const PartMenu& menu, const ClockHit& hit) const;
    Nodes MakeRows(std::span<const PartMenuRow> rows, const ClockHit& hit) const;
    std::optional<MenuNode> MakeRow(const PartMenuRow& row, const ClockHit& hit) const;
    Nodes Entries(const PartMenuRow& row) const;
    Nodes CaptionEntries(const PartMenuRow& row, const QStringList& captions) const;
    Nodes VoiceEntries(const PartMenuRow& row) const;
    Nodes ActionTimeEntries(const PartMenuRow& row) const;
    QStringList Captions(const PartMenuRow& row) const;
    MenuNode MakeSwitch(const PartMenuRow& row) const;
    std::optional<MenuNode> MakeTimes(const PartMenuRow& row, const ClockHit& hit) const;

    /// What a click on an entry does, with the state of the clock told.
    Choice WhileOpen(Choice choice) const;
    Choice PutChoice(const PartMenuRow& row, const QString& value) const;
    Choice PickChoice(const PartMenuRow& row) const;
    Choice CommandOf(const PartMenuRow& row) const;

    bool IsOffered(ClockPart part) const;
    /// The value that the row's sub-menu ticks.
    QString Present(const PartMenuRow& row) const;
    QString TimeText(const ClockHit& hit) const;
    /// Whole minutes until the action runs, below 0 when it is late; 0 without a deadline.
    int MinutesLeft() const;

    void HideMessage() const;
    void CancelAction() const;
    void ShowClock() const;
    void SpeakTime() const;
    void CloseClock() const;

    const ClockData& data_;
    Program program_;
    Parts parts_;
    std::map<ClockPart, Maker> makers_;
    TimeMenu timeMenu_;
};

}  // namespace clockcore
