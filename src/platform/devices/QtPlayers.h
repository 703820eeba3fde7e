#pragma once

#include "platform/Machine.h"

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

/// The sound devices as they are at each call, which asks a process and takes a moment; 0 when that
/// gives no answer within some seconds.
class QtSoundDevices final : public SoundDevices {
public:
    explicit QtSoundDevices(QString program = {});
    int Count() const override;

private:
    QString program_;
};

}  // namespace platform
