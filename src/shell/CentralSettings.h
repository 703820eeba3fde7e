#pragma once

#include "foundation/ClockProperty.h"

/// What the shell writes into its property file.
namespace shell {

/// What the shell looks like at this moment.
struct CentralLook {
    int BackColour = 0;    ///< red in the low byte
    int ToolbarAlign = 0;  ///< `Align`
    bool ToolbarVisible = true;
    QString ToolbarSize;  ///< the size's name
    bool StatusBarVisible = true;
    int WindowState = 0;  ///< 0 normal, 1 minimised, 2 maximised
};

/// Stores where the toolbar stands and its size, under two keys.
void SaveToolbarLook(const CentralLook& look, ClockProperties& properties);

/// Stores the look under its five keys.
void SaveCentralLook(const CentralLook& look, ClockProperties& properties);

}  // namespace shell
