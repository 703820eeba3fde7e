#include "platform/devices/Utterance.h"

using namespace Qt::StringLiterals;

namespace platform {

SpeechEngine* VoiceCore::NeedEngine() {
    if (!Engine || !Engine->Trouble().isEmpty()) {
        Engine = Make();
        if (Engine) {
            Engine->Apply(Settings);
        }
    }
    return Engine.get();
}

Utterance::Utterance(std::shared_ptr<VoiceCore> voice, const QString& text,
                     const SpeechBounds& bounds, int ahead)
    : voice_(std::move(voice)), pieces_(SpeechPieces(text)), bounds_(bounds) {
    bound_.setSingleShot(true);
    whole_.setSingleShot(true);
    QObject::connect(&bound_, &QTimer::timeout, &bound_, [this] {
        const auto alive = shared_from_this();
        GiveUp();
    });
    QObject::connect(&whole_, &QTimer::timeout, &whole_, [this] {
        const auto alive = shared_from_this();
        End(u"The message is too long to be spoken whole"_s);
    });
    bound_.start(bounds_.Turn + ahead);
}

Utterance::~Utterance() {
    OnEnd = nullptr;
    End({});
}

int Utterance::Bound() const {
    return MessageBound(pieces_, voice_->Settings.Rate, bounds_);
}

void Utterance::Begin() {
    begun_ = true;
    SpeechEngine* engine = voice_->NeedEngine();
    if (engine == nullptr) {
        return End(u"This machine has no speech engine"_s);
    }
    if (const QString trouble = engine->Trouble(); !trouble.isEmpty()) {
        return End(trouble);
    }
    engine->OnState = [weak = weak_from_this()](SpeechEngine::State state) {
        if (const auto alive = weak.lock()) {
            alive->Hear(state);
        }
    };
    whole_.start(bounds_.Whole);
    SayNext();
}

void Utterance::SayNext() {
    if (pieces_.isEmpty()) {
        return End({});
    }
    speaking_ = false;
    bound_.start(bounds_.Start);
    voice_->Engine->Say(pieces_.first());
}

void Utterance::Hear(SpeechEngine::State state) {
    if (state == SpeechEngine::State::Error) {
        const QString trouble = voice_->Engine->Trouble();
        return End(trouble.isEmpty() ? u"The speech engine has failed"_s : trouble);
    }
    if (state == SpeechEngine::State::Speaking && !speaking_) {
        speaking_ = true;
        bound_.start(PieceBound(pieces_.first(), voice_->Settings.Rate, bounds_));
    } else if (state == SpeechEngine::State::Ready && speaking_) {
        pieces_.removeFirst();
        SayNext();
    }
}

void Utterance::GiveUp() {
    if (!begun_) {
        return End(u"Other clocks have been speaking for too long"_s);
    }
    const QString trouble = voice_->Engine->Trouble();
    if (!trouble.isEmpty()) {
        return End(trouble);
    }
    End(speaking_ ? u"The speech engine does not come to an end"_s
                  : u"The speech engine does not answer"_s);
}

void Utterance::End(const QString& reason) {
    if (std::exchange(ended_, true)) {
        return;
    }
    reason_ = reason;
    bound_.stop();
    whole_.stop();
    if (begun_ && voice_->Engine) {
        voice_->Engine->OnState = nullptr;
        if (!pieces_.isEmpty()) {
            voice_->Engine->Stop();
            voice_->Engine.reset();
        }
    }
    if (const auto onEnd = OnEnd) {
        onEnd();
    }
}

}  // namespace platform
