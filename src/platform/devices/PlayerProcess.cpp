#include "platform/devices/PlayerProcess.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

/// The numbers of `playState`.
enum PlayStates { Stopped = 1, Paused = 2, Playing = 3 };

QByteArray Volume(int volume) {
    return "volume " + QByteArray::number(volume);
}

}  // namespace

PlayerProcess::PlayerProcess(QString program, const PlayerBounds& bounds)
    : program_(std::move(program)), bounds_(bounds) {
    watch_.setSingleShot(true);
    QObject::connect(&watch_, &QTimer::timeout, &watch_, [this] { RunOut(); });
}

PlayerProcess::~PlayerProcess() {
    LetGo();
}

void PlayerProcess::LetGo() {
    platform::LetGo(std::move(process_));
}

void PlayerProcess::SetUrl(const QString& path) {
    Stop();
    path_ = path;
    error_.clear();
    // Opening a pipe or a device could last for ever.
    if (!QFileInfo(path).isFile()) {
        error_ = u"There is no %1"_s.arg(path);
        return;
    }
    Start();
}

void PlayerProcess::Play() {
    if (!error_.isEmpty() || path_.isEmpty() || state_ == Playing) {
        return;
    }
    if (state_ != Paused) {
        return Start();
    }
    state_ = Playing;
    watch_.start(bounds_.Progress);
    Order("resume");
}

void PlayerProcess::Start() {
    NeedProcess();
    state_ = Playing;
    isHeard_ = false;
    watch_.start(bounds_.Start);
    Order("play " + QByteArray::number(++piece_) + ' ' + path_.toUtf8().toBase64());
}

void PlayerProcess::Stop() {
    if (state_ != Stopped) {
        Rest(Stopped);
        Order("stop");
    }
}

void PlayerProcess::Pause() {
    if (state_ == Playing) {
        Rest(Paused);
        Order("pause");
    }
}

void PlayerProcess::SetVolume(int volume) {
    volume_ = volume;
    Order(Volume(volume));
}

// All of its signals are queued: what is done on them may need a fresh process.
void PlayerProcess::NeedProcess() {
    if (process_ && process_->state() != QProcess::NotRunning) {
        return;
    }
    process_ = std::make_unique<ChildProcess>();
    QProcess& process = *process_;
    QObject::connect(
        &process, &QProcess::readyRead, &process, [this, &process] { Read(process); },
        Qt::QueuedConnection);
    QObject::connect(
        &process, &QProcess::finished, &process,
        [this, &process] {
            Read(process);
            Fail(u"The media player has ended"_s);
        },
        Qt::QueuedConnection);
    QObject::connect(
        &process, &QProcess::errorOccurred, &process,
        [this, &process](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart) {
                Fail(u"The media player can't be started. "_s + process.errorString());
            }
        },
        Qt::QueuedConnection);
    process.start(program_, QStringList());
    Order(Volume(volume_));
}

void PlayerProcess::Order(const QByteArray& line) {
    if (process_ && process_->state() != QProcess::NotRunning) {
        process_->write(line + '\n');
    }
}

void PlayerProcess::Read(QProcess& process) {
    while (process.canReadLine()) {
        Hear(process.readLine().trimmed().split(' '));
    }
}

void PlayerProcess::Hear(const QByteArrayList& words) {
    if (state_ == Stopped || words.value(1).toInt() != piece_) {
        return;
    }
    if (words[0] == "ended") {
        Rest(Stopped);
    } else if (words[0] == "failed") {
        Fail(QString::fromUtf8(QByteArray::fromBase64(words.value(2))));
    } else if (words[0] == "at" && state_ == Playing) {
        isHeard_ = true;
        watch_.start(bounds_.Progress);
    }
}

void PlayerProcess::Rest(int state) {
    state_ = state;
    state == Stopped ? watch_.start(bounds_.Idle) : watch_.stop();
}

void PlayerProcess::Fail(const QString& reason) {
    if (state_ != Stopped) {
        error_ = reason.isEmpty() ? u"The file can't be played"_s : reason;
        Rest(Stopped);
    }
}

void PlayerProcess::RunOut() {
    Fail(isHeard_ ? u"The sound has come to a standstill"_s : u"The sound does not begin"_s);
    LetGo();
}

}  // namespace platform
