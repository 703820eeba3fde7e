#include "platform/devices/QtVoices.h"

#include "platform/devices/VoiceProcess.h"

namespace platform {

/// What all voices have in common.
struct QtVoices::Shared {
    QString Program;
    QString Engine;
    QStringList Descriptions;  ///< once some are known, no clock has to ask an engine again

    std::unique_ptr<SpeechEngine> Make() {
        auto engine = std::make_unique<VoiceProcess>(Program, Engine);
        if (!engine->Voices().isEmpty()) {
            Descriptions =
                engine->Voices().replaceInStrings(QStringLiteral(","), QStringLiteral(";"));
        }
        return engine;
    }
};

QtVoices::QtVoices(QString program, QString engine, const SpeechBounds& bounds)
    : shared_(std::make_shared<Shared>()), queue_(std::make_shared<SpeechQueue>(bounds)) {
    shared_->Program = std::move(program);
    shared_->Engine = std::move(engine);
}

std::unique_ptr<Voice> QtVoices::MakeVoice() {
    return std::make_unique<QueuedVoice>(
        queue_, [shared = shared_] { return shared->Make(); },
        [shared = shared_](VoiceCore& core) {
            if (shared->Descriptions.isEmpty()) {
                core.NeedEngine();
            }
            return shared->Descriptions;
        });
}

}  // namespace platform
