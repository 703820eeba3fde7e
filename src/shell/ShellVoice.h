#pragma once

#include <QString>
#include <functional>

#include "platform/Services.h"
#include "platform/Voices.h"

namespace shell {

/// The shell's own voice, made when it is first wanted.
class ShellVoice {
public:
    /// @param voices outlives this
    /// @param tell is given why a text could not be spoken
    ShellVoice(platform::Voices& voices, std::function<void(const QString&)> tell);

    /// Speaks a text behind what is being spoken; nothing for an empty text, and where there is no
    /// speech at all.
    void SpeakMessage(const QString& text);

    /// Breaks off what is being spoken. A voice that has never spoken is not made for it.
    void PurgeSpeech();

private:
    platform::Voices& voices_;
    std::function<void(const QString&)> tell_;
    std::unique_ptr<platform::Voice> voice_;
};

}  // namespace shell
