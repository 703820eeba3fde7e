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
    explicit PlayerProcess(QString program, const PlayerBounds& bounds = {});
    ~PlayerProcess() override;
    Q_DISABLE_COPY_MOVE(PlayerProcess)

    void SetUrl(const QString& path) override;
    int PlayState() const override { return state_; }
    void Play() override;  ///< after a failure, not before the next `SetUrl`
    void Stop() override;
    void Pause() override;
    void SetVolume(int volume) override;
    QString LastError() const override { return error_; }

    /// Whether the present piece has begun to sound.
    bool IsHeard() const { return isHeard_; }

private:
    void Start();
    void NeedProcess();
    void LetGo();
    void Order(const QByteArray& line);
    void Read(QProcess& process);
    void Hear(const QByteArrayList& words);
    void Rest(int state);
    void Fail(const QString& reason);
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
