#pragma once

#include <QStringList>
#include <memory>
#include <vector>

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
/// while it is 0 or less. A text that was to be heard and could not be spoken is told to the host,
/// each reason about once a minute at most; a pattern's only where none has been told since a text
/// was last spoken.
class SpeakerVoice final : public ClockVoice {
public:
    explicit SpeakerVoice(const SpeechContext& context)
        : context_(context), menu_(1), told_(context.Services.Clock) {}

    /// Sets the mark and the level from the properties; without a voice the mark hides and the
    /// level is "0".
    void PrepareSpeaker() override;

    /// Lists the machine's voices in the menu and as choices of "Speaker Voice", and takes the one
    /// that this names. The voice taken is counted by the place in the menu, so a voice that the
    /// menu leaves out shifts those behind it by one.
    void FillVoiceMenu() override;

    /// Speaks a text and comes back when it has been spoken. Without @p force only the active clock
    /// speaks. @p flags below 1 mean 2: what is being said is cut off first.
    void SpeakMessage(const QString& text, int flags, bool force) override;

    /// Cuts off what is being said, with a text of "." that can't be heard.
    void PurgeSpeech(bool force) override;

    /// A click with the left button on the mark.
    void ClickSpeaker(SpokenTime& spoken);

    /// The menu of voices, first entry first. There is always one entry, though it may be empty.
    const std::vector<VoiceEntry>& VoiceMenu() const { return menu_; }

    void SetVoiceByMenu(int entry);                ///< an entry of the menu of voices, from 1
    void SetVolumeByMenu(const QString& caption);  ///< "8" sets 80; held between 0 and 100
    void SetRateByMenu(const QString& caption);    ///< "-4" sets -4

    /// What the mark's hint tells: a line for each setting.
    QString HintText() const;

    /// Whether a text is being spoken. The event loop runs meanwhile; the clock may be closed in
    /// it, and whoever called must then leave it alone.
    bool IsSpeaking() const { return speaking_ > 0; }

private:
    platform::Voice* Voice();
    double SpeakerLevel() const;
    void FillEntries();
    void ListChoices(const QString& list);
    void MarkVoice();
    void Utter(const QString& text, int flags, bool force);
    void TellNoVoice(const QString& text, bool force);
    void TellWhy(const QString& reason, bool force);

    SpeechContext context_;
    std::unique_ptr<platform::Voice> voice_;  ///< made when first needed
    std::vector<VoiceEntry> menu_;
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);  ///< watched over while speaking
    ToldReasons told_;                                            ///< since a text was last spoken
    QString missing_;   ///< why the machine has no voices; empty when it has
    int speaking_ = 0;  ///< texts under way; a click can start one within another
};

}  // namespace speech
