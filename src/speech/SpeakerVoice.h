#pragma once

#include <QStringList>
#include <deque>
#include <memory>
#include <optional>
#include <vector>

#include "platform/Voices.h"
#include "speech/ClockVoice.h"
#include "speech/SpeechContext.h"
#include "speech/ToldReasons.h"

namespace speech {

/// One entry of the menu of voices.
struct VoiceEntry {
    QString Caption;  ///< the voice's description
    int Index = -1;   ///< of the voice among those of the machine; -1 in an empty entry
    bool Checked = false;
    bool operator==(const VoiceEntry&) const = default;
};

/// The voice of one clock, with its menu and the state of the speaker mark.
///
/// `imgSpeaker(1).Tag` holds the speaker's level, the value of "Speaker Volume"; nothing is spoken
/// while it is 0 or less. Nobody waits for the voice: a text that comes while another is being
/// spoken has its turn behind it. A voice that has failed rests for a minute, and what is to be
/// said in it is passed over; a click tries at once.
///
/// A text that was to be heard and could not be spoken is told to the host, each reason once for as
/// long as it comes back within five minutes; a pattern's only where none has been told since a
/// text was last spoken.
class SpeakerVoice final : public ClockVoice {
public:
    explicit SpeakerVoice(const SpeechContext& context)
        : context_(context), menu_(1), told_(context.Services.Clock) {}

    /// Sets the mark and the level from the properties; without a voice the mark hides and the
    /// level is "0". A machine that is still to tell its voices counts as one that has some; when
    /// it has told them, mark and menu are set anew.
    void PrepareSpeaker() override;

    /// Lists the machine's voices in the menu and as choices of "Speaker Voice", and takes the one
    /// that this names. The voice taken is counted by the place in the menu, so a voice that the
    /// menu leaves out shifts those behind it by one.
    void FillVoiceMenu() override;

    /// Speaks a text, or puts it behind what is being spoken. A routine one is spoken by the
    /// active clock alone. @p flags below 1 mean 2: what is being said is cut off first.
    void SpeakMessage(const QString& text, int flags, Urgency urgency) override;

    /// Cuts off what is being said, with a text of "." that can't be heard. It has its turn behind
    /// what this clock says itself, which it so leaves whole; see `FallSilent`.
    void PurgeSpeech(Urgency urgency) override;

    /// Cuts off what this clock is saying and forgets what it has still to say.
    void FallSilent();

    /// Speaks a text on a click: at once, and after a failure, too.
    void SpeakNow(const QString& text);

    /// A click with the left button on the mark.
    void ClickSpeaker(SpokenTime& spoken);

    /// The menu of voices, first entry first. There is always one entry, though it may be empty.
    const std::vector<VoiceEntry>& VoiceMenu() const { return menu_; }

    void SetVoiceByMenu(int entry);                ///< an entry of the menu of voices, from 1
    void SetVolumeByMenu(const QString& caption);  ///< "8" sets 80; held between 0 and 100
    void SetRateByMenu(const QString& caption);    ///< "-4" sets -4

    /// What the mark's hint tells: a line for each setting.
    QString HintText() const;

    bool IsSpeaking() const override { return saying_.has_value(); }

private:
    platform::Voice* Voice();
    double SpeakerLevel() const;
    void FillEntries();
    void ListChoices(const QString& list);
    void MarkVoice();
    struct Text {
        QString Words;
        int Flags = 0;
        Urgency How = Urgency::Routine;
    };
    bool IsResting() const;
    void Say(const Text& text);
    void End(bool spoken);
    void HearNews();
    void SayWaiting();
    void TellNoVoice(const QString& text, Urgency urgency);
    void TellWhy(const QString& reason, Urgency urgency);

    SpeechContext context_;
    std::vector<VoiceEntry> menu_;
    ToldReasons told_;            ///< since a text was last spoken
    QString missing_;             ///< why the machine has no voices; empty when it has
    bool asked_ = false;          ///< the machine is still to tell its voices
    std::optional<Text> saying_;  ///< the text that is being spoken
    std::deque<Text> waiting_;    ///< those behind it
    QDateTime failedAt_;          ///< when the voice failed last; invalid after it has spoken
    std::unique_ptr<platform::Voice> voice_;  ///< made when first needed
};

}  // namespace speech
