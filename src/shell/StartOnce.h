#pragma once

#include <functional>
#include <optional>

#include "platform/OneProgram.h"

namespace shell {

/// Decides whether this start goes on. Where another program has the folder, that one gets the
/// command line, and this one ends well; a start that is refused tells why through @p complain.
/// @return the exit status with which it ends; nothing when it goes on
std::optional<int> StartOnce(platform::OneProgram& program, const QString& commandLine,
                             const std::function<void(const QString& problem)>& complain);

}  // namespace shell
