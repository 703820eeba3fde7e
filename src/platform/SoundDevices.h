#pragma once

#include <functional>

namespace platform {

/// The outputs that sound comes from.
class SoundDevices {
public:
    virtual ~SoundDevices() = default;
    /// Gives @p answer how many there are at present, at once or from the event loop.
    virtual void Count(const std::function<void(int count)>& answer) = 0;
};

}  // namespace platform
