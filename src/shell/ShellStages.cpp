#include "shell/ShellStages.h"

using namespace Qt::StringLiterals;

namespace shell {

namespace {

constexpr int FirstInterval = 1;   // milliseconds: the first tick comes when the window stands
constexpr int BusyInterval = 400;  // while the message line holds something
constexpr int IdleInterval = 10000;

}  // namespace

ShellStages::ShellStages(platform::WallClock& clock, Hooks hooks)
    : clock_(clock),
      hooks_(std::move(hooks)),
      timerCtrl_(clock.MakeTicker([this] { TimerCtrl(); })) {}

void ShellStages::Start() {
    timerCtrl_->SetInterval(FirstInterval);
}

void ShellStages::TimerCtrl() {
    switch (shellStage_) {
        case 2:
            FirstTick();
            break;
        case 3:
            hooks_.SecondTick();
            shellStage_ = 1;
            timerCtrl_->SetInterval(BusyInterval);
            break;
        default:
            MessageTick();
    }
}

void ShellStages::FirstTick() {
    shellStage_ = 3;
    hooks_.FirstTick();
    timerCtrl_->SetInterval(BusyInterval);
    ShowTime();
}

void ShellStages::MessageTick() {
    if (status_.Panel().isEmpty()) {
        hooks_.ShowEye(0);
        timerCtrl_->SetInterval(IdleInterval);
    } else {
        timerCtrl_->SetInterval(BusyInterval);
        status_.Tick();
        const QTime now = clock_.Now().time();
        if (eye_.AnimateEye(now.msecsSinceStartOfDay() / 10)) {
            hooks_.ShowEye(eye_.EyeFrame());
        }
    }
    hooks_.ShowMessage(status_.Panel());
    ShowTime();
}

void ShellStages::ShowTime() const {
    hooks_.ShowTime(clock_.Now().time().toString(u"hh:mm"_s));
}

void ShellStages::ShowStatusMsg(const QString& text) {
    status_.ShowStatusMsg(text);
    hooks_.ShowMessage(status_.Panel());
    // During the start the stages keep their own pace.
    if (shellStage_ == 1 && !status_.Panel().isEmpty()) {
        timerCtrl_->SetInterval(BusyInterval);
    }
}

void ShellStages::ClearMessages() {
    status_.Clear();
    hooks_.ShowMessage({});
}

}  // namespace shell
