#pragma once

#include <functional>

#include "foundation/Program.h"
#include "shell/LastOpened.h"

namespace shell {

/// Opens clocks by name and tells the user how that went.
class Launcher {
public:
    /// Makes a clock window that has not been shown yet; it belongs to the shell's frame.
    using MakeClock = std::function<IClock*()>;

    Launcher(const Program& program, LastOpened& lastOpened, MakeClock makeClock,
             std::function<void(const QString&)> status)
        : program_(program),
          lastOpened_(lastOpened),
          makeClock_(std::move(makeClock)),
          status_(std::move(status)) {}

    /// Launches the clock of a zone, or brings it to the front where it is open already; an empty
    /// name means the machine's own zone.
    /// @return the window's handle, or 0 when it could not be launched
    int LaunchTempolark(QString name);

    /// Asks for a property file and launches the zone of its name, which is then read from the
    /// folder of zone files, wherever the chosen file lies. @return the handle; 0 when cancelled,
    /// and for a file that does not end in ".ini"
    int LaunchFromFileDialog();

private:
    int ShowOpen(IForm& clock, const QString& name);

    Program program_;
    LastOpened& lastOpened_;
    MakeClock makeClock_;
    std::function<void(const QString&)> status_;
};

}  // namespace shell
