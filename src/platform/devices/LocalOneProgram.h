#pragma once

#include <QLocalServer>
#include <chrono>

#include "platform/OneProgram.h"
#include "platform/devices/LockFile.h"

namespace platform {

/// The one program of a folder and an account on this machine. A lock file in the folder tells who
/// that is, whatever way leads to the folder; it names the socket that later starts talk to.
class LocalOneProgram final : public OneProgram {
public:
    /// @p folder exists. The socket lies in @p socketFolder, which is the account's own. A start
    /// waits for an answer as long as @p patience.
    LocalOneProgram(const QString& folder, const QString& socketFolder,
                    std::chrono::milliseconds patience = std::chrono::seconds(10));

    /// Where sockets of this account lie; empty when there is no such place.
    static QString SocketFolder();

    Outcome Claim(const QString& commandLine) override;
    QString Listen(std::function<void(const QString& commandLine)> onCommandLine) override;

private:
    bool HandOver(const QString& commandLine, qint64 milliseconds) const;
    void Receive(QLocalSocket& socket);

    QString folder_;
    QString socketName_;  ///< a full path
    std::chrono::milliseconds patience_;
    LockFile lock_;
    QLocalServer server_;
    std::function<void(const QString&)> onCommandLine_;
};

}  // namespace platform
