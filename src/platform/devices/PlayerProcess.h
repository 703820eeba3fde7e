#pragma once

#include <QTimer>

#include "platform/MediaPlayers.h"
#include "platform/devices/ChildProcess.h"

namespace platform {

/// How long a player may leave its asker without news, in milliseconds.
struct PlayerBounds {
    int Start = 10'000;    ///< from the start of a piece until its first sound
    int Progress = 5'000;  ///< while a piece plays
    int Idle = 60'000;     ///< with nothing to play; then the process is let go
};

/// A media player that runs as a process of its own, `tempolark-player`, from the first piece on.
///
/// `SetUrl` starts the piece; from then on `PlayState` is 3 until the process tells otherwise, has
/// ended, or has not moved on within its bound. `LastError` tells why, up to the next `SetUrl`; but
/// for a missing file it shows only while the event loop runs. After a failure the next piece gets
/// a fresh process where that is needed.
class PlayerProcess final : public MediaPlayer {
public:
    /// @param program the path of `tempolark-player`; that it can't be started is known with the
    /// first piece only
    explicit PlayerProcess(QString program, const PlayerBounds& bounds = {});
    /// Ends the process, and its sound, without waiting for it.
    ~PlayerProcess() override;
    Q_DISABLE_COPY_MOVE(PlayerProcess)

    /// A path that is no plain file (missing, a folder, a pipe) fails at once and starts nothing.
    void SetUrl(const QString& path) override;
    /// 1 stopped, 2 paused, 3 playing.
    int PlayState() const override { return state_; }
    void Play() override;  ///< after a failure, not before the next `SetUrl`
    void Stop() override;
    void Pause() override;
    /// A fresh process is given the volume that was set last; 100 before that.
    void SetVolume(int volume) override;
    QString LastError() const override { return error_; }

    /// Whether the present piece has begun to sound.
    /// It stays true until the next one begins.
    bool IsHeard() const { return isHeard_; }

private:
    void Start();
    /// Starts a process unless one runs, and gives it the volume.
    void NeedProcess();
    void LetGo();
    /// Sends a line; it is dropped where no process runs.
    void Order(const QByteArray& line);
    void Read(QProcess& process);
    /// Takes an answer: "at N MS", "ended N" or "failed N REASON". It counts only while the
    /// piece of that number is under way.
    void Hear(const QByteArrayList& words);
    void Rest(int state);
    void Fail(const QString& reason);
    /// A bound is reached: a piece that is under way has failed, and the process is let go.
    void RunOut();

    QString program_;
    PlayerBounds bounds_;
    std::unique_ptr<ChildProcess> process_;
    QTimer watch_;  ///< for news of a piece that plays; for the next piece where none does
    QString path_;
    QString error_;
    int state_ = 1;
    int volume_ = 100;
    int piece_ = 0;  ///< its number; what is told of an earlier one doesn't count
    bool isHeard_ = false;
};

}  // namespace platform
