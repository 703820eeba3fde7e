#pragma once

#include "platform/devices/QueuedVoice.h"

namespace platform {

/// The voices of this machine. Each voice has an engine of its own, made when it first speaks: a
/// process that leaves when it has nothing to do. All of them take turns.
///
/// One engine is started with this object, since it may take seconds to tell its voices. Until then
/// there are no descriptions; where it told none they are asked for again after a minute.
///
/// Speech Dispatcher comes first where it runs, then the other engines by name: the first one that
/// works and has voices. Which one that is, is tried anew with each engine made.
class QtVoices final : public Voices {
public:
    /// @p program is the path of `tempolark-voice`; @p engine picks one engine by name, empty
    /// leaves the choice to the machine.
    explicit QtVoices(QString program, QString engine = {}, const SpeechBounds& bounds = {});

    /// The descriptions hold no ",": they become a list that is separated by it. A ";" stands in
    /// its place.
    std::unique_ptr<Voice> MakeVoice() override;

private:
    class Shared;
    std::shared_ptr<Shared> shared_;
    std::shared_ptr<SpeechQueue> queue_;
};

}  // namespace platform
