#pragma once

#include "foundation/ClockProperty.h"
#include "foundation/ModuleState.h"
#include "platform/Files.h"
#include "shell/MenuArray.h"

namespace shell {

/// The clocks opened last, most recent first, as a list that survives a restart.
class LastOpened {
public:
    LastOpened();

    /// Reads the list; it may grow it and never shrinks it. `FillLastOpenedMenu` goes with it.
    void LoadOpenedForms(const platform::Files& files, const QString& path);
    /// @return false if the file can't be written, or holds what could not be read
    bool SaveOpenedForms(platform::Files& files, const QString& path) const;

    /// Puts a name first; one that is in the list already moves there.
    void PushLastOpened(const QString& name);

    /// Offers the first fifteen names whose property file exists, then "All"; or "None".
    void FillLastOpenedMenu(MenuArray& fileItems, const platform::Files& files,
                            const PathTable& paths) const;

    const ClockProperties& List() const { return openedList_; }

private:
    ClockProperties openedList_;
};

/// Cuts "Tempolark Central " off: a name that holds it loses as many characters from its left.
QString StripCentralPrefix(const QString& name);

}  // namespace shell
