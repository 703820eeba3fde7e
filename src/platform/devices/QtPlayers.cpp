#include "platform/devices/QtPlayers.h"

#include <QCoreApplication>
#include <QTimer>

#include "platform/devices/ChildProcess.h"
#include "platform/devices/PlayerProcess.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr int AnswerMilliseconds = 3000;

QString Program(const QString& given) {
    return given.isEmpty() ? QCoreApplication::applicationDirPath() + u"/tempolark-player"_s
                           : given;
}

}  // namespace

QtPlayers::QtPlayers(QString program) : program_(std::move(program)) {}

std::unique_ptr<MediaPlayer> QtPlayers::MakePlayer() {
    return std::make_unique<PlayerProcess>(Program(program_));
}

QtSoundDevices::QtSoundDevices(QString program) : program_(std::move(program)) {}

void QtSoundDevices::Count(const std::function<void(int)>& answer) {
    auto* process = new ChildProcess;
    process->setParent(QCoreApplication::instance());
    const auto end = [process, answer] {
        process->disconnect();
        const bool hasEnded = process->state() == QProcess::NotRunning;
        const int count = hasEnded ? process->readAllStandardOutput().trimmed().toInt() : 0;
        process->kill();
        process->deleteLater();
        answer(count);
    };
    QObject::connect(process, &QProcess::finished, process, end);
    QObject::connect(process, &QProcess::errorOccurred, process,
                     [end](QProcess::ProcessError error) {
                         if (error == QProcess::FailedToStart) {
                             end();
                         }
                     });
    QTimer::singleShot(AnswerMilliseconds, process, end);
    process->start(Program(program_), {u"devices"_s});
}

}  // namespace platform
