// What timers, messages, actions and speech ask of their clock.
#include "clock/ui/frmTempolark.h"
#include "drawing/LabelText.h"
#include "drawing/SeenArea.h"
#include "drawing/StockPictures.h"
#include "drawing/TimerMarks.h"

using namespace Qt::StringLiterals;
using clockcore::ClockState;

// The message and the action move after the face has been painted.
void frmTempolark::Tick() {
    tick_.Tick();
    if (data_.State == ClockState::Running) {
        ShowChanges();
    }
}

void frmTempolark::SetTimerInterval(int milliseconds) {
    if (intervalWatcher_ && timClock_->Interval() != milliseconds) {
        intervalWatcher_(milliseconds);
    }
    timClock_->SetInterval(milliseconds);
}

void frmTempolark::SpeakMessage(const QString& text, int flags, bool force) {
    if (!IsClosing()) {
        voice_.SpeakMessage(text, flags, force);
    }
}

void frmTempolark::FitLabel(mduUILib::Control& label) {
    drawing::AutoSize(label, surface_->DevicePixelRatio());
}

void frmTempolark::PlaceMark(int slot, int spot, int place) {
    mduUILib::Control& mark = controls_.imgTimer(slot);
    const double side = drawing::TimerMarkSide(*surface_);
    const QPointF at = drawing::TimerMarkPlace(*surface_, data_.Properties(),
                                               data_.Is(clockcore::ClockKind::Analogue), spot,
                                               place, {side, side});
    mark.Picture = drawing::GetStockPicture(drawing::StockPicture::TimerMark);
    mark.Width = mark.Height = static_cast<float>(side);
    mark.Left = static_cast<float>(at.x());
    mark.Top = static_cast<float>(at.y());
}

std::optional<QRectF> frmTempolark::RowInOutline(double top, double height, double width) const {
    const QRect surface(0, 0, surface_->ScaleWidth(), surface_->ScaleHeight());
    const drawing::SeenArea seen(outline_.translated(-SurfaceOffset()) & surface);
    return seen.RowFor(top, height, width);
}

bool frmTempolark::IsActiveClock() const {
    return IsActiveForm() && QWidget::isActiveWindow();
}

// The mark of an action that was clicked speaks no longer than the voice.
void frmTempolark::SetSpeakerPicture(int number) {
    const auto picture = static_cast<drawing::StockPicture>(number);
    controls_.imgSpeaker(1).Picture = drawing::GetStockPicture(picture);
    if (picture != drawing::StockPicture::SpeakerTalking) {
        controls_.imgAction(1).Picture = drawing::GetStockPicture(drawing::StockPicture::Action);
    }
}
