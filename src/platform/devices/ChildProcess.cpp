#include "platform/devices/ChildProcess.h"

#include <QCoreApplication>

namespace platform {

namespace {

constexpr int KilledWithin = 1000;  // milliseconds

}  // namespace

ChildProcess::ChildProcess() {
    setStandardErrorFile(nullDevice());
}

// Most have been let go before; what is left ends with the program.
ChildProcess::~ChildProcess() {
    disconnect();
    if (state() != NotRunning) {
        kill();
        waitForFinished(KilledWithin);
    }
}

void LetGo(std::unique_ptr<ChildProcess> process) {
    if (!process || process->state() == QProcess::NotRunning) {
        return;
    }
    process->disconnect();
    process->kill();
    ChildProcess* dying = process.release();
    dying->setParent(QCoreApplication::instance());
    QObject::connect(dying, &QProcess::finished, dying, &QObject::deleteLater);
}

}  // namespace platform
