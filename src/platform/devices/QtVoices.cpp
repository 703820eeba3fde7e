#include "platform/devices/QtVoices.h"

#include <QDeadlineTimer>
#include <QTimer>

#include "platform/devices/VoiceProcess.h"

namespace platform {

namespace {

/// Speech Dispatcher has thousands of voices and takes seconds to count them.
constexpr int IntroductionMilliseconds = 10'000;
constexpr int MillisecondsToTheNextAsking = 60'000;

}  // namespace

/// What all voices have in common.
class QtVoices::Shared final : public VoiceDirectory {
public:
    Shared(QString program, QString engine)
        : program_(std::move(program)), engine_(std::move(engine)) {
        bound_.setSingleShot(true);
        QObject::connect(&bound_, &QTimer::timeout, &bound_, [this] { Hear({}); });
        spare_ = Start();
    }

    std::unique_ptr<SpeechEngine> Make() {
        if (spare_ && spare_->Trouble().isEmpty()) {
            return std::move(spare_);
        }
        return Start();
    }

    // Once some are known, no clock has to ask an engine again.
    QStringList Descriptions() override {
        if (descriptions_.isEmpty() && !IsAsking() && askAgain_.hasExpired()) {
            spare_ = Start();
        }
        return descriptions_;
    }
    bool IsAsking() const override { return bound_.isActive(); }

private:
    std::unique_ptr<SpeechEngine> Start() {
        auto engine = std::make_unique<VoiceProcess>(program_, engine_);
        if (descriptions_.isEmpty()) {
            bound_.start(IntroductionMilliseconds);
            engine->OnVoices = [this, life = std::weak_ptr<bool>(life_)](const QStringList& told) {
                if (!life.expired()) {
                    Hear(told);
                }
            };
        }
        return engine;
    }

    void Hear(QStringList told) {
        bound_.stop();
        askAgain_.setRemainingTime(MillisecondsToTheNextAsking);
        descriptions_ = told.replaceInStrings(QStringLiteral(","), QStringLiteral(";"));
        TellNews();
    }

    QString program_;
    QString engine_;
    std::unique_ptr<SpeechEngine> spare_;  ///< goes to the voice that first needs one
    QStringList descriptions_;
    QDeadlineTimer askAgain_;  ///< over at first
    QTimer bound_;             ///< runs while an engine is still to tell its voices
    std::shared_ptr<bool> life_ = std::make_shared<bool>(true);
};

QtVoices::QtVoices(QString program, QString engine, const SpeechBounds& bounds)
    : shared_(std::make_shared<Shared>(std::move(program), std::move(engine))),
      queue_(std::make_shared<SpeechQueue>(bounds)) {}

std::unique_ptr<Voice> QtVoices::MakeVoice() {
    return std::make_unique<QueuedVoice>(
        queue_, [shared = shared_] { return shared->Make(); }, shared_);
}

}  // namespace platform
