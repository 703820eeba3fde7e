#pragma once

#include <QMenu>
#include <functional>
#include <vector>

#include "foundation/ClockProperty.h"
#include "speech/SpeakerVoice.h"

namespace clockcore {

/// What a right click on the speaker mark offers.
struct SpeakerCommands {
    /// A key of the property file takes one of its choices.
    std::function<void(const QString& key, const QString& value)> SetValue;
    std::function<void(int entry)> SetVoice;  ///< an entry of the menu of voices, from 1
    std::function<void()> AutoPosition;
};

/// The pop-up menu of the speaker mark, made at the moment of opening. A sub-menu holds the choices
/// that the property file gives for its key, the present one ticked. It deletes itself when it
/// closes.
QMenu* MakeSpeakerMenu(QWidget* clock, const ClockProperties& properties,
                       const std::vector<speech::VoiceEntry>& voices,
                       const SpeakerCommands& commands);

}  // namespace clockcore
