#pragma once

#include <QStringList>
#include <functional>
#include <utility>
#include <vector>

#include "platform/Services.h"

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

/// Players that write down what is asked of them. A file that is set plays at once; the test ends
/// the piece by setting `State`.
class FakePlayers final : public platform::MediaPlayers {
public:
    bool Present = true;
    int State = 0;    ///< of the player made last
    QString Failure;  ///< why the present file can't be played
    QStringList Log;
    int Made = 0;

    std::unique_ptr<platform::MediaPlayer> MakePlayer() override {
        ++Made;
        return Present ? std::make_unique<Player>(*this) : nullptr;
    }

private:
    class Player final : public platform::MediaPlayer {
    public:
        explicit Player(FakePlayers& all) : all_(all) {}
        void SetUrl(const QString& path) override { Note(QLatin1String("url ") + path, 3); }
        int PlayState() const override { return all_.State; }
        void Play() override { Note(QStringLiteral("play"), 3); }
        void Stop() override { Note(QStringLiteral("stop"), 1); }
        void Pause() override { Note(QStringLiteral("pause"), 2); }
        void SetVolume(int volume) override {
            Note(QStringLiteral("volume %1").arg(volume), all_.State);
        }
        QString LastError() const override { return all_.Failure; }

    private:
        void Note(const QString& what, int state) {
            all_.Log += what;
            all_.State = all_.Failure.isEmpty() ? state : 0;
        }
        FakePlayers& all_;
    };
};

/// System actions that are written down and not carried out.
class FakeActions final : public platform::SystemActions {
public:
    QString Refusal;    ///< what each call answers
    bool Slow = false;  ///< what is begun waits for `DoTheRest`
    QStringList Log;

    QString ExitWindowsEx(unsigned flags) override {
        return Note(QStringLiteral("exit %1").arg(flags));
    }
    QString LockWorkStation() override { return Note(QStringLiteral("lock")); }
    QString Open(const QString& path, const QString& workingFolder) override {
        return Note(QStringLiteral("open %1 in %2").arg(path, workingFolder));
    }
    void Begin(const std::function<QString(SystemActions&)>& action,
               const std::function<void(const QString&)>& answer) override {
        begun_.push_back([this, action, answer] { answer(action(*this)); });
        if (!Slow) {
            DoTheRest();
        }
    }
    void DoTheRest() {
        for (const auto& rest : std::exchange(begun_, {})) {
            rest();
        }
    }

private:
    QString Note(const QString& what) {
        Log += what;
        return Refusal;
    }

    std::vector<std::function<void()>> begun_;
};

class FakeSound final : public platform::SoundDevices {
public:
    int Devices = 1;
    void Count(const std::function<void(int)>& answer) override { answer(Devices); }
};

/// The devices of a machine, all of which only write down.
struct FakeDevices {
    FakeVoices Voices;
    FakePlayers Players;
    FakeActions Actions;
    FakeSound Sound;

    /// A machine with these devices in place of its own.
    platform::Services On(const platform::Services& machine) {
        return {machine.Clock,  machine.Zones,    machine.FileSystem,
                machine.User,   machine.Settings, Actions,
                Voices,         Players,          Sound,
                machine.Dialog, machine.TrayIcon, machine.Help,
                machine.Random};
    }
};
