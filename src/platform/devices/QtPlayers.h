#pragma once

#include "platform/Machine.h"

namespace platform {

/// The toolkit's media player, one for each clock. `SetUrl` starts the piece; `LastError` tells why
/// the last one can't be heard: no such file, no sound in it, no sound device. Some errors show
/// only while the event loop runs.
///
/// It plays with FFmpeg unless the environment says otherwise (QT_MEDIA_BACKEND): the toolkit's
/// other back end brings the program down where one of its many parts is not installed.
class QtPlayers final : public MediaPlayers {
public:
    QtPlayers();
    std::unique_ptr<MediaPlayer> MakePlayer() override;
};

class QtSoundDevices final : public SoundDevices {
public:
    QtSoundDevices();
    int Count() const override;
};

}  // namespace platform
