#include <algorithm>
#include <utility>

#include "foundation/Dates.h"
#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"
#include "timers/ClockMessages.h"

using namespace Qt::StringLiterals;

/// The action channel of `ClockMessages`: how an action counts down and runs.
namespace timers {

namespace {

constexpr int White = 0xFFFFFF;
constexpr int Gap = 4;                      // logical pixels between the mark and its label
constexpr qint64 LongestCountdown = 32767;  // seconds that a 16-bit number can tell

/// A 16-bit number as it is spoken and shown: a blank in front of all but negative ones.
QString SignedText(qint64 number) {
    return (number < 0 ? QString() : u" "_s) + QString::number(number);
}

/// A program is shown by its file name.
QString ShownAction(const QString& action) {
    const bool path = action.contains(u'\\') || action.contains(u'/');
    return path ? action.mid(std::max(action.lastIndexOf(u'\\'), action.lastIndexOf(u'/')) + 1)
                : action;
}

// The first entry that holds the action's text is the one that is found.
QString WithActionColour(const QString& colours, const QString& action, const QString& colour) {
    QStringList entries = colours.split(u',', Qt::SkipEmptyParts);
    const QString head = action + u':';
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&](const QString& entry) { return entry.contains(action); });
    if (found == entries.end()) {
        entries += head + colour;
    } else if (found->startsWith(head)) {
        *found = head + colour;
    } else {
        entries.prepend(head + colour);
    }
    return entries.join(u',');
}

}  // namespace

bool ClockMessages::StartCountdown(const QDateTime& clockTime, int minutes) {
    return CountDownTo(clockTime.addSecs(60LL * minutes));
}

bool ClockMessages::CountDownTo(const QDateTime& deadline) {
    mduUILib::Control& label = context_.Controls.lblActionMsg(1);
    if (pendingAction_.isEmpty() || pendingAction_ == "None"_L1 || label.Visible) {
        return false;
    }
    label.Caption.clear();
    SetActionCaption(ShownAction(pendingAction_));
    label.ForeColor = ActionColour();
    SetLabelFont(label);
    actionDeadline_ = mduAPILib::MomentText(deadline);
    ShowActionMarks(true);
    PlaceActionMarks();
    return true;
}

void ClockMessages::PostponeAction(int minutes) {
    MoveDeadline(context_.ClockTime().addSecs(60LL * minutes));
}

void ClockMessages::MoveDeadline(const QDateTime& deadline) {
    if (IsCountingDown()) {
        actionDeadline_ = mduAPILib::MomentText(deadline);
    }
}

void ClockMessages::CancelAction() {
    pendingAction_.clear();
    actionDeadline_.clear();
    ShowActionMarks(false);
}

void ClockMessages::SetActionColour(const QString& colour) {
    if (!IsCountingDown()) {
        return;
    }
    context_.Controls.lblActionMsg(1).ForeColor =
        mduUILib::ColourValue(colour, context_.Services.Random);
    const QString key = u"Message Action Colour"_s;
    const QString colours = mduLib::GetPropertyRaw(key, context_.Properties);
    mduLib::PutPropertyRaw(key, WithActionColour(colours, pendingAction_, colour),
                           context_.Host.EditProperties());
}

bool ClockMessages::IsCountingDown() const {
    return !pendingAction_.isEmpty() && pendingAction_ != "None"_L1 &&
           mduAPILib::ParseMoment(actionDeadline_, 0).has_value();
}

void ClockMessages::CountDown(const QDateTime& clockTime) {
    context_.Host.StopMusic();
    const auto moment = mduAPILib::ParseMoment(actionDeadline_, clockTime.date().year());
    const qint64 left =
        std::clamp(clockTime.secsTo(moment->Moment), -LongestCountdown - 1, LongestCountdown);
    if (mduAPILib::Val(actionDeadline_) != 0) {
        SetActionCaption(pendingAction_ + SignedText(left));
        PlaceActionMarks();
        SpeakNumber(left);
    }
    if (left <= 0 && !context_.Host.IsClosing()) {
        FinishAction();
    }
}

// A number that is not spoken at its second is none: while the voice is busy it is passed over.
void ClockMessages::SpeakNumber(qint64 left) {
    if (!context_.Host.IsSpeaking()) {
        context_.Host.SpeakMessage(SignedText(left), 0, Urgency::Urgent);
    }
}

// Nothing is left to be done by the time it runs, so that it can't run twice.
void ClockMessages::FinishAction() {
    const QString action = pendingAction_;
    CancelAction();
    if (!seesToIt_ || !seesToIt_()) {
        RunAction(action);
    }
}

void ClockMessages::RunAction(const QString& action) {
    Tell(MessageEvent::ActionRuns, action);
    runAction_(action);
}

void ClockMessages::SetActionCaption(const QString& caption) {
    if (std::exchange(context_.Controls.lblActionMsg(1).Caption, caption) != caption) {
        Tell(MessageEvent::ActionCaption, caption);
    }
}

// colours = [ action ":" colour { "," action ":" colour } ]
int ClockMessages::ActionColour() const {
    const QString colours = mduLib::GetPropertyRaw(u"Message Action Colour"_s, context_.Properties);
    QString name = u"red"_s;
    const qsizetype found = colours.indexOf(pendingAction_);
    if (found >= 0) {
        const QString entry = colours.mid(found + pendingAction_.size()).section(u',', 0, 0);
        name = entry.contains(u':') ? entry.section(u':', 1, 1) : name;
    }
    const int colour = mduUILib::ColourValue(name, context_.Services.Random);
    return colour == context_.Host.BackColor() ? White : colour;
}

void ClockMessages::ShowActionMarks(bool visible) {
    context_.Controls.lblActionMsg(1).Visible = visible;
    context_.Controls.imgAction(1).Visible = visible;
}

// Below the message; in an outline in the first row there that takes all of it.
QRectF ClockMessages::RowOfAction(float height, float width) const {
    const auto top = static_cast<double>(WayOfMessage(height).Top.value_or(MessageTop()) + height);
    const auto extent = static_cast<double>(height);
    return context_.Host.RowInOutline(top, extent, static_cast<double>(width))
        .value_or(QRectF(left_, top, width_, extent));
}

// The mark and its label stand side by side below the message, in the middle of the face.
void ClockMessages::PlaceActionMarks() {
    mduUILib::Control& label = context_.Controls.lblActionMsg(1);
    mduUILib::Control& mark = context_.Controls.imgAction(1);
    context_.Host.FitLabel(label);
    const auto gap = static_cast<float>(Gap * context_.Host.DevicePixelRatio());
    const float whole = mark.Width + gap + label.Width;
    const QRectF row = RowOfAction(label.Height + gap, whole);
    mark.Left = static_cast<float>(row.left()) +
                std::max(0.0F, (static_cast<float>(row.width()) - whole) / 2);
    label.Left = mark.Left + mark.Width + gap;
    label.Top = static_cast<float>(row.top());
    mark.Top = label.Top + (label.Height - mark.Height) / 2;
}

}  // namespace timers
