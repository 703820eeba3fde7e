#pragma once

#include <QTextToSpeech>

#include "platform/devices/SpeechEngine.h"

namespace platform {

/// Keeps engines that were dropped while they spoke until they have come to rest. The thread of an
/// engine must not be cut off at work: that brings the program down. One that never comes to rest
/// is never deleted.
class RestlessEngines {
public:
    void Take(std::unique_ptr<QTextToSpeech> engine);

    /// Lets them come to rest, for two seconds at most. The program does so before it ends.
    void Settle();

private:
    std::shared_ptr<int> count_ = std::make_shared<int>(0);
};

/// The toolkit's speech as an engine.
class QtSpeechEngine final : public SpeechEngine {
public:
    /// @p name is one of `QTextToSpeech::availableEngines`.
    QtSpeechEngine(const QString& name, std::shared_ptr<RestlessEngines> restless);
    ~QtSpeechEngine() override;
    Q_DISABLE_COPY_MOVE(QtSpeechEngine)

    QStringList Voices() const override;
    void Apply(const VoiceSettings& settings) override;
    void Say(const QString& text) override;
    void Stop() override { speech_->stop(); }
    QString Trouble() const override;

private:
    void Change(QTextToSpeech::State state);

    std::shared_ptr<RestlessEngines> restless_;
    std::unique_ptr<QTextToSpeech> speech_;
    QObject context_;    ///< ends the connections with this object
    bool busy_ = false;  ///< from the hand-over of a text until rest
};

}  // namespace platform
