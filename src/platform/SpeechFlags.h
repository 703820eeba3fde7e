#pragma once

/// The flags of `platform::Voice::Speak`, to be added up.
namespace platform::SpeechFlag {

inline constexpr int Asynchronous = 1;      ///< nothing is cut off
inline constexpr int PurgeBeforeSpeak = 2;  ///< what the voice is saying is cut off

}  // namespace platform::SpeechFlag
