#include "shell/StartOnce.h"

namespace shell {

std::optional<int> StartOnce(platform::OneProgram& program, const QString& commandLine,
                             const std::function<void(const QString& problem)>& complain) {
    using Role = platform::OneProgram::Role;
    const platform::OneProgram::Outcome outcome = program.Claim(commandLine);
    switch (outcome.As) {
        case Role::Alone:
            return std::nullopt;
        case Role::HandedOver:
            return 0;
        case Role::Refused:
            break;
    }
    complain(outcome.Problem);
    return 1;
}

}  // namespace shell
