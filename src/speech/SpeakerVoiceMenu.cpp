// The menus of the speaker: voices, volume and rate.
#include <algorithm>

#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"
#include "foundation/TextHelpers.h"
#include "platform/Voices.h"
#include "speech/SpeakerVoice.h"

using namespace Qt::StringLiterals;

namespace speech {

namespace {

constexpr QStringView SampleVoice = u"Sample TTS Voice";

}  // namespace

void SpeakerVoice::FillVoiceMenu() {
    if (menu_.size() == 1) {
        FillEntries();
    }
    MarkVoice();
    const auto marked = std::find_if(menu_.begin(), menu_.end(),
                                     [](const VoiceEntry& entry) { return entry.Checked; });
    if (marked != menu_.end()) {
        Voice()->SetVoice(static_cast<int>(marked - menu_.begin()));
    }
}

void SpeakerVoice::FillEntries() {
    const platform::Voice* voice = Voice();
    const QStringList descriptions = voice == nullptr ? QStringList() : voice->Descriptions();
    std::vector<VoiceEntry> entries;
    QString list;
    for (int index = 0; index < descriptions.size(); ++index) {
        const QString& description = descriptions[index];
        if (description.isEmpty() || description == SampleVoice) {
            continue;
        }
        entries.push_back({description, index});
        list += description + u',';
    }
    if (!list.isEmpty()) {
        menu_ = entries;
        ListChoices(list);
    }
}

void SpeakerVoice::ListChoices(const QString& list) {
    const QString present =
        mduLib::FirstListField(mduLib::GetPropertyRaw(u"Speaker Voice"_s, context_.Properties));
    mduLib::PutPropertyRaw(u"Speaker Voice"_s, present + u',' + list,
                           context_.Host.EditProperties());
}

void SpeakerVoice::MarkVoice() {
    const QString chosen = mduLib::GetProperty(u"Speaker Voice"_s, context_.Properties).trimmed();
    for (VoiceEntry& entry : menu_) {
        entry.Checked = entry.Index >= 0 && entry.Caption.trimmed() == chosen;
    }
}

void SpeakerVoice::SetVoiceByMenu(int entry) {
    if (entry < 1 || entry > static_cast<int>(menu_.size()) ||
        menu_[static_cast<std::size_t>(entry - 1)].Index < 0) {
        return;
    }
    const VoiceEntry& chosen = menu_[static_cast<std::size_t>(entry - 1)];
    Voice()->SetVoice(chosen.Index);

    ClockProperties& properties = context_.Host.EditProperties();
    const bool hasChoicesOnly =
        mduLib::GetPropertyRaw(u"Speaker Voice"_s, properties).startsWith(u',');
    if (hasChoicesOnly) {
        mduLib::PutPropertyKeepChoices(u"Speaker Voice"_s, chosen.Caption, properties);
    } else {
        mduLib::PutProperty(u"Speaker Voice"_s, chosen.Caption, properties);
    }
    MarkVoice();
}

void SpeakerVoice::SetVolumeByMenu(const QString& caption) {
    const double volume = mduAPILib::Val(caption);
    if (platform::Voice* voice = Voice()) {
        voice->SetVolume(std::clamp(mduAPILib::RoundToInteger(volume * 10), 0, 100));
    }
    mduLib::PutProperty(u"Speaker Volume"_s, QString::number(volume),
                        context_.Host.EditProperties());
    PrepareSpeaker();
}

void SpeakerVoice::SetRateByMenu(const QString& caption) {
    const int rate = mduAPILib::IntegerValue(caption);
    if (platform::Voice* voice = Voice()) {
        voice->SetRate(rate);
    }
    mduLib::PutProperty(u"Speak Rate"_s, QString::number(rate), context_.Host.EditProperties());
}

}  // namespace speech
