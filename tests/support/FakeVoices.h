#pragma once

#include <QStringList>
#include <functional>
#include <memory>

#include "platform/Voices.h"

/// Voices that write down what is asked of them, each as one line, in order. A text is spoken in no
/// time, unless `Lasting` is set.
class FakeVoices final : public platform::Voices {
public:
    bool Present = true;  ///< otherwise the machine has no speech at all
    QStringList Names = {QStringLiteral("Ann"), QStringLiteral("Bob")};
    bool Asking = false;   ///< the machine is still to tell its voices
    QString Failure;       ///< while it is set, speaking fails with this reason
    bool Silent = false;   ///< speaking fails and gives no reason
    bool Lasting = false;  ///< a text is being spoken until `EndText`
    QStringList Log;
    std::function<void()> WhileSpeaking;  ///< called within each call of `Speak`
    int Made = 0;

    std::unique_ptr<platform::Voice> MakeVoice() override {
        ++Made;
        return Present ? std::make_unique<Voice>(*this) : nullptr;
    }

    /// The texts under way come to their ends.
    void EndText() {
        for (Voice* voice : *voices_) {
            voice->Speaking = false;
        }
        TellNews();
    }
    /// The machine tells which voices it has.
    void TellVoices(const QStringList& names) {
        Asking = false;
        Names = names;
        TellNews();
    }

private:
    class Voice final : public platform::Voice {
    public:
        explicit Voice(FakeVoices& all) : all_(all), voices_(all.voices_) { *voices_ += this; }
        ~Voice() override { voices_->removeOne(this); }
        Q_DISABLE_COPY_MOVE(Voice)
        QStringList Descriptions() const override {
            return all_.Asking ? QStringList() : all_.Names;
        }
        bool IsAsking() const override { return all_.Asking; }
        void SetVoice(int index) override { Note(QStringLiteral("voice %1").arg(index)); }
        void SetRate(int rate) override { Note(QStringLiteral("rate %1").arg(rate)); }
        void SetVolume(int volume) override { Note(QStringLiteral("volume %1").arg(volume)); }
        bool Speak(const QString& text, int flags) override {
            Note(QStringLiteral("%1 %2").arg(flags).arg(text));
            const bool lasts = all_.Lasting && text != QLatin1String(".");
            Speaking = lasts;
            if (all_.WhileSpeaking) {
                all_.WhileSpeaking();
            }
            return lasts || (all_.Failure.isEmpty() && !all_.Silent);
        }
        bool IsSpeaking() const override { return Speaking; }
        QString LastError() const override { return all_.Failure; }
        void SetOnNews(const std::function<void()>& onNews) override { OnNews = onNews; }

        std::function<void()> OnNews;
        bool Speaking = false;

    private:
        void Note(const QString& what) { all_.Log += what; }
        FakeVoices& all_;
        std::shared_ptr<QList<Voice*>> voices_;  // clocks may outlive the machine of a test
    };

    void TellNews() {
        const QList<Voice*> voices = *voices_;
        for (Voice* voice : voices) {
            if (voices_->contains(voice) && voice->OnNews) {
                voice->OnNews();
            }
        }
    }

    std::shared_ptr<QList<Voice*>> voices_ = std::make_shared<QList<Voice*>>();
};
