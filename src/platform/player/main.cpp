#include <QAudioDevice>
#include <QAudioOutput>
#include <QCoreApplication>
#include <QMediaDevices>
#include <QMediaPlayer>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <limits>

#include "platform/devices/HelperProcess.h"

using namespace Qt::StringLiterals;
using platform::Answer;
using platform::Leave;

// A media player in a process of its own. When a sound server goes away, the toolkit's thread of
// sound never comes back, and whoever takes the player down, or asks for a device, waits for it. So
// that costs a piece and never the program. Paths and reasons travel as base64, one command or
// answer to a line; N is a number that the asker gives to each piece:
//
//     play N PATH       ends what is played and starts the file
//     pause, resume, stop
//     volume VOLUME     0 to 100, as it is heard
//
//     at N MILLISECONDS   the piece goes on; about twice a second, and only while it does
//     ended N
//     failed N REASON
//
// It ends with its input. With the argument "devices" it writes how many sound devices there are.
namespace {

constexpr int ReportMilliseconds = 500;
constexpr qint64 LeastMilliseconds = 100;  // it also crawls where nothing is heard
constexpr float FullVolume = 100.0F;
constexpr qint64 SlackMilliseconds = 5'000;
constexpr qint64 SlackFactor = 3;

class Player {
public:
    Player() : orders_([this](const QByteArrayList& words) { Obey(words); }) {
        QObject::connect(&report_, &QTimer::timeout, &report_, [this] { Report(); });
        QObject::connect(&player_, &QMediaPlayer::playbackStateChanged, &player_,
                         [this](QMediaPlayer::PlaybackState state) { Follow(state); });
        QObject::connect(&player_, &QMediaPlayer::errorOccurred, &player_,
                         [this](QMediaPlayer::Error, const QString& text) {
                             Fail(text.isEmpty() ? u"The file can't be played"_s : text);
                         });
        QObject::connect(&player_, &QMediaPlayer::mediaStatusChanged, &player_,
                         [this](QMediaPlayer::MediaStatus status) {
                             if (status == QMediaPlayer::LoadedMedia && !player_.hasAudio()) {
                                 Fail(u"There is no sound in it"_s);
                             }
                         });
        report_.start(ReportMilliseconds);
    }

private:
    void Begin(const QByteArray& number, const QString& path) {
        underWay_ = false;
        player_.setSource(QUrl());  // else a file that was replaced would not be read again
        number_ = number;
        position_ = 0;
        underWay_ = true;
        if (!UsePresentDevice()) {
            return Fail(u"There is no sound device"_s);
        }
        player_.setSource(QUrl::fromLocalFile(path));
        player_.play();
    }

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

    void Follow(QMediaPlayer::PlaybackState state) {
        if (state == QMediaPlayer::StoppedState && underWay_) {
            underWay_ = false;
            Answer("ended " + number_);
        }
    }

    void Fail(const QString& reason) {
        if (!underWay_) {
            return;
        }
        underWay_ = false;
        Answer("failed " + number_ + ' ' + reason.toUtf8().toBase64());
        // The back end goes on playing nothing; it must not be stopped inside its own signal.
        QMetaObject::invokeMethod(
            &player_,
            [this] {
                if (!underWay_) {
                    player_.stop();
                }
            },
            Qt::QueuedConnection);
    }

    void Report() {
        const qint64 position = player_.position();
        const qint64 way = std::abs(position - position_);
        if (underWay_ && way >= LeastMilliseconds && position <= Latest()) {
            position_ = position;
            Answer("at " + number_ + ' ' + QByteArray::number(position));
        }
    }

    /// With a sound server that takes nothing the position runs on for ever. Lengths are estimates.
    qint64 Latest() const {
        return player_.duration() > 0 ? SlackMilliseconds + SlackFactor * player_.duration()
                                      : std::numeric_limits<qint64>::max();
    }

    void SetVolume(int volume) {
        const float heard = static_cast<float>(std::clamp(volume, 0, 100)) / FullVolume;
        output_.setVolume(QAudio::convertVolume(heard, QAudio::LogarithmicVolumeScale,
                                                QAudio::LinearVolumeScale));
    }

    void Obey(const QByteArrayList& words) {
        if (words[0] == "play" && words.size() == 3) {
            Begin(words[1], QString::fromUtf8(QByteArray::fromBase64(words[2])));
        } else if (words[0] == "volume" && words.size() == 2) {
            SetVolume(words[1].toInt());
        } else if (words[0] == "pause") {
            player_.pause();
        } else if (words[0] == "resume" && underWay_) {
            player_.play();
        } else if (words[0] == "stop") {
            underWay_ = false;
            player_.stop();
        }
    }

    QAudioOutput output_;
    QMediaPlayer player_;
    platform::OrderLines orders_;
    QTimer report_;
    QByteArray number_;      ///< of the present piece
    qint64 position_ = 0;    ///< in it, as told last
    bool underWay_ = false;  ///< neither its end nor a failure has been told
};

}  // namespace

int main(int argc, char** argv) {
    platform::EndWithParent();
    // The toolkit's other back end crashes where one of its many parts is not installed.
    if (!qEnvironmentVariableIsSet("QT_MEDIA_BACKEND")) {
        qputenv("QT_MEDIA_BACKEND", "ffmpeg");
    }
    QCoreApplication application(argc, argv);
    if (QCoreApplication::arguments().value(1) == u"devices"_s) {
        Answer(QByteArray::number(QMediaDevices::audioOutputs().size()));
        Leave();
    }
    const Player player;
    QCoreApplication::exec();
    Leave();
}
