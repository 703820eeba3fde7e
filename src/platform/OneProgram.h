#pragma once

#include <QString>
#include <functional>

namespace platform {

/// The one program of a program folder: two would write over each other's files and fire each timer
/// twice. A later start hands its command line to the program that runs, and ends.
class OneProgram {
public:
    virtual ~OneProgram() = default;

    enum class Role {
        Alone,       ///< this is the program of the folder, until it ends
        HandedOver,  ///< another is; it has taken the command line
        Refused      ///< neither: another is and does not answer, or the folder can't be claimed
    };
    struct Outcome {
        Role As = Role::Alone;
        QString Problem;  ///< why the start is refused, for a message; else empty
    };

    /// Claims the folder for this program, or hands @p commandLine over. It waits for an answer,
    /// but never without a bound.
    virtual Outcome Claim(const QString& commandLine) = 0;

    /// Takes command lines of later starts from now on, for the program that is alone.
    /// @return why none can come; empty when they can
    virtual QString Listen(std::function<void(const QString& commandLine)> onCommandLine) = 0;
};

}  // namespace platform
