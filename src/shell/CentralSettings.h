#pragma once

#include "foundation/ClockProperty.h"

/// What the shell writes into its property file.
namespace shell {

/// What the shell looks like at this moment.
struct CentralLook {
    int BackColour = 0;
    int ToolbarAlign = 0;
    bool ToolbarVisible = true;
    QString ToolbarSize;  ///< the size's name
    bool StatusBarVisible = true;
    int WindowState = 0;
};

/// Stores the look under its five keys.
void SaveCentralLook(const CentralLook& look, ClockProperties& properties);

}  // namespace shell
