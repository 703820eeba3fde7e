#pragma once

#include "platform/MediaPlayers.h"
#include "platform/SoundDevices.h"

namespace platform {

/// The media players of this machine, one for each clock, each in a process of its own. `SetUrl`
/// starts the piece; `LastError` tells why the last one can't be heard: no such file, no sound in
/// it, no sound device, a sound server that has gone. Most errors show only while the event loop
/// runs.
///
/// They play with FFmpeg unless the environment says otherwise (QT_MEDIA_BACKEND).
class QtPlayers final : public MediaPlayers {
public:
    /// @p program is the path of `tempolark-player`; empty: the one beside this program.
    explicit QtPlayers(QString program = {});
    std::unique_ptr<MediaPlayer> MakePlayer() override;

private:
    QString program_;
};

/// The sound devices as they are at each call. That asks a process, whose answer comes from the
/// event loop; 0 when there is none within some seconds. Without an event loop nobody is told.
class QtSoundDevices final : public SoundDevices {
public:
    explicit QtSoundDevices(QString program = {});
    void Count(const std::function<void(int)>& answer) override;

private:
    QString program_;
};

}  // namespace platform
