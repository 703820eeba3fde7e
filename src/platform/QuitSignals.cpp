#include "platform/QuitSignals.h"

#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

namespace platform {

namespace {

// A signal handler reaches nothing but what is global.
std::array<int, 2> pipeEnds = {-1, -1};

void Forward(int) {
    const int savedError = errno;
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = write(pipeEnds[0], &byte, 1);
    errno = savedError;
}

constexpr std::array<int, 3> Handled = {SIGTERM, SIGINT, SIGHUP};

}  // namespace

QuitSignals::QuitSignals(std::function<void()> onQuit) : onQuit_(std::move(onQuit)) {
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, pipeEnds.data()) != 0) {
        return;
    }
    notifier_ = std::make_unique<QSocketNotifier>(pipeEnds[1], QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] {
        char byte = 0;
        if (read(pipeEnds[1], &byte, 1) == 1) {
            onQuit_();
        }
    });
    for (const int signal : Handled) {
        std::signal(signal, Forward);
    }
}

QuitSignals::~QuitSignals() {
    for (const int signal : Handled) {
        std::signal(signal, SIG_DFL);
    }
    notifier_.reset();
    for (int& end : pipeEnds) {
        if (end >= 0) {
            close(end);
        }
        end = -1;
    }
}

}  // namespace platform
