#include "platform/devices/QtPlayers.h"

#include <QCoreApplication>
#include <QProcess>

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

int QtSoundDevices::Count() const {
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(Program(program_), {u"devices"_s});
    if (process.waitForFinished(AnswerMilliseconds)) {
        return process.readAllStandardOutput().trimmed().toInt();
    }
    process.kill();
    process.waitForFinished(AnswerMilliseconds);
    return 0;
}

}  // namespace platform
