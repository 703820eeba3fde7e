#include "speech/SpeakerVoice.h"

#include <utility>

#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"
#include "platform/SpeechFlags.h"
#include "platform/WallClock.h"

using namespace Qt::StringLiterals;

namespace speech {

using platform::SpeechFlag::PurgeBeforeSpeak;

namespace {

constexpr int IdlePicture = 3;
constexpr int MutedPicture = 4;
constexpr int SpeakingPicture = 5;
constexpr QStringView PurgeText = u".";
constexpr std::size_t MostWaiting = 20;  // texts; many timers may be due together

}  // namespace

platform::Voice* SpeakerVoice::Voice() {
    if (!voice_) {
        voice_ = context_.Services.Speech.MakeVoice();
        if (voice_) {
            voice_->SetOnNews([this] { HearNews(); });
        }
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
    const bool known = voice != nullptr && !voice->Descriptions().isEmpty();
    asked_ = voice != nullptr && !known && voice->IsAsking();
    if (!known && !asked_) {
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

void SpeakerVoice::SpeakMessage(const QString& text, int flags, Urgency urgency) {
    if (urgency == Urgency::Routine && !context_.Host.IsActiveClock()) {
        return;
    }
    if (text.isEmpty() || SpeakerLevel() <= 0) {
        TellNoVoice(text, urgency);
    } else if (!IsSpeaking()) {
        Say({text, flags, urgency});
    } else if (text != PurgeText && waiting_.size() < MostWaiting) {
        waiting_.push_back({text, flags, urgency});
    }
}

void SpeakerVoice::PurgeSpeech(Urgency urgency) {
    SpeakMessage(PurgeText.toString(), PurgeBeforeSpeak, urgency);
}

void SpeakerVoice::FallSilent() {
    waiting_.clear();
    if (std::exchange(saying_, std::nullopt)) {
        voice_->Speak(PurgeText.toString(), PurgeBeforeSpeak);
        context_.Host.SetSpeakerPicture(SpeakerLevel() <= 0 ? MutedPicture : IdlePicture);
    }
}

void SpeakerVoice::SpeakNow(const QString& text) {
    FallSilent();
    failedAt_ = {};
    SpeakMessage(text, PurgeBeforeSpeak, Urgency::Urgent);
}

bool SpeakerVoice::IsResting() const {
    return IsWithinAMinute(failedAt_, context_.Services.Clock.Now());
}

void SpeakerVoice::Say(const Text& text) {
    if (IsResting()) {
        return;
    }
    if (text.Words != PurgeText) {
        context_.Host.SetSpeakerPicture(SpeakingPicture);
    }
    context_.Host.ShowChanges();
    saying_ = text;
    platform::Voice* voice = Voice();
    const bool begun = voice != nullptr &&
                       voice->Speak(text.Words, text.Flags < 1 ? PurgeBeforeSpeak : text.Flags);
    const bool goesOn = begun && voice->IsSpeaking();
    if (saying_ && !goesOn) {
        End(begun);
    }
}

void SpeakerVoice::End(bool spoken) {
    const Text said = *std::exchange(saying_, std::nullopt);
    if (said.Words == PurgeText) {
        return;
    }
    context_.Host.SetSpeakerPicture(IdlePicture);
    if (spoken) {
        told_.Clear();
        failedAt_ = {};
        return;
    }
    failedAt_ = context_.Services.Clock.Now();
    const QString reason = voice_ ? voice_->LastError() : u"this machine has no voice"_s;
    TellWhy(reason.isEmpty() ? u"the voice failed"_s : reason, said.How);
}

void SpeakerVoice::HearNews() {
    if (saying_ && !voice_->IsSpeaking()) {
        End(voice_->LastError().isEmpty());
        SayWaiting();
        context_.Host.ShowChanges();
    }
    if (asked_ && !voice_->IsAsking()) {
        PrepareSpeaker();
        FillVoiceMenu();
        context_.Host.ShowChanges();
    }
}

void SpeakerVoice::SayWaiting() {
    while (!waiting_.empty() && !saying_) {
        const Text next = waiting_.front();
        waiting_.pop_front();
        SpeakMessage(next.Words, next.Flags, next.How);
    }
}

// The level is 0 on a machine without voices, whatever volume the user has chosen.
void SpeakerVoice::TellNoVoice(const QString& text, Urgency urgency) {
    const double wanted =
        mduAPILib::Val(mduLib::GetProperty(u"Speaker Volume"_s, context_.Properties));
    if (!missing_.isEmpty() && !text.isEmpty() && text != PurgeText && wanted > 0) {
        TellWhy(missing_, urgency);
    }
}

// Patterns speak often: they tell of the first failure only. A timer that is not heard is told of,
// but the countdown of its action speaks each second.
void SpeakerVoice::TellWhy(const QString& reason, Urgency urgency) {
    const bool isUrgent = urgency == Urgency::Urgent;
    const bool known = isUrgent ? told_.IsRecent(reason) : !told_.IsEmpty();
    if (isUrgent || !known) {
        told_.Add(reason);
    }
    if (!known) {
        context_.Host.ShowStatus(u"The clock can't speak: "_s + reason);
    }
}

void SpeakerVoice::ClickSpeaker(SpokenTime& spoken) {
    context_.Host.SetSpeakerPicture(SpeakingPicture);
    FallSilent();
    failedAt_ = {};
    PurgeSpeech(Urgency::Urgent);
    spoken.SpeakTimeNow();
    if (!IsSpeaking()) {
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
