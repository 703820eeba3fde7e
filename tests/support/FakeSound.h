#pragma once

#include "platform/SoundDevices.h"

/// A number of sound devices, told at once.
class FakeSound final : public platform::SoundDevices {
public:
    int Devices = 1;
    void Count(const std::function<void(int)>& answer) override { answer(Devices); }
};
