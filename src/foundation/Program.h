#pragma once

#include "foundation/Forms.h"
#include "foundation/ModuleState.h"
#include "platform/Services.h"

/// What every window of the running program is given: the machine, the shared state, the list of
/// loaded windows. `main` owns all three, and they outlive every window. It is three references:
/// a window keeps a copy.
///
///     frmMain shell({services, module, windows});
struct Program {
    const platform::Services& Services;
    ModuleState& Module;
    Forms& Windows;
};
