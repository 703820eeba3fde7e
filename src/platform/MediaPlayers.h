#pragma once

#include <QString>
#include <memory>

namespace platform {

/// One media player (each clock creates its own when it first needs it).
class MediaPlayer {
public:
    virtual ~MediaPlayer() = default;
    virtual void SetUrl(const QString& path) = 0;
    virtual int PlayState() const = 0;  ///< 3 means playing
    virtual void Play() = 0;
    virtual void Stop() = 0;
    virtual void Pause() = 0;
    virtual void SetVolume(int volume) = 0;  ///< 0 to 100
    /// Why the present file can't be played; empty while nothing has failed.
    virtual QString LastError() const { return {}; }
};

/// What plays the machine's sounds and music.
class MediaPlayers {
public:
    virtual ~MediaPlayers() = default;
    virtual std::unique_ptr<MediaPlayer> MakePlayer() = 0;  ///< null where nothing can be played
};

}  // namespace platform
