#include "timers/ClockMessages.h"

#include <algorithm>
#include <utility>

#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"
#include "foundation/Twips.h"
#include "timers/TimerFile.h"

using namespace Qt::StringLiterals;

namespace timers {

namespace {

constexpr int MovingInterval = 100;  // milliseconds
constexpr double EatenStep = 15;     // twips
constexpr double FaceMargin = 15;
constexpr double TopOfFace = 0.04;  // of the face's height
constexpr double FontOfFace = 0.035;
constexpr double SmallestFont = 8;     // points
constexpr double LongestStep = 32767;  // twips
constexpr qint64 HalfDaySeconds = 43'200;

/// The units of the character at a place: two beyond the basic plane, none behind the end.
qsizetype CharacterLength(const QString& text, qsizetype place) {
    if (place >= text.size()) {
        return 0;
    }
    return text[place].isHighSurrogate() && place + 1 < text.size() ? 2 : 1;
}

}  // namespace

ClockMessages::ClockMessages(const TimerContext& context,
                             std::function<void(const QString&)> runAction)
    : context_(context), runAction_(std::move(runAction)) {}

void ClockMessages::ShowMessage(const QString& text) {
    pendingMessage_ = QString(text).replace(u"\r\n"_s, u" "_s).trimmed();
    messageCursor_ = 0;
    mduUILib::Control& label = context_.Controls.lblMsg(1);
    label.Caption.clear();
    label.Left = 0;
    label.Top = MessageTop();
    label.Visible = true;
    SetLabelFont(label);
    if (!pendingMessage_.isEmpty()) {
        Tell(MessageEvent::Shows, pendingMessage_);
        context_.Host.ShowStatus(pendingMessage_);
    }
}

void ClockMessages::SetMessageColour(int colour) {
    context_.Controls.lblMsg(1).ForeColor = colour;
}

void ClockMessages::SetMessageExpiry(const QDateTime& clockTime, int minutes) {
    messageExpiry_ = minutes <= 0 ? u"0"_s : HourMinute(clockTime.addSecs(60LL * minutes).time());
}

void ClockMessages::RunMessage(int left, int width) {
    left_ = left;
    width_ = width;
    const QDateTime clockTime = context_.ClockTime();
    Expire(clockTime);
    if (IsCountingDown()) {
        CountDown(clockTime);
    } else {
        CancelAction();
    }
    if (context_.Host.IsClosing()) {
        return;
    }
    if (pendingMessage_.isEmpty()) {
        EndMessage();
    } else {
        MoveMessage();
    }
}

void ClockMessages::HideMessage() {
    pendingMessage_.clear();
    EndMessage();
}

// An expiry in the hour that is written "00" never comes: its leading number is 0.
void ClockMessages::Expire(const QDateTime& clockTime) {
    const QString now = HourMinute(clockTime.time());
    const QString later = HourMinute(clockTime.addSecs(HalfDaySeconds).time());
    if (mduAPILib::Val(messageExpiry_) > 0 && (messageExpiry_ == now || messageExpiry_ == later)) {
        pendingMessage_.clear();
        HideLabel();
    }
}

void ClockMessages::HideLabel() {
    mduUILib::Control& label = context_.Controls.lblMsg(1);
    label.Caption.clear();
    if (std::exchange(label.Visible, false)) {
        Tell(MessageEvent::Hides);
    }
}

void ClockMessages::EndMessage() {
    HideLabel();
    SetPace();
}

// The fast pace is for the eye alone. Another than these two was set by somebody else.
void ClockMessages::SetPace() {
    TimerHost& host = context_.Host;
    const bool moves = !pendingMessage_.isEmpty() && host.IsInSight();
    if (moves && host.TimerInterval() != MovingInterval) {
        host.SetTimerInterval(MovingInterval);
    } else if (!moves && host.TimerInterval() == MovingInterval) {
        host.SetTimerInterval(NormalInterval);
    }
}

void ClockMessages::MoveMessage() {
    SetPace();
    TypeNextCharacter();
    mduUILib::Control& label = context_.Controls.lblMsg(1);
    context_.Host.FitLabel(label);
    StepLeft();
    if (messageCursor_ == pendingMessage_.size() && label.Caption.isEmpty()) {
        RestartFromTheRight();
    }
}

void ClockMessages::TypeNextCharacter() {
    const qsizetype length = CharacterLength(pendingMessage_, messageCursor_);
    context_.Controls.lblMsg(1).Caption += pendingMessage_.mid(messageCursor_, length);
    messageCursor_ += static_cast<int>(length);
}

void ClockMessages::StepLeft() {
    mduUILib::Control& label = context_.Controls.lblMsg(1);
    if (label.Left > 0) {
        const double speed =
            mduAPILib::Val(mduLib::GetProperty(u"Message Display Speed"_s, context_.Properties));
        label.Left -= Pixels(std::clamp(speed, 1.0, LongestStep));
        return;
    }
    if (!label.Caption.trimmed().isEmpty()) {
        label.Left += Pixels(EatenStep);
        label.Caption.remove(0, CharacterLength(label.Caption, 0));
    }
    if (label.Caption.trimmed().isEmpty()) {
        RestartFromTheRight();
    }
}

void ClockMessages::RestartFromTheRight() {
    messageCursor_ = 0;
    mduUILib::Control& label = context_.Controls.lblMsg(1);
    label.Caption = u"  "_s;
    label.Left = static_cast<float>(left_ + width_) - 2 * Pixels(FaceMargin);
}

void ClockMessages::Tell(MessageEvent event, const QString& text) const {
    if (watcher_) {
        watcher_(event, text);
    }
}

void ClockMessages::SetLabelFont(mduUILib::Control& label) const {
    const double height = context_.Host.ScaleHeight() / context_.Host.DevicePixelRatio();
    label.Font = QFont(u"Arial"_s);
    label.Font.setPointSizeF(std::max(SmallestFont, FontOfFace * height));
}

float ClockMessages::MessageTop() const {
    return static_cast<float>(context_.Host.ScaleHeight() * TopOfFace);
}

float ClockMessages::Pixels(double twips) const {
    return static_cast<float>(twips / TwipsPerPixel * context_.Host.DevicePixelRatio());
}

}  // namespace timers
