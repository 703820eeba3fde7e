#pragma once

#include "clock/ClockData.h"
#include "clock/FormMenu.h"
#include "clock/HiddenParts.h"
#include "foundation/Program.h"

namespace clockcore {

/// What only the window of a clock knows.
struct FormWindowFacts {
    bool IsMDIChild = false;
    bool IsEnabled = true;
    int WindowState = 0;  ///< 0 normal, 1 minimised, 2 maximised
    ShowableParts Showable = {};
};

/// The name under which a clock that stands alone starts with the user's logon.
QString RunName(const ClockData& data);

/// The executable of a clock that stands alone, as the stored commands name it.
QString ClockProgram(const PathTable& paths);

/// Looks up what `FormPopup` shows: the clock's properties, the files of the folders of zones and
/// styles, those used last first and ten at most, the lists and the settings. Nothing is kept, so
/// that the menu is right at each opening.
FormMenuState ReadFormMenuState(const Program& program, const ClockData& data,
                                const FormWindowFacts& window);

}  // namespace clockcore
