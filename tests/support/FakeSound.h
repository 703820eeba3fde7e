#pragma once

#include "platform/SoundDevices.h"

/// A number of sound devices, told at once or when a test says so.
class FakeSound final : public platform::SoundDevices {
public:
    int Devices = 1;
    bool AnswersLater = false;
    void Count(const std::function<void(int)>& answer) override {
        asked_ = answer;
        if (!AnswersLater) {
            Answer();
        }
    }
    void Answer() const { asked_(Devices); }
    bool IsAsked() const { return asked_ != nullptr; }

private:
    std::function<void(int)> asked_;
};
