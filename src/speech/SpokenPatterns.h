#pragma once

#include <QDateTime>
#include <array>

#include "speech/ClockVoice.h"
#include "speech/SpeechContext.h"
#include "speech/SpeechPatterns.h"

namespace speech {

/// Speaks the time of one clock by its four patterns.
///
/// The patterns are read from the properties once and kept, since four keys have sixty numbered
/// companions each and the tick comes up to ten times a second: call `ReadPatterns` after the
/// clock's properties have been loaded or changed.
class SpokenPatterns final : public SpokenTime {
public:
    SpokenPatterns(const SpeechContext& context, ClockVoice& voice)
        : context_(context), voice_(voice) {}

    void ReadPatterns() override;

    /// One tick: the shortest unit that is due is spoken, and only that. Nothing while a message or
    /// an action shows or a text is still being spoken, and nothing twice for the same second.
    void CheckSpokenTime() override;

    /// The longest unit that has a pattern is spoken, due or not.
    void SpeakTimeNow() override;

    /// Speaks the pattern of a kind (1 to 4) at @p clockTime.
    /// @return whether it has a pattern that is due, or for an urgent one, a pattern at all
    bool SpeakPatternOfKind(const QDateTime& clockTime, int kind, Urgency urgency, int flags);

private:
    bool AnyPattern() const;

    SpeechContext context_;
    ClockVoice& voice_;
    std::array<SpeechPattern, 4> patterns_;  ///< of the kinds 1 to 4
    QDateTime spokenAt_;                     ///< the clock's time at which the last tick spoke
};

}  // namespace speech
