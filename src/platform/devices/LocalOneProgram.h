#pragma once

#include <QDeadlineTimer>
#include <QLocalServer>
#include <chrono>

#include "platform/OneProgram.h"
#include "platform/devices/LockFile.h"

namespace platform {

/// The one program of a folder and an account on this machine. A lock file in the folder tells who
/// that is, whatever way leads to the folder; it names the socket that later starts talk to.
class LocalOneProgram final : public OneProgram {
public:
    /// How long a start waits for the program that has the folder.
    struct Patience {
        std::chrono::milliseconds Answer;  ///< once that can be reached
        std::chrono::milliseconds Start;   ///< until then: it may be filling a new folder
    };
    static constexpr Patience Usual = {std::chrono::seconds(10), std::chrono::seconds(60)};

    /// @p folder exists. The socket lies in @p socketFolder, which is the account's own.
    LocalOneProgram(const QString& folder, const QString& socketFolder,
                    const Patience& patience = Usual);

    /// Where sockets of this account lie; empty when there is no such place.
    static QString SocketFolder();

    Outcome Claim(const QString& commandLine) override;
    QString Listen(std::function<void(const QString& commandLine)> onCommandLine) override;

private:
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
