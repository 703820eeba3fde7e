#pragma once

#include "platform/Machine.h"

namespace platform {

/// The toolkit's media player, one for each clock. A piece plays without a sound device too,
/// unheard; `LastError` says so.
class QtPlayers final : public MediaPlayers {
public:
    std::unique_ptr<MediaPlayer> MakePlayer() override;
};

class QtSoundDevices final : public SoundDevices {
public:
    int Count() const override;
};

}  // namespace platform
