#include "speech/SpokenPatterns.h"

#include <algorithm>

#include "platform/SpeechFlags.h"

namespace speech {

namespace {

constexpr int DefaultFlags = 0;

}  // namespace

void SpokenPatterns::ReadPatterns() {
    for (int kind = SecondPattern; kind <= DayPattern; ++kind) {
        patterns_[static_cast<std::size_t>(kind - 1)] = PatternOfKind(kind, context_.Properties);
    }
}

bool SpokenPatterns::AnyPattern() const {
    return std::any_of(patterns_.begin(), patterns_.end(),
                       [](const SpeechPattern& pattern) { return pattern.IsOn(); });
}

bool SpokenPatterns::SpeakPatternOfKind(const QDateTime& clockTime, int kind, Urgency urgency,
                                        int flags) {
    const SpeechPattern pattern = patterns_[static_cast<std::size_t>(kind - 1)];
    if (!pattern.IsOn() || (urgency == Urgency::Routine && !IsDue(pattern, kind, clockTime))) {
        return false;
    }
    voice_.SpeakMessage(ExpandPattern(clockTime, pattern.Text, context_.Zone.CurrentName), flags,
                        urgency);
    return true;
}

void SpokenPatterns::CheckSpokenTime() {
    if (!AnyPattern() || context_.Controls.lblMsg(1).Visible ||
        context_.Controls.lblActionMsg(1).Visible || voice_.IsSpeaking()) {
        return;
    }
    const QDateTime now = context_.ClockTime();
    if (now == spokenAt_) {
        return;
    }
    for (int kind = SecondPattern; kind <= DayPattern; ++kind) {
        if (SpeakPatternOfKind(now, kind, Urgency::Routine, DefaultFlags)) {
            spokenAt_ = now;
            return;
        }
    }
    spokenAt_ = {};
}

void SpokenPatterns::SpeakTimeNow() {
    ReadPatterns();
    const QDateTime now = context_.ClockTime();
    for (int kind = DayPattern; kind >= SecondPattern; --kind) {
        if (SpeakPatternOfKind(now, kind, Urgency::Urgent,
                               platform::SpeechFlag::PurgeBeforeSpeak)) {
            return;
        }
    }
}

}  // namespace speech
