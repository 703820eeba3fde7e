#pragma once

#include <QString>
#include <memory>

namespace platform {

/// One media player (each clock creates its own when it first needs it). None of its calls waits
/// for the machine.
///
///     player->SetVolume(80);
///     player->SetUrl(path);              // begins to play
///     if (player->PlayState() != 3) { }  // LastError tells why
class MediaPlayer {
public:
    virtual ~MediaPlayer() = default;
    /// Ends what is played and starts the file of a native and full path, which need not exist:
    /// then `LastError` tells so.
    virtual void SetUrl(const QString& path) = 0;
    /// 3 means playing: from `SetUrl` on, until the piece ends, fails, is stopped or paused. 1 is
    /// stopped and 2 paused.
    virtual int PlayState() const = 0;
    /// Goes on after `Pause`; after `Stop`, or at its end, begins the piece anew. Nothing
    /// happens after a failure.
    virtual void Play() = 0;
    /// Ends the piece; nothing happens where none plays.
    virtual void Stop() = 0;
    /// Holds a piece that plays, at the place where it is.
    virtual void Pause() = 0;
    /// From 0 to 100, as it is heard; it holds for the present piece and for all later ones.
    virtual void SetVolume(int volume) = 0;
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
