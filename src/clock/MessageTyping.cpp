#include "clock/MessageTyping.h"

#include <algorithm>

#include "foundation/Dates.h"
#include "timers/SystemActions.h"
#include "timers/TimerFile.h"
#include "timezones/ZoneArithmetic.h"
#include "timezones/ZoneConversion.h"

using namespace Qt::StringLiterals;

namespace clockcore {

namespace {

// In logical pixels.
constexpr double BesideTheBox = 100;  // of the face's width
constexpr double LeastWidth = 140;
constexpr double LeastRow = 70;  // of an outline; a narrower one is looked for further up
constexpr double BoxHeight = 26;
constexpr double BelowTheBox = 4;

constexpr qint64 SecondsOfDay = 86'400;
constexpr qint64 SecondsOfHalfDay = SecondsOfDay / 2;

// The times that a new timer is offered follow the calculated one, and may lie behind midnight.
QDateTime MomentOf(const QTime& time, const QDateTime& calculated) {
    const QDateTime moment(calculated.date(), time, Qt::UTC);
    return moment.secsTo(calculated) > SecondsOfHalfDay ? moment.addDays(1) : moment;
}

bool HasNoAction(const timers::ClockTimer& timer) {
    return timer.TimerAction.isEmpty() || timer.TimerAction == timers::ActionText::None;
}

}  // namespace

void MessageTyping::OpenMessageBox(int slot, Timer timer) {
    FinishMessage();
    if (slot < 1 || slot > parts_.Timers.SlotCount() || !parts_.Timers.Timer(slot).OnDial) {
        return;
    }
    const timers::ClockTimer& record = parts_.Timers.Timer(slot);
    slot_ = slot;
    time_ = record.TimerTime;
    isNew_ = timer == Timer::New;
    BeginMessageMode();
    data_.ActiveEditFlag = true;
    parts_.Controls.txtMsg(slot).Visible = true;
    parts_.View.Open({Place(slot), record.Message, record.MessageColour});
}

void MessageTyping::Type(const QString& text) {
    if (IsThere()) {
        timers::ClockTimer timer = parts_.Timers.Timer(slot_);
        timer.Message = timers::OnOneLine(text);
        parts_.Timers.ChangeTimer(slot_, timer);
    }
}

void MessageTyping::Escape() {
    if (IsThere() && parts_.Timers.Timer(slot_).Message.isEmpty()) {
        Remove();
    } else {
        FinishMessage();
    }
}

bool MessageTyping::Delete() {
    if (!IsThere()) {
        return false;
    }
    const timers::ClockTimer& timer = parts_.Timers.Timer(slot_);
    if (!timer.Message.isEmpty() || !HasNoAction(timer)) {
        return false;
    }
    Remove();
    return true;
}

void MessageTyping::Remove() {
    if (!isNew_) {
        parts_.Timers.Log(timers::TimerHappening::Removed, slot_);
    }
    parts_.Timers.ClearTimerSlot(slot_);
    FinishMessage();
}

void MessageTyping::FinishMessage() {
    if (slot_ == 0) {
        return;
    }
    const bool isThere = IsThere();
    const int slot = slot_;
    CloseBox();
    const std::optional<QDateTime> calculated = EndMessageMode();
    if (isThere) {
        Settle(slot, calculated);
    }
    parts_.Timers.SaveTimer(data_.TimerFile);
    parts_.Canvas.ShowChanges();
}

void MessageTyping::Settle(int slot, const std::optional<QDateTime>& calculated) {
    const timers::ClockTimer timer = parts_.Timers.Timer(slot);
    if (isNew_) {
        parts_.Timers.Log(timers::TimerHappening::Set, slot);
    }
    if (calculated && ClockTime().secsTo(*calculated) > SecondsOfDay) {
        DeferTo(slot, *calculated);
        TellLoss(timer, parts_.Timers.DeferredTimerLines().last());
    } else {
        parts_.Timers.PlaceTimerMark(slot, timer.TimerTime);
        KeepDay(slot, calculated);
        TellLoss(timer);
    }
}

// The calculator tells the day as well.
void MessageTyping::KeepDay(int slot, const std::optional<QDateTime>& calculated) {
    const QString& text = parts_.Timers.Timer(slot).TimerTime;
    const std::optional<QTime> time = timers::TimeOfText(text, ClockTime().date().year());
    const bool ahead = calculated && time && MomentOf(*time, *calculated) >= ClockTime();
    if (isNew_ && ahead) {
        parts_.Timers.SetMoment(slot, MomentOf(*time, *calculated));
    }
}

void MessageTyping::TellLoss(const timers::ClockTimer& timer) {
    TellLoss(timer, timers::TimerLineText(timer, ClockTime()));
}

void MessageTyping::TellLoss(const timers::ClockTimer& timer, const QString& line) {
    const QString lost = timers::WhatIsLost(timer, line, ClockTime().date().year());
    if (!lost.isEmpty()) {
        parts_.Host.ShowStatus(lost);
    }
}

void MessageTyping::DeferTo(int slot, const QDateTime& calculated) {
    const QString time = parts_.Timers.Timer(slot).TimerTime;
    const auto timeOfDay = timers::TimeOfText(time, calculated.date().year());
    const QDate date =
        isNew_ && timeOfDay ? MomentOf(*timeOfDay, calculated).date() : calculated.date();
    parts_.Timers.DeferTimer(slot, date);
    parts_.Host.ShowStatus(u"The timer is kept for %1 %2"_s.arg(mduAPILib::ShortDate(date), time));
}

void MessageTyping::Follow() {
    if (slot_ == 0) {
        return;
    }
    if (IsThere()) {
        parts_.View.Move(Place(slot_));
    } else {
        CloseBox();
        EndMessageMode();
        parts_.Canvas.ShowChanges();
    }
}

QRectF MessageTyping::Place(int slot) const {
    const drawing::Surface& surface = parts_.Canvas.Surface();
    const double ratio = surface.DevicePixelRatio();
    const double face = surface.ScaleWidth();
    const double width = std::min(face, std::max(face - BesideTheBox * ratio, LeastWidth * ratio));
    const double height = std::min(BoxHeight * ratio, double(surface.ScaleHeight()));
    const QRectF mark = parts_.Controls.imgTimer(slot).Rect();
    const bool atMark = data_.Is(ClockKind::Analogue);
    const double top =
        atMark ? mark.top() : surface.ScaleHeight() - mark.height() - height - BelowTheBox * ratio;
    const double left = atMark ? mark.left() : (face - width) / 2;
    QRectF place(left, top, width, height);
    place.moveLeft(std::clamp(left, 0.0, face - width));
    place.moveTop(std::clamp(top, 0.0, surface.ScaleHeight() - height));
    auto row = parts_.Host.RowInOutline(place.top(), height, width);
    if (row && row->width() < LeastRow * ratio) {
        row = parts_.Host.RowInOutline(0, height, LeastRow * ratio);
    }
    if (row) {
        place.setWidth(std::min(width, row->width()));
        place.moveTop(row->top());
        place.moveLeft(std::max(row->left(), std::min(place.left(), row->right() - place.width())));
    }
    return place;
}

bool MessageTyping::IsThere() const {
    return slot_ != 0 && parts_.Timers.Timer(slot_).OnDial &&
           parts_.Timers.Timer(slot_).TimerTime == time_;
}

void MessageTyping::CloseBox() {
    parts_.Controls.txtMsg(slot_).Visible = false;
    slot_ = 0;
    data_.ActiveEditFlag = false;
    parts_.View.Close();
}

void MessageTyping::BeginMessageMode() {
    if (data_.Is(ClockKind::Calculator) || data_.Is(ClockKind::CalculatorInput)) {
        data_.Tag.Kind = ClockKind::CalculatorMessage;
    }
}

// The moment that the calculator stood at; nothing where it was no moment, and on another clock.
std::optional<QDateTime> MessageTyping::EndMessageMode() {
    if (!data_.Is(ClockKind::CalculatorMessage)) {
        return std::nullopt;
    }
    auto calculated =
        mduTimeZones::MomentOfText(parts_.Controls.lblTimeOutput(1).Tag, parts_.Clock.Now());
    data_.Tag.Kind = ClockKind::Calculator;
    parts_.Controls.lblLocation(1).Caption = data_.Zone.CurrentName;  // typing may have changed it
    parts_.Calculator.SetCalculatorClock(drawing::CalculatorTexts::PresentTime);
    return calculated;
}

QDateTime MessageTyping::ClockTime() const {
    return mduTimeZones::GetClockTime(data_.Zone, parts_.Clock.Now());
}

}  // namespace clockcore
