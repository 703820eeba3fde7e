#pragma once

#include <QObject>
#include <QThreadPool>

#include "platform/SystemActions.h"

namespace platform {

/// System actions through the login service (org.freedesktop.login1) on the system bus.
///
///     ExitWindowsEx(0)    ends the session
///     ExitWindowsEx(1)    powers off; programs that hold a shutdown back are respected
///     ExitWindowsEx(2)    restarts
///     ExitWindowsEx(13)   powers off, past those programs where the service can do that
///     LockWorkStation()   locks the session
///
/// Nobody is asked for a password: what is not allowed is refused at once. A service that does not
/// answer is waited for a few seconds; with `Begin` a thread of its own does that.
class LogindActions final : public SystemActions {
public:
    /// @p session is XDG_SESSION_ID; when it is empty, the session of this process is asked for, or
    /// that of the user's screen where this process is in none.
    /// @p address is that of another bus than the system's, for tests.
    explicit LogindActions(QString session, QString address = {}, int timeoutMilliseconds = 5000);
    /// Waits for what has begun, so that the program's end costs no action.
    ~LogindActions() override;
    Q_DISABLE_COPY_MOVE(LogindActions)

    QString ExitWindowsEx(unsigned flags) override;
    QString LockWorkStation() override;

    /// Starts a program in @p workingFolder (empty: its own folder), or opens a file or a folder
    /// with the program that is meant for it.
    QString Open(const QString& path, const QString& workingFolder) override;

    void Begin(const std::function<QString(SystemActions&)>& action,
               const std::function<void(const QString& reason)>& answer) override;

private:
    QString session_;
    QString address_;
    int timeout_;
    QObject home_;  ///< in the thread that is answered
    QThreadPool pool_;
};

}  // namespace platform
