#include "platform/devices/QtPlayers.h"

#include <QAudioDevice>
#include <QAudioOutput>
#include <QFileInfo>
#include <QMediaDevices>
#include <QMediaPlayer>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

/// The numbers of `playState`.
enum PlayStates { Stopped = 1, Paused = 2, Playing = 3 };

constexpr float FullVolume = 100.0F;

class QtPlayer final : public MediaPlayer {
public:
    QtPlayer() {
        QObject::connect(&player_, &QMediaPlayer::errorOccurred, &player_,
                         [this](QMediaPlayer::Error, const QString& text) { Fail(text); });
    }

    ~QtPlayer() override { player_.stop(); }
    Q_DISABLE_COPY_MOVE(QtPlayer)

    void SetUrl(const QString& path) override {
        player_.setSource(QUrl());  // else a file that was replaced would not be read again
        error_.clear();
        // Opening a pipe or a device could hold up the program.
        if (!QFileInfo(path).isFile()) {
            error_ = u"There is no %1"_s.arg(path);
            return;
        }
        if (!UsePresentDevice()) {
            error_ = u"There is no sound device"_s;
            return;
        }
        player_.setSource(QUrl::fromLocalFile(path));
        player_.play();
    }

    int PlayState() const override {
        if (!error_.isEmpty()) {
            return Stopped;
        }
        switch (player_.playbackState()) {
            case QMediaPlayer::PlayingState:
                return Playing;
            case QMediaPlayer::PausedState:
                return Paused;
            case QMediaPlayer::StoppedState:
                break;
        }
        return Stopped;
    }

    void Play() override {
        if (error_.isEmpty()) {
            player_.play();
        }
    }
    void Stop() override { player_.stop(); }
    void Pause() override { player_.pause(); }

    void SetVolume(int volume) override {
        const float linear = static_cast<float>(std::clamp(volume, 0, 100)) / FullVolume;
        output_.setVolume(QAudio::convertVolume(linear, QAudio::LogarithmicVolumeScale,
                                                QAudio::LinearVolumeScale));
    }

    QString LastError() const override { return error_; }

private:
    /// The device may have come, or changed, since the last piece. Without one nothing is played:
    /// the back end would never come to the end of the piece, or crash.
    bool UsePresentDevice() {
        const QAudioDevice present = QMediaDevices::defaultAudioOutput();
        if (!present.isNull() && output_.device() != present) {
            output_.setDevice(present);
        }
        player_.setAudioOutput(present.isNull() ? nullptr : &output_);
        return !present.isNull();
    }

    void Fail(const QString& text) {
        error_ = text.isEmpty() ? u"The file can't be played"_s : text;
        // The back end goes on playing nothing; it must not be stopped inside its own signal.
        QMetaObject::invokeMethod(
            &player_,
            [this] {
                if (!error_.isEmpty()) {
                    player_.stop();
                }
            },
            Qt::QueuedConnection);
    }

    QString error_;
    QAudioOutput output_;
    QMediaPlayer player_;
};

/// The toolkit reads it when a player or a device is first asked for.
void ChooseBackEnd() {
    if (!qEnvironmentVariableIsSet("QT_MEDIA_BACKEND")) {
        qputenv("QT_MEDIA_BACKEND", "ffmpeg");
    }
}

}  // namespace

QtPlayers::QtPlayers() {
    ChooseBackEnd();
}

std::unique_ptr<MediaPlayer> QtPlayers::MakePlayer() {
    return std::make_unique<QtPlayer>();
}

QtSoundDevices::QtSoundDevices() {
    ChooseBackEnd();
}

int QtSoundDevices::Count() const {
    return static_cast<int>(QMediaDevices::audioOutputs().size());
}

}  // namespace platform
