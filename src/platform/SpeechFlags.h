#pragma once

/// The flags of `platform::Voice::Speak`, to be added up. The voice takes 0 for `Asynchronous`: no
/// text ever keeps its caller waiting.
namespace platform::SpeechFlag {

inline constexpr int Asynchronous = 1;      ///< nothing is cut off
inline constexpr int PurgeBeforeSpeak = 2;  ///< what the voice is saying is cut off

}  // namespace platform::SpeechFlag
