#pragma once

#include <functional>

#include "shell/CentralSettings.h"
#include "shell/MenuState.h"
#include "shell/ShellSettings.h"
#include "shell/UserLists.h"

namespace shell {

/// Fills the menus from what holds at the moment of their opening: files, windows, settings, bars.
/// `ShellMenus` asks for that just before a menu opens; the outcome is in the `MenuState`, which it
/// then shows. "File" also writes the list of clocks opened last.
class MenuFills {
public:
    /// What only the shell's window knows.
    struct Sources {
        /// The bars as they are, which need not be what the settings say.
        std::function<CentralLook()> Look;
        std::function<int()> ActiveHandle;  ///< of the child window in front; 0: there is none
        std::function<bool()> HasMessage;   ///< whether the message line holds something
        /// Whether what has the focus, or its window, can do that.
        std::function<bool(EditAction)> CanEdit;
        /// Whether the keys of the menu "Edit" do there what they say.
        std::function<bool()> EditKeysHold;
    };

    /// All but @p sources outlive this.
    MenuFills(const Program& program, MenuState& state, ShellSettings& settings, UserLists& lists,
              Sources sources);

    /// Brings the menu of that name up to date, with all its submenus. A menu that always stays as
    /// it is, and an unknown one, is left alone.
    void Refresh(const QString& menu) const;

private:
    /// The zones' files to be opened and to be removed, fifteen of each at most, and the clocks
    /// opened last.
    void FillFileMenu() const;
    /// The clocks that the pressed button can act on; which one was pressed stands in the caption
    /// of `Action`.
    void FillOpenedAction() const;
    void RefreshAgentMenu() const;
    void RefreshBarMenus() const;
    void RefreshCentralMenu() const;
    void RefreshMainMenu() const;
    void RefreshWindowMenu() const;
    void RefreshViewMenu() const;
    void RefreshEditMenu() const;
    /// Ticks the items of that caption, and no other.
    void MarkItem(const QString& list, const QString& caption) const;

    Program program_;
    MenuState& state_;
    ShellSettings& settings_;
    UserLists& lists_;
    Sources sources_;
};

}  // namespace shell
