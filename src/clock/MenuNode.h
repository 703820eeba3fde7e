#pragma once

#include <QImage>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

namespace clockcore {

/// A pop-up menu of a clock as data: what it holds at the moment of opening, before any widget
/// shows it. `MenuView` makes the widget.
struct MenuNode {
    QString Name =
        {};  ///< by which those who look from outside find it: "FormPopup", "ClockStyles"
    QString Caption = {};  ///< as it stands: a "&" in it is no mnemonic; "-" is a separator
    bool Enabled = true;
    /// Ticked, not ticked, or not for ticking at all.
    enum class Tick { None, Off, On } Ticked = Tick::None;
    std::shared_ptr<const QImage> Icon = {};  ///< null for none
    /// What a click does; empty for a separator and for a sub-menu.
    std::function<void()> Choose = {};
    /// What happens while the entry is highlighted, and when the menu closes or another entry is
    /// highlighted; may be empty.
    std::function<void()> Preview = {};
    std::function<void()> EndPreview = {};
    std::vector<MenuNode> Children = {};  ///< not empty: the entry is a sub-menu
};

/// The tick of an entry that is one of several: on for the one that is in force.
inline MenuNode::Tick TickIf(bool on) {
    return on ? MenuNode::Tick::On : MenuNode::Tick::Off;
}

}  // namespace clockcore
