#pragma once

#include <QDateTime>
#include <functional>

#include "timers/MessageChannel.h"
#include "timers/TimerContext.h"

namespace timers {

/// What a watcher is told, in the order in which it happens: the text of a message that shows (none
/// is told for an empty one), that the message hides, each new caption of the action that counts
/// down, and the action that runs.
enum class MessageEvent { Shows, Hides, ActionCaption, ActionRuns };

/// The one running message of a clock (`lblMsg`) and the one action that counts down
/// (`lblActionMsg`, `imgAction`).
///
/// A message enters at the right end of the face, is typed out a character at a time while it moves
/// left, is eaten at the left end and starts anew, until it expires or is hidden. While it runs in
/// sight, `timClock` ticks ten times a second; out of sight it moves on with each second. In a
/// window with an outline both keep to rows that are wide enough for them.
class ClockMessages final : public MessageChannel {
public:
    using Watcher = std::function<void(MessageEvent event, const QString& text)>;

    /// @param runAction carries an action out when its countdown has ended
    ClockMessages(const TimerContext& context, std::function<void(const QString&)> runAction);

    /// Replaces the running message; line ends become blanks. The status bar gets it as well. An
    /// empty text shows nothing and ends the message that ran.
    void ShowMessage(const QString& text);
    /// Of the running message, red in the low byte.
    void SetMessageColour(int colour);
    /// The message ends @p minutes behind @p clockTime; with 0 or less it runs until it is hidden.
    /// The end is kept as "hh:mm" and also comes twelve hours before or after. One in the hour
    /// after midnight ("00") never comes.
    void SetMessageExpiry(const QDateTime& clockTime, int minutes);

    void RunMessage(int left, int width) override;
    void HideMessage() override;

    /// The action of the timer that has just fired. One that starts no countdown is forgotten at
    /// the next `RunMessage`; until then no other timer fires.
    void SetPendingAction(const QString& action) { pendingAction_ = action; }
    /// Lets the pending action run @p minutes behind @p clockTime. @return false when there is none
    /// ("None" is none), or when one is counting down already.
    bool StartCountdown(const QDateTime& clockTime, int minutes);
    /// The same, up to a moment of the clock's time.
    bool CountDownTo(const QDateTime& deadline);
    /// Moves the deadline of the countdown to another moment of the clock's time; nothing without
    /// one.
    void MoveDeadline(const QDateTime& deadline);
    /// Moves the deadline to @p minutes from the clock's present time, 0 or less to the next tick;
    /// nothing without a countdown.
    void PostponeAction(int minutes);
    /// Forgets the pending action and hides its marks. The message runs on.
    void CancelAction();
    /// Tells, when a countdown has ended, somebody who may see to its action: where that gives true
    /// nothing more is done for it.
    void HandEndsTo(std::function<bool()> seesToIt) { seesToIt_ = std::move(seesToIt); }
    /// Carries an action out at once, without a countdown.
    void RunAction(const QString& action);
    /// Gives the text of the action that counts down a colour, by its name, and the action that
    /// colour from now on; nothing without a countdown.
    void SetActionColour(const QString& colour);

    void Watch(Watcher watcher) { watcher_ = std::move(watcher); }

    const QString& PendingMessage() const { return pendingMessage_; }
    const QString& MessageExpiry() const { return messageExpiry_; }  ///< "hh:mm", or "0" for none
    const QString& PendingAction() const { return pendingAction_; }
    const QString& ActionDeadline() const { return actionDeadline_; }  ///< date and time, or empty
    int MessageCursor() const { return messageCursor_; }  ///< characters shown in this run

private:
    void Expire(const QDateTime& clockTime);
    void HideLabel();
    void EndMessage();
    /// Where a message runs, in device pixels; without a top it stays as high as it is.
    struct Way {
        float Left = 0, Right = 0;
        std::optional<float> Top;
    };
    Way WayOfMessage(float height) const;
    void MoveMessage();
    void SetPace();
    void TypeNextCharacter();
    void StepLeft(const Way& way);
    void RestartFromTheRight(const Way& way);
    void CountDown(const QDateTime& clockTime);
    void SpeakNumber(qint64 left);
    void FinishAction();
    void SetActionCaption(const QString& caption);
    void Tell(MessageEvent event, const QString& text = {}) const;
    bool IsCountingDown() const;
    int ActionColour() const;
    void ShowActionMarks(bool visible);
    void PlaceActionMarks();
    QRectF RowOfAction(float height, float width) const;
    void SetLabelFont(mduUILib::Control& label) const;
    float MessageTop() const;
    float Pixels(double twips) const;

    TimerContext context_;
    std::function<void(const QString&)> runAction_;
    std::function<bool()> seesToIt_;
    Watcher watcher_;
    QString pendingMessage_;
    QString messageExpiry_ = QStringLiteral("0");
    QString pendingAction_;
    QString actionDeadline_;
    int messageCursor_ = 0;
    int left_ = 0, width_ = 0;  // of the surface, as told last
};

}  // namespace timers
