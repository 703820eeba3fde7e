#pragma once

#include "clock/ClockCanvas.h"
#include "clock/ClockData.h"
#include "clock/ClockScreen.h"
#include "clock/ClockWindow.h"
#include "speech/ClockVoice.h"
#include "speech/SpeechContext.h"
#include "timers/TimerContext.h"

namespace clockcore {

/// The clock that timers, messages, actions, voice and music belong to: what they ask of it, it
/// asks of its window, its canvas and each other's.
///
/// It is made before the voice and the music, which are set later.
class ClockHost final : public timers::TimerHost, public speech::SpeechHost {
public:
    /// All that it is given outlives it.
    ClockHost(ClockData& data, mduUILib::ClockControls& controls, ClockWindow& window,
              ClockScreen& screen, ClockCanvas& canvas)
        : data_(data), controls_(controls), window_(window), screen_(screen), canvas_(canvas) {}

    /// Whom texts and sounds of the timers go to. They may go before this does, as soon as nothing
    /// asks any more. Without them nothing is heard.
    void SetSpeech(speech::ClockVoice& voice, speech::ClockMusic& music);

    // What both ask for.
    void ShowStatus(const QString& text) override { screen_.ShowStatus(text); }
    ClockProperties& EditProperties() override { return data_.EditProperties(); }

    // For timers.
    /// A closing clock says nothing more.
    void SpeakMessage(const QString& text, int flags, Urgency urgency) override;
    /// Also while the clock is closing, so that a text under way can be ended.
    void PurgeSpeech(Urgency urgency) override;
    bool IsSpeaking() const override;
    void PlaySound(const QString& path) override;
    void StopMusic() override;
    bool IsClosing() const override { return data_.State == ClockState::Closing; }
    bool IsInSight() const override { return screen_.IsInSight(); }
    /// In device pixels, as wide and as high as the caption is in the label's font.
    void FitLabel(mduUILib::Control& label) override;
    /// Gives the mark its picture, its size for the present surface and its place, in device pixels
    /// of the surface. On another clock than an analogue one the marks run along the bottom edge. On
    /// one that shows nothing, and in a wrapper, the mark stays where it is. A place beside the
    /// surface comes back onto it.
    void PlaceMark(int slot, int spot, int place) override;
    int TimerInterval() const override { return window_.TimerInterval(); }
    void SetTimerInterval(int milliseconds) override { window_.SetTimerInterval(milliseconds); }
    int BackColor() const override { return canvas_.BackColor(); }
    double DevicePixelRatio() const override { return canvas_.Painted().DevicePixelRatio(); }
    int ScaleHeight() const override { return canvas_.Painted().ScaleHeight(); }
    /// In device pixels of the surface. The outline is that of the outer window, in which
    /// the surface lies.
    std::optional<QRectF> RowInOutline(double top, double height, double width) const override;

    // For voice and music.
    /// Whether this clock is the active form and its window the system's active one.
    bool IsActiveClock() const override;
    /// The mark of an action that was clicked shows a speaking one no longer than the voice speaks.
    void SetSpeakerPicture(int number) override;
    void ShowChanges() override { canvas_.ShowChanges(); }

private:
    ClockData& data_;
    mduUILib::ClockControls& controls_;
    ClockWindow& window_;
    ClockScreen& screen_;
    ClockCanvas& canvas_;
    /// Both null until `SetSpeech`.
    speech::ClockVoice* voice_ = nullptr;
    speech::ClockMusic* music_ = nullptr;
};

}  // namespace clockcore
