#include "speech/SpeakerVoice.h"

#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"
#include "platform/SpeechFlags.h"

using namespace Qt::StringLiterals;

namespace speech {

using platform::SpeechFlag::PurgeBeforeSpeak;

namespace {

constexpr int IdlePicture = 3;
constexpr int MutedPicture = 4;
constexpr int SpeakingPicture = 5;
constexpr QStringView PurgeText = u".";

}  // namespace

platform::Voice* SpeakerVoice::Voice() {
    if (!voice_) {
        voice_ = context_.Services.Speech.MakeVoice();
    }
    return voice_.get();
}

double SpeakerVoice::SpeakerLevel() const {
    return mduAPILib::Val(context_.Controls.imgSpeaker(1).Tag);
}

void SpeakerVoice::PrepareSpeaker() {
    mduUILib::Control& mark = context_.Controls.imgSpeaker(1);
    const platform::Voice* voice = Voice();
    missing_.clear();
    if (voice == nullptr || voice->Descriptions().isEmpty()) {
        const QString reason = voice == nullptr ? QString() : voice->LastError();
        missing_ = reason.isEmpty() ? u"this machine has no voice"_s : reason;
        mark.Visible = false;
        mark.Tag = u"0"_s;
        return;
    }
    mark.Visible = mduUILib::YesNoToBool(mduLib::GetProperty(u"Speaker"_s, context_.Properties));
    mark.Tag = mduLib::GetProperty(u"Speaker Volume"_s, context_.Properties);
    if (mark.Visible) {
        context_.Host.SetSpeakerPicture(SpeakerLevel() <= 0 ? MutedPicture : IdlePicture);
    }
}

void SpeakerVoice::SpeakMessage(const QString& text, int flags, bool force) {
    if (!force && !context_.Host.IsActiveClock()) {
        return;
    }
    if (text.isEmpty() || SpeakerLevel() <= 0) {
        TellNoVoice(text, force);
        return;
    }
    if (text != PurgeText) {
        context_.Host.SetSpeakerPicture(SpeakingPicture);
    }
    context_.Host.ShowChanges();
    const std::weak_ptr<bool> alive = alive_;
    Utter(text, flags < 1 ? PurgeBeforeSpeak : flags, force);
    if (!alive.expired() && text != PurgeText) {
        context_.Host.SetSpeakerPicture(IdlePicture);
    }
}

void SpeakerVoice::PurgeSpeech(bool force) {
    SpeakMessage(PurgeText.toString(), PurgeBeforeSpeak, force);
}

// The event loop runs while a voice speaks, and the clock may be closed in it.
void SpeakerVoice::Utter(const QString& text, int flags, bool force) {
    platform::Voice* voice = Voice();
    const std::weak_ptr<bool> alive = alive_;
    ++speaking_;
    const bool spoken = voice != nullptr && voice->Speak(text, flags);
    if (alive.expired()) {
        return;
    }
    --speaking_;
    if (text == PurgeText) {
        return;
    }
    if (spoken) {
        told_.Clear();
        return;
    }
    const QString reason = voice == nullptr ? u"this machine has no voice"_s : voice->LastError();
    TellWhy(reason.isEmpty() ? u"the voice failed"_s : reason, force);
}

// The level is 0 on a machine without voices, whatever volume the user has chosen.
void SpeakerVoice::TellNoVoice(const QString& text, bool force) {
    const double wanted =
        mduAPILib::Val(mduLib::GetProperty(u"Speaker Volume"_s, context_.Properties));
    if (!missing_.isEmpty() && !text.isEmpty() && text != PurgeText && wanted > 0) {
        TellWhy(missing_, force);
    }
}

// Patterns speak often: they tell of the first failure only. A timer that is not heard is told of,
// but the countdown of its action speaks each second.
void SpeakerVoice::TellWhy(const QString& reason, bool force) {
    if (force ? told_.IsFresh(reason) : !told_.IsEmpty()) {
        return;
    }
    told_.Add(reason);
    context_.Host.ShowStatus(u"The clock can't speak: "_s + reason);
}

void SpeakerVoice::ClickSpeaker(SpokenTime& spoken) {
    const std::weak_ptr<bool> alive = alive_;
    context_.Host.SetSpeakerPicture(SpeakingPicture);
    PurgeSpeech(true);
    spoken.SpeakTimeNow();
    if (!alive.expired()) {
        context_.Host.SetSpeakerPicture(SpeakerLevel() <= 0 ? MutedPicture : IdlePicture);
    }
}

QString SpeakerVoice::HintText() const {
    struct Line {
        QStringView Label;
        QStringView Key;
    };
    constexpr Line lines[] = {
        {u"Speech Day Pattern:", u"Speech Day Pattern"},
        {u"Speech Hour Pattern: ", u"Speech Hour Pattern"},
        {u"Speech Minute Pattern: ", u"Speech Minute Pattern"},
        {u"Speech Second Pattern: ", u"Speech Second Pattern"},
        {u"Speaker Volume: ", u"Speaker Volume"},
        {u"Speak Timer Message: ", u"Speak Timer Message"},
        {u"Speak Action Message: ", u"Speak Action Message"},
    };
    QString text;
    for (const Line& line : lines) {
        text += line.Label;
        text += mduLib::GetProperty(line.Key.toString(), context_.Properties) + u"\r\n"_s;
    }
    return text;
}

}  // namespace speech
