#include "clock/ClockHost.h"

#include <algorithm>

#include "drawing/LabelText.h"
#include "drawing/SeenArea.h"
#include "drawing/StockPictures.h"
#include "drawing/TimerMarks.h"

namespace clockcore {

void ClockHost::SetSpeech(speech::ClockVoice& voice, speech::ClockMusic& music) {
    voice_ = &voice;
    music_ = &music;
}

void ClockHost::SpeakMessage(const QString& text, int flags, Urgency urgency) {
    if (voice_ != nullptr && !IsClosing()) {
        voice_->SpeakMessage(text, flags, urgency);
    }
}

void ClockHost::PurgeSpeech(Urgency urgency) {
    if (voice_ != nullptr) {
        voice_->PurgeSpeech(urgency);
    }
}

bool ClockHost::IsSpeaking() const {
    return voice_ != nullptr && voice_->IsSpeaking();
}

void ClockHost::PlaySound(const QString& path) {
    if (music_ != nullptr) {
        music_->PlaySound(path);
    }
}

void ClockHost::StopMusic() {
    if (music_ != nullptr) {
        music_->StopMusic();
    }
}

void ClockHost::FitLabel(mduUILib::Control& label) {
    drawing::AutoSize(label, DevicePixelRatio());
}

void ClockHost::PlaceMark(int slot, int spot, int place) {
    mduUILib::Control& mark = controls_.imgTimer(slot);
    const drawing::Surface& surface = canvas_.Painted();
    const double side = drawing::TimerMarkSide(surface);
    const QPointF at = drawing::TimerMarkPlace(
        surface, data_.Properties(), data_.Is(ClockKind::Analogue), spot, place, {side, side});
    mark.Picture = drawing::GetStockPicture(drawing::StockPicture::TimerMark);
    mark.Width = mark.Height = static_cast<float>(side);
    if (data_.Tag.IsWrapper || data_.Is(ClockKind::None)) {
        return;
    }
    // A mark that nobody can reach could not be changed any more.
    const double right = std::max(0.0, surface.ScaleWidth() - side);
    const double bottom = std::max(0.0, surface.ScaleHeight() - side);
    mark.Left = static_cast<float>(std::clamp(at.x(), 0.0, right));
    mark.Top = static_cast<float>(std::clamp(at.y(), 0.0, bottom));
}

std::optional<QRectF> ClockHost::RowInOutline(double top, double height, double width) const {
    const drawing::Surface& surface = canvas_.Painted();
    const QRect whole(0, 0, surface.ScaleWidth(), surface.ScaleHeight());
    const drawing::SeenArea seen(canvas_.Outline().translated(-canvas_.SurfaceOffset()) & whole);
    return seen.RowFor(top, height, width);
}

bool ClockHost::IsActiveClock() const {
    return window_.IsActiveForm() && window_.IsActiveWindow();
}

void ClockHost::SetSpeakerPicture(int number) {
    const auto picture = static_cast<drawing::StockPicture>(number);
    controls_.imgSpeaker(1).Picture = drawing::GetStockPicture(picture);
    if (picture != drawing::StockPicture::SpeakerTalking) {
        controls_.imgAction(1).Picture = drawing::GetStockPicture(drawing::StockPicture::Action);
    }
}

}  // namespace clockcore
