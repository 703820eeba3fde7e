#include "platform/devices/QtVoices.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

/// The engines to try, in a fixed order: the toolkit lists them in a different one at each run.
QStringList EngineNames(const QString& picked) {
    QStringList names = QTextToSpeech::availableEngines();
    if (!picked.isEmpty()) {
        return names.contains(picked) ? QStringList(picked) : QStringList();
    }
    names.sort();
    const QString dispatcher = u"speechd"_s;
    if (names.removeOne(dispatcher)) {
        names.prepend(dispatcher);
    }
    return names;
}

}  // namespace

/// What all voices have in common.
struct QtVoices::Shared {
    QString Picked;
    QStringList Descriptions;  ///< once some are known, no clock has to ask an engine again
    std::shared_ptr<RestlessEngines> Restless = std::make_shared<RestlessEngines>();

    /// The first engine that works; failing that, the first one, which can tell what is wrong.
    std::unique_ptr<SpeechEngine> Make() {
        std::unique_ptr<SpeechEngine> first;
        for (const QString& name : EngineNames(Picked)) {
            auto engine = std::make_unique<QtSpeechEngine>(name, Restless);
            const QStringList voices = engine->Voices();
            if (!voices.isEmpty()) {
                Descriptions = voices;
                return engine;
            }
            if (!first) {
                first = std::move(engine);
            }
        }
        return first;
    }
};

QtVoices::QtVoices(QString engine, const SpeechBounds& bounds)
    : shared_(std::make_shared<Shared>()), queue_(std::make_shared<SpeechQueue>(bounds)) {
    shared_->Picked = std::move(engine);
}

QtVoices::~QtVoices() {
    shared_->Restless->Settle();
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
