#pragma once

#include "platform/devices/ChildProcess.h"
#include "platform/devices/SpeechEngine.h"

namespace platform {

/// A speech engine that runs as a process of its own, `tempolark-voice`. When it crashes it is in
/// trouble and a new one is needed; destroying this object ends it, and its sound, at once. So does
/// `Stop`, which is reported like a crash.
class VoiceProcess final : public SpeechEngine {
public:
    /// Starts @p program and does not wait for it: what it is asked to do meanwhile it does as soon
    /// as it can. @p engine is one of the toolkit's engines; empty leaves the choice to the
    /// process.
    VoiceProcess(const QString& program, const QString& engine);
    ~VoiceProcess() override;
    Q_DISABLE_COPY_MOVE(VoiceProcess)

    QStringList Voices() const override { return voices_; }
    void Apply(const VoiceSettings& settings) override;
    void Say(const QString& text) override;
    void Stop() override { process_->kill(); }
    QString Trouble() const override { return trouble_; }

private:
    /// Hears each line, until one of them has ended this object's life: the process may outlive it.
    void Read();
    /// Takes an answer: "voices NAME...", "speaking", "ready" or "error REASON"; any other is
    /// dropped.
    void Hear(const QByteArrayList& words);
    /// The process has ended, or can't be started. The first trouble is the one that is kept.
    void Die(const QString& reason);
    void TellVoices();
    void Tell(State state);

    std::unique_ptr<ChildProcess> process_ = std::make_unique<ChildProcess>();
    QStringList voices_;
    QString trouble_;
    std::shared_ptr<bool> life_ = std::make_shared<bool>(true);
};

}  // namespace platform
