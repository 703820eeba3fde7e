#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace platform {

/// Turns the system's wish that the program end (a session that closes, a kill) into a call on the
/// user-interface thread, so that everything is saved first. The signals are SIGTERM, SIGINT and
/// SIGHUP. Nothing is done inside a signal handler but writing one byte to a socket, which the
/// event loop reads; so a program that is stuck, and never comes back to its loop, is not ended by
/// them.
///
/// What handles a signal is global: there may be only one such object. It lives as long as the
/// event loop runs; when it goes, the signals kill the process again.
class QuitSignals {
public:
    /// @param onQuit is called from the event loop, once for each signal that has come. Where no
    /// socket is to be had it is never called, and the signals do what they always do.
    explicit QuitSignals(std::function<void()> onQuit);
    ~QuitSignals();
    Q_DISABLE_COPY_MOVE(QuitSignals)

private:
    std::function<void()> onQuit_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace platform
