#include "clock/DialTimers.h"

#include "timers/TimerFile.h"

namespace clockcore {

ChosenTimer DialTimers::Choose(int slot) const {
    const bool isSlot = slot >= 1 && slot <= parts_.Timers.SlotCount();
    return isSlot ? ChosenTimer{slot, parts_.Timers.Timer(slot)} : ChosenTimer{};
}

bool DialTimers::IsThere(const ChosenTimer& chosen) const {
    return chosen.Slot != 0 && chosen.Timer.OnDial && data_.State != ClockState::Closing &&
           parts_.Timers.Timer(chosen.Slot) == chosen.Timer;
}

void DialTimers::SetNewTimer(const QString& time) {
    if (data_.State == ClockState::Closing) {
        return;
    }
    const int slot = parts_.Timers.SetNewTimer(time);
    parts_.Typing.OpenMessageBox(slot, MessageTyping::Timer::New);
    Save();
}

void DialTimers::EditMessage(const ChosenTimer& chosen) {
    if (IsThere(chosen)) {
        parts_.Typing.OpenMessageBox(chosen.Slot);
    }
}

void DialTimers::Change(const ChosenTimer& chosen,
                        const std::function<void(timers::ClockTimer&)>& change) {
    if (IsThere(chosen)) {
        timers::ClockTimer timer = chosen.Timer;
        change(timer);
        parts_.Timers.ChangeTimer(chosen.Slot, timer);
        Save();
        parts_.Typing.TellLoss(timer);
    }
}

void DialTimers::ChangeText(const ChosenTimer& chosen, QString timers::ClockTimer::*field,
                            const QString& text) {
    if (timers::CanBeKept(text)) {
        Change(chosen, [field, text](timers::ClockTimer& timer) { timer.*field = text; });
    } else if (IsThere(chosen)) {
        parts_.Host.ShowStatus(timers::NotKept(text));
    }
}

void DialTimers::ChangeTime(const ChosenTimer& chosen, const QString& time) {
    if (IsThere(chosen)) {
        parts_.Timers.PlaceTimerMark(chosen.Slot, time);
        Save();
        parts_.Timers.Log(timers::TimerHappening::Set, chosen.Slot);
        parts_.Typing.TellLoss(parts_.Timers.Timer(chosen.Slot));
    }
}

void DialTimers::ChangeDialTime(const ChosenTimer& chosen, const QString& time) {
    ChangeTime(chosen, parts_.Timers.PickedTime(time));
}

void DialTimers::Remove(const ChosenTimer& chosen) {
    if (IsThere(chosen)) {
        parts_.Timers.Log(timers::TimerHappening::Removed, chosen.Slot);
        parts_.Timers.ClearTimerSlot(chosen.Slot);
        parts_.Typing.Follow();
        Save();
    }
}

void DialTimers::Save() {
    parts_.Timers.SaveTimer(data_.TimerFile);
    parts_.Canvas.ShowChanges();
}

}  // namespace clockcore
