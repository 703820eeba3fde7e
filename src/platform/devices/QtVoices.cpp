#include "platform/devices/QtVoices.h"

#include <QDeadlineTimer>

#include "platform/devices/VoiceProcess.h"

namespace platform {

namespace {
constexpr int MillisecondsToTheNextAsking = 60'000;
}

/// What all voices have in common.
struct QtVoices::Shared {
    QString Program;
    QString Engine;
    std::unique_ptr<SpeechEngine> Spare;  ///< goes to the voice that first needs one
    QStringList Descriptions;  ///< once some are known, no clock has to ask an engine again
    QDeadlineTimer AskAgain{0};

    std::unique_ptr<SpeechEngine> Make() {
        if (Spare && Spare->Trouble().isEmpty()) {
            return std::move(Spare);
        }
        return std::make_unique<VoiceProcess>(Program, Engine);
    }

    QStringList Describe(VoiceCore& core) {
        if (Descriptions.isEmpty() && AskAgain.hasExpired()) {
            Descriptions = core.NeedEngine()->Voices().replaceInStrings(QStringLiteral(","),
                                                                        QStringLiteral(";"));
            AskAgain.setRemainingTime(MillisecondsToTheNextAsking);
        }
        return Descriptions;
    }
};

QtVoices::QtVoices(QString program, QString engine, const SpeechBounds& bounds)
    : shared_(std::make_shared<Shared>()), queue_(std::make_shared<SpeechQueue>(bounds)) {
    shared_->Program = std::move(program);
    shared_->Engine = std::move(engine);
    shared_->Spare = shared_->Make();
}

std::unique_ptr<Voice> QtVoices::MakeVoice() {
    return std::make_unique<QueuedVoice>(
        queue_, [shared = shared_] { return shared->Make(); },
        [shared = shared_](VoiceCore& core) { return shared->Describe(core); });
}

}  // namespace platform
