#pragma once

#include <QDeadlineTimer>
#include <QLocalServer>
#include <chrono>

#include "platform/OneProgram.h"
#include "platform/devices/LockFile.h"

namespace platform {

/// The one program of a folder and an account on this machine. A lock file in the folder tells who
/// that is, whatever way leads to the folder; it names the socket that later starts talk to.
///
///     LocalOneProgram one(folder, LocalOneProgram::SocketFolder());
///     const auto outcome = one.Claim(commandLine);
///     if (outcome.As == OneProgram::Role::Alone) {
///         problem = one.Listen(onCommandLine);
///     }
///
/// It must live for as long as the program runs: with it goes the claim.
class LocalOneProgram final : public OneProgram {
public:
    /// How long a start waits for the program that has the folder.
    struct Patience {
        std::chrono::milliseconds Answer;  ///< once that can be reached
        std::chrono::milliseconds Start;   ///< until then: it may be filling a new folder
    };
    /// Ten seconds for an answer, a minute for a program that is still starting or about to end.
    static constexpr Patience Usual = {std::chrono::seconds(10), std::chrono::seconds(60)};

    /// @p folder exists. The socket lies in @p socketFolder, which is the account's own.
    LocalOneProgram(const QString& folder, const QString& socketFolder,
                    const Patience& patience = Usual);

    /// Where sockets of this account lie; empty when there is no such place.
    static QString SocketFolder();

    /// Tries again every 50 milliseconds, blocking the caller, until one side has answered or the
    /// patience is at its end. A program that ends meanwhile leaves the folder to this one.
    Outcome Claim(const QString& commandLine) override;
    /// The other side has its answer before @p onCommandLine is called, from the event loop.
    QString Listen(std::function<void(const QString& commandLine)> onCommandLine) override;

private:
    /// `Silence` is a program that can be reached and does not answer in time; `Unreachable` one
    /// that does not listen, or not yet.
    enum class Reply { Taken, Silence, Unreachable };
    Reply HandOver(const QString& commandLine, const QDeadlineTimer& deadline) const;
    void Receive(QLocalSocket& socket);

    QString folder_;
    QString socketName_;  ///< a full path
    Patience patience_;
    LockFile lock_;
    QLocalServer server_;
    std::function<void(const QString&)> onCommandLine_;
};

}  // namespace platform
