#include "ctl/RecordingMachine.h"

#include "foundation/TextHelpers.h"

using namespace Qt::StringLiterals;

namespace ctl {

namespace {

class RecordingVoice final : public platform::Voice {
public:
    explicit RecordingVoice(TellEvent tell) : tell_(std::move(tell)) {}
    QStringList Descriptions() const override { return {u"Script"_s}; }
    void SetVoice(int) override {}
    void SetRate(int) override {}
    void SetVolume(int) override {}
    bool Speak(const QString& text, int flags) override {
        tell_(u"speak"_s, {{u"text"_s, text}, {u"flags"_s, flags}});
        return true;
    }

private:
    TellEvent tell_;
};

/// Music is what a volume was set for; all else is a sound.
class RecordingPlayer final : public platform::MediaPlayer {
public:
    RecordingPlayer(TellEvent tell, const platform::WallClock& clock)
        : tell_(std::move(tell)), clock_(clock) {}

    void SetVolume(int volume) override {
        volume_ = volume;
        volumeIsNew_ = true;
    }
    void SetUrl(const QString& path) override {
        isMusic_ = std::exchange(volumeIsNew_, false);
        playing_ = true;
        until_ = clock_.Now().addSecs(1);
        if (isMusic_) {
            tell_(u"music"_s, {{u"file"_s, path}, {u"volume"_s, volume_}});
        } else {
            tell_(u"sound"_s, {{u"file"_s, path}});
        }
    }
    int PlayState() const override {
        return playing_ && (isMusic_ || clock_.Now() < until_) ? 3 : 1;
    }
    void Play() override {}
    void Pause() override {}
    void Stop() override {
        const bool wasMusic = PlayState() == 3 && isMusic_;
        playing_ = false;
        if (wasMusic) {
            tell_(u"music-stop"_s, {});
        }
    }

private:
    TellEvent tell_;
    const platform::WallClock& clock_;
    int volume_ = 0;
    bool volumeIsNew_ = false;
    bool isMusic_ = false;
    bool playing_ = false;
    QDateTime until_;
};

}  // namespace

std::unique_ptr<platform::Voice> RecordingVoices::MakeVoice() {
    return std::make_unique<RecordingVoice>(tell_);
}

std::unique_ptr<platform::MediaPlayer> RecordingPlayers::MakePlayer() {
    return std::make_unique<RecordingPlayer>(tell_, clock_);
}

bool RecordingFiles::Write(const QString& path, const QByteArray& content) {
    const bool written = !full_ && files_.Write(path, content);
    if (written) {
        tell_(u"saved"_s, {{u"file"_s, path}});
    }
    return written;
}

bool RecordingFiles::Copy(const QString& source, const QString& destination) {
    const bool copied = !full_ && files_.Copy(source, destination);
    if (copied) {
        tell_(u"saved"_s, {{u"file"_s, destination}});
    }
    return copied;
}

}  // namespace ctl
