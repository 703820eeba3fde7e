#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace platform {

/// Turns the system's wish that the program end (a session that closes, a kill) into a call on the
/// user-interface thread, so that everything is saved first.
class QuitSignals {
public:
    explicit QuitSignals(std::function<void()> onQuit);
    ~QuitSignals();
    Q_DISABLE_COPY_MOVE(QuitSignals)

private:
    std::function<void()> onQuit_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace platform
