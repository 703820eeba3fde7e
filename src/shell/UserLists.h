#pragma once

#include <functional>

#include "foundation/Program.h"
#include "shell/LastOpened.h"

namespace shell {

/// The two lists that the shell keeps for its user: the clocks opened last, and those that start by
/// themselves (`ModuleState::AutoStartList`).
class UserLists {
public:
    /// @param tell is given what can't be read or written
    UserLists(const Program& program, std::function<void(const QString&)> tell);

    /// Tells each file that can't be read as a list. To be asked at the start: what is not read is
    /// not written at the end either, when nobody sees a message.
    void TellUnreadableLists() const;

    LastOpened& Opened() { return opened_; }

    /// Reads the clocks opened last; a file that is missing leaves the list as it is.
    void LoadOpenedForms();
    bool SaveOpenedForms() const;  ///< @return false when the file can't be written
    /// See `LastOpened::FillLastOpenedMenu`.
    void FillLastOpenedMenu(MenuArray& fileItems) const;

    /// A failure is told.
    void SaveAutoStartList() const;

    /// Lets the clock of a zone open by itself at the next start, or not, and saves that.
    void SetAutoStart(const QString& name, bool on) const;

    /// A zone that is gone does not start by itself any more; its name stays in the file.
    void ForgetAutoStart(const QString& name) const;

private:
    void TellUnwritten(const QString& file) const;

    Program program_;
    std::function<void(const QString&)> tell_;
    LastOpened opened_;
};

}  // namespace shell
