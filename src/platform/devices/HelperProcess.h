#pragma once

#include <sys/prctl.h>
#include <unistd.h>

#include <QByteArrayList>
#include <QSocketNotifier>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <functional>

/// What the helper processes have in common: orders come as lines on the standard input, answers go
/// as lines to the standard output, and the process ends with its input. Texts in them (paths,
/// reasons) travel as base64, so that neither blanks nor line breaks get in their way. A whole
/// helper:
///
///     int main(int argc, char** argv) {
///         platform::EndWithParent();
///         QCoreApplication application(argc, argv);
///         const platform::OrderLines orders([](const QByteArrayList& words) { ... });
///         QCoreApplication::exec();
///         platform::Leave();
///     }
namespace platform {

/// Writes a line and sends it off at once. @p line holds no line break.
inline void Answer(const QByteArray& line) {
    std::puts(line.constData());
    std::fflush(stdout);
}

/// Ends the process at once. Devices that hang, or crash while they are taken down, can't be waited
/// for; so nothing is taken down.
[[noreturn]] inline void Leave() {
    std::_Exit(0);
}

/// Ends the process with the one that started it: where a device hangs, the end of the input would
/// not be seen.
inline void EndWithParent() {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
}

/// Hands each line of the standard input on, split at its blanks; `Leave`s at its end.
class OrderLines {
public:
    /// @param obey is called, from the event loop, with the words of each line; an empty line is
    /// one empty word
    explicit OrderLines(std::function<void(const QByteArrayList& words)> obey)
        : obey_(std::move(obey)), input_(STDIN_FILENO, QSocketNotifier::Read) {
        QObject::connect(&input_, &QSocketNotifier::activated, &input_, [this] { Read(); });
    }

private:
    /// The beginning of a line waits for its rest.
    void Read() {
        char buffer[4096];
        const ssize_t size = ::read(STDIN_FILENO, buffer, sizeof buffer);
        if (size <= 0) {
            Leave();
        }
        pending_.append(buffer, size);
        for (qsizetype end = 0; (end = pending_.indexOf('\n')) >= 0;) {
            const QByteArray line = pending_.left(end);
            pending_.remove(0, end + 1);
            obey_(line.split(' '));
        }
    }

    std::function<void(const QByteArrayList& words)> obey_;
    QSocketNotifier input_;
    /// What has come of a line without its end.
    QByteArray pending_;
};

}  // namespace platform
