#include "clock/ClockTick.h"

#include "foundation/Dates.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"
#include "timezones/ZoneArithmetic.h"

using namespace Qt::StringLiterals;

namespace clockcore {

using timers::NormalInterval;

namespace {

constexpr int FirstTickInterval = 10;  // milliseconds
constexpr int StyleRhythm = 10;        // seconds

}  // namespace

QString ClockTimeText(const QDateTime& clockTime) {
    const QTime time = clockTime.time();
    return u"%1 %2:%3:%4"_s.arg(mduAPILib::ShortDate(clockTime.date()))
        .arg(time.hour())
        .arg(time.minute(), 2, 10, QChar(u'0'))
        .arg(time.second(), 2, 10, QChar(u'0'));
}

void ClockTick::Tick() {
    switch (data_.State) {
        case ClockState::Loading:
        case ClockState::Closing:
            break;
        case ClockState::FirstTickDue:
            FirstTick();
            break;
        case ClockState::RedrawRequested:
            Redraw();
            break;
        default:
            NormalTick();
    }
}

void ClockTick::FirstTick() {
    parts_.Window.HideHandShapes();
    parts_.Placement.ApplyWindowState();
    parts_.Background.LoadClockPicture();
    parts_.Overlays.LayOutOverlays();
    parts_.Voice.PrepareSpeaker();
    if (data_.Tag.IsWrapper) {
        FirstTickOfWrapper();
        return;
    }
    parts_.Placement.SetClockCaption();
    parts_.Placement.ApplyWindowRect();
    parts_.Timers.SetTemplate();
    parts_.Timers.LoadTimers(data_.TimerFile);
    parts_.Voice.FillVoiceMenu();
    parts_.Styles.RecordProgramFolder();
    parts_.Face.ApplyWindowBackground();
    parts_.Background.ApplyTransparency();
    parts_.Face.ReadDigitalFormat();
    parts_.Face.PrepareClockFace();
    data_.State = ClockState::Running;
    parts_.Overlays.LoadFlag();
    parts_.Placement.ApplyWindowBorder();
    parts_.Placement.ApplyTitleBar();
    parts_.Background.SetWindowShape();
    RequestRedraw();
    parts_.Placement.ShowClockWindow(true);
    parts_.Window.SetTimerInterval(FirstTickInterval);
    parts_.Menus.FillMenuArrays();
    parts_.Dial.ApplyClockSpecial();
    parts_.Window.SetTimerInterval(NormalInterval);
}

// The state stays as it is: a wrapper repeats these steps on every tick.
void ClockTick::FirstTickOfWrapper() {
    parts_.Face.ApplyWindowBackground();
    if (data_.IsAnalogue()) {
        parts_.Dial.DrawDialNumbers(drawing::DialParts::Numbers);
    }
}

void ClockTick::Redraw() {
    parts_.Window.Cls();
    parts_.Window.LockWindowUpdate(true);
    parts_.Placement.ApplyWindowBorder();
    parts_.Placement.ApplyWindowBorder();  // twice, as ever
    parts_.Placement.ApplyTitleBar();
    if (data_.IsAnalogue()) {
        parts_.Dial.DrawDialNumbers(drawing::DialParts::Numbers);
    }
    const QDateTime clockTime = mduTimeZones::GetClockTime(data_.Zone, clock_.Now());
    parts_.Dial.ShowMinuteSpots(clockTime.time().hour());
    parts_.Overlays.SetSpeakerPosition();
    parts_.Overlays.SetTransparentIconPosition();
    parts_.Window.LockWindowUpdate(false);
    parts_.Background.ApplySurface();
    data_.State = ClockState::Running;
    parts_.Face.DrawClockFace();
}

void ClockTick::NormalTick() {
    RefreshTickValues();
    if (StayTimeIsOver()) {
        parts_.Window.CloseClock();
        return;
    }
    using Step = void (ClockTick::*)();
    constexpr Step steps[] = {&ClockTick::HandleFocus,     &ClockTick::CheckTimers,
                              &ClockTick::CheckSpokenTime, &ClockTick::DrawClockFace,
                              &ClockTick::PlaySounds,      &ClockTick::RunMessage,
                              &ClockTick::Rotate,          &ClockTick::CheckMusic};
    for (const Step step : steps) {
        if (data_.State == ClockState::Closing) {
            return;
        }
        (this->*step)();
    }
}

void ClockTick::CheckTimers() {
    const QDateTime clockTime = mduTimeZones::GetClockTime(data_.Zone, clock_.Now());
    parts_.Timers.CheckTimers(ClockTimeText(clockTime));
}

void ClockTick::CheckSpokenTime() {
    parts_.Spoken.CheckSpokenTime();
}

void ClockTick::DrawClockFace() {
    parts_.Face.DrawClockFace();
}

void ClockTick::RunMessage() {
    parts_.Messages.RunMessage(mduAPILib::ToInt16(parts_.Window.ScaleLeft()),
                               mduAPILib::ToInt16(parts_.Window.ScaleWidth()));
}

void ClockTick::CheckMusic() {
    parts_.Music.CheckMusic();
}

// Once in each second, however often the clock ticks in it.
void ClockTick::Rotate() {
    const QDateTime now = clock_.Now();
    if (rotation_.IsNew(now)) {
        RotateStyle(now.time().second());
        RotateBackground(now.time().second());
    }
}

void ClockTick::RefreshTickValues() {
    if (revisionRead_ == data_.Revision()) {
        return;
    }
    revisionRead_ = data_.Revision();
    parts_.Timers.ReadKeys();
    stayTime_ = mduAPILib::Val(mduLib::GetPropertyRaw(u"Stay Time"_s, data_.Properties()));
    autoBackground_ = mduAPILib::IntegerValue(
        mduLib::GetProperty(u"Auto Background Display"_s, data_.Properties()));
}

bool ClockTick::StayTimeIsOver() const {
    return !module_.CommandLine.isEmpty() && stayTime_ > 0 && !data_.Tag.IsWrapper &&
           static_cast<double>(data_.StartTime.secsTo(clock_.Now())) > stayTime_;
}

// Returns the tick to its normal rate after the fast rate of the dial editors.
void ClockTick::HandleFocus() {
    const ClockWindow& window = parts_.Window;
    const bool active = window.IsActiveForm() && (window.IsMDIChild() || window.IsActiveWindow());
    if (active && !data_.ActiveEditFlag && window.IsEnabled()) {
        return;
    }
    if (data_.ActiveEditFlag && active && window.IsEnabled()) {
        if (data_.IsAnalogue()) {
            parts_.Dial.DrawDialNumbers(drawing::DialParts::Numbers);
        }
    } else if (window.TimerInterval() != NormalInterval) {
        parts_.Window.SetTimerInterval(NormalInterval);
    }
}

// Only a clock without a shell sounds the hour and the seconds.
void ClockTick::PlaySounds() {
    if (parts_.Window.TimerInterval() != NormalInterval || parts_.Window.IsMDIChild()) {
        return;
    }
    if (!parts_.Sounds.PlayHourSound()) {
        parts_.Sounds.PlaySecondSound();
    }
}

void ClockTick::RotateStyle(int localSecond) {
    if (data_.AutoStyleChange && localSecond % StyleRhythm == 0) {
        parts_.Styles.ApplyNextStyle();
    }
}

void ClockTick::RotateBackground(int localSecond) {
    if (autoBackground_ > 0 && localSecond % autoBackground_ == 0) {
        parts_.Background.ShowAutoBackground();
    }
}

void ClockTick::RequestRedraw() {
    if (data_.IsAnalogue()) {
        parts_.Overlays.SetSunMoon();
    }
    if (data_.IsDigital()) {
        parts_.Digital.SetDigitalLayout();
    }
    if (data_.IsCalculator()) {
        parts_.Calculator.SetCalculatorLayout();
    }
    parts_.Timers.PlaceTimerMarks();
    data_.State = ClockState::RedrawRequested;
}

}  // namespace clockcore
