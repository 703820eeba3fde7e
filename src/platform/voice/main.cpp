#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTextToSpeech>
#include <QTimer>
#include <QVoice>
#include <memory>
#include <utility>

#include "platform/devices/HelperProcess.h"

using namespace Qt::StringLiterals;
using platform::Answer;
using platform::Leave;

// A speech engine in a process of its own, so that one that crashes or hangs costs a message and
// never the program. Texts travel as base64, one command or answer to a line:
//
//     voices NAME NAME...    the first answer; none when there is no speech
//     error REASON           this engine can't speak; the reason may follow "voices" at once
//     set VOICE RATE VOLUME  as in platform::VoiceSettings
//     say TEXT               answered by "speaking", then "ready" or "error"
//
// It ends with its input, and when it has had nothing to do for a minute.
namespace {

constexpr int IdleMilliseconds = 60'000;

// Flite stumbles over some texts: its last samples fall so that it takes the end of the text for an
// error and throws all of it away, while the first of it is being heard at most. Said again at a
// rate that differs by less than one can hear, the samples fall otherwise.
constexpr int StumblesWithin = 2000;  // milliseconds; a laden machine is slow
constexpr int MostStumbles = 30;
constexpr double Nuance = 0.003;
constexpr int AgainAfter = 50;  // milliseconds

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

/// The first engine that works; failing that, the first one, which can tell what is wrong.
std::unique_ptr<QTextToSpeech> PickEngine(const QString& picked) {
    std::unique_ptr<QTextToSpeech> first;
    for (const QString& name : EngineNames(picked)) {
        auto engine = std::make_unique<QTextToSpeech>(name);
        if (!engine->availableVoices().isEmpty()) {
            return engine;
        }
        if (!first) {
            first = std::move(engine);
        }
    }
    return first;
}

class Speaker {
public:
    explicit Speaker(std::unique_ptr<QTextToSpeech> engine)
        : engine_(std::move(engine)),
          orders_([this](const QByteArrayList& words) { Obey(words); }) {
        idle_.setSingleShot(true);
        again_.setSingleShot(true);
        QObject::connect(&again_, &QTimer::timeout, &again_, [this] { Say(); });
        QObject::connect(&idle_, &QTimer::timeout, &idle_, [] { Leave(); });
        QObject::connect(engine_.get(), &QTextToSpeech::stateChanged, engine_.get(),
                         [this](QTextToSpeech::State state) { Tell(state); });
        QObject::connect(engine_.get(), &QTextToSpeech::errorOccurred, engine_.get(),
                         [this](auto, const QString& reason) { reason_ = reason; });
        idle_.start(IdleMilliseconds);
        Introduce();
    }

private:
    void Introduce() {
        QByteArray line = "voices";
        for (const QVoice& voice : engine_->availableVoices()) {
            line += ' ' + voice.name().toUtf8().toBase64();
        }
        Answer(line);
        reason_ = engine_->errorString();
        if (!reason_.isEmpty()) {
            TellError();
        }
    }

    void Tell(QTextToSpeech::State state) {
        idle_.start(IdleMilliseconds);
        if (state == QTextToSpeech::Speaking) {
            idle_.stop();
            speaking_ = true;
            since_.start();
            Answer("speaking");
        } else if (state == QTextToSpeech::Ready && std::exchange(speaking_, false)) {
            Answer("ready");
        } else if (state == QTextToSpeech::Error) {
            const bool stumbled = std::exchange(speaking_, false) &&
                                  since_.elapsed() < StumblesWithin && ++stumbles_ < MostStumbles;
            stumbled ? again_.start(AgainAfter) : TellError();
        }
    }

    void Say() {
        speaking_ = false;
        engine_->setRate(rate_ + (rate_ > 0 ? -Nuance : Nuance) * stumbles_);
        engine_->say(text_);
    }

    void TellError() { Answer("error " + reason_.toUtf8().toBase64()); }

    void Obey(const QByteArrayList& words) {
        if (words[0] == "say" && words.size() == 2) {
            text_ = QString::fromUtf8(QByteArray::fromBase64(words[1]));
            stumbles_ = 0;
            Say();
        } else if (words[0] == "set" && words.size() == 4) {
            const QList<QVoice> voices = engine_->availableVoices();
            const int voice = words[1].toInt();
            if (voice >= 0 && voice < voices.size()) {
                engine_->setVoice(voices[voice]);
            }
            rate_ = words[2].toInt() / 10.0;
            engine_->setVolume(words[3].toInt() / 100.0);
        }
    }

    std::unique_ptr<QTextToSpeech> engine_;
    platform::OrderLines orders_;
    QTimer idle_;  ///< ends the process
    QTimer again_;
    QElapsedTimer since_;  ///< when it began to speak
    QString text_;
    bool speaking_ = false;
    double rate_ = 0;
    int stumbles_ = 0;  ///< over the present text
    QString reason_;    ///< of the last error; the engine itself soon forgets it
};

}  // namespace

int main(int argc, char** argv) {
    platform::EndWithParent();
    QCoreApplication application(argc, argv);
    auto engine = PickEngine(QCoreApplication::arguments().value(1));
    if (!engine) {
        Answer("voices");
        Answer("error " + QByteArray("This machine has no speech engine").toBase64());
        Leave();
    }
    const Speaker speaker(std::move(engine));
    QCoreApplication::exec();
    Leave();
}
