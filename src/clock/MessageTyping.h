#pragma once

#include <QRectF>

#include "clock/ClockData.h"
#include "drawing/Canvas.h"
#include "drawing/FaceParts.h"
#include "foundation/Controls.h"
#include "platform/WallClock.h"
#include "timers/ClockTimers.h"

namespace clockcore {

/// The box in which a message is typed, as its logic sees it: `MessageBoxes` is the real one. A
/// clock has one of them at a time.
class MessageBoxView {
public:
    virtual ~MessageBoxView() = default;

    /// What a box begins with.
    struct Look {
        QRectF Place;  ///< in device pixels of the surface
        QString Text;
        int Colour = 0;  ///< behind the text, red in the low byte
    };
    /// Shows the box and gives it the keys. They come back as calls of `MessageTyping`.
    virtual void Open(const Look& look) = 0;
    virtual void Move(const QRectF& place) = 0;
    virtual void Close() = 0;
    /// Whether what is typed comes to the box: it is open, and no other window is in front.
    virtual bool HasKeys() const = 0;
};

/// The typing of a timer's message, `txtMsg(n)`: where its box stands, what its keys do, and what
/// becomes of the timer when the box closes.
///
/// What is typed belongs to the timer at once, so that a clock that closes keeps it. A calculator
/// stands still meanwhile; its calculated time tells for which day the timer is meant. The timer
/// does not fire while it is typed into, so that no key goes to the clock instead. Behind another
/// window it may fire, and it may be removed: the box then closes and changes nothing.
class MessageTyping {
public:
    /// What the typing changes. All of it outlives it.
    struct Parts {
        mduUILib::ClockControls& Controls;
        timers::ClockTimers& Timers;
        timers::TimerHost& Host;
        drawing::CalculatorClock& Calculator;
        drawing::Canvas& Canvas;
        const platform::WallClock& Clock;
        MessageBoxView& View;
    };

    MessageTyping(ClockData& data, const Parts& parts) : data_(data), parts_(parts) {}

    /// A new timer's time was chosen from the calculated one, and may lie behind its midnight.
    enum class Timer { New, Old };
    /// Opens the box of a slot; one that is open is finished first. Nothing for a slot without a
    /// timer on the dial.
    void OpenMessageBox(int slot, Timer timer = Timer::Old);
    /// The slot whose box is open; 0 for none.
    int Slot() const { return slot_; }
    /// Whether the keys go to the box of that slot.
    bool IsTypedInto(int slot) const { return slot == slot_ && parts_.View.HasKeys(); }

    // What the box tells. Without an open box they do nothing.
    /// The whole text, after each key. The ends of its lines become blanks.
    void Type(const QString& text);
    /// Closes the box. A timer without a message goes.
    void Escape();
    /// With an empty box the timer goes, unless it has an action. @return false where Delete is a
    /// key like any other
    bool Delete();
    /// Closes the box and saves the timers. A calculator goes back to the present time; where it
    /// was more than a day ahead of the clock, the timer is kept for that day and leaves the dial.
    /// The status bar tells which, and what of the message the file can't keep. A day that has gone
    /// would end the timer with the run; it stays on the dial.
    void FinishMessage();

    /// The status bar tells what of a timer on the dial the file can't keep.
    void TellLoss(const timers::ClockTimer& timer);

    /// Brings the box to where it belongs after the clock has changed, or closes it when its timer
    /// has gone. Called after each tick and each change of size.
    void Follow();

    /// Where the box of a slot stands, in device pixels: at the mark on an analogue clock, above
    /// the marks along the bottom of any other. It is 100 logical pixels narrower than the face,
    /// but wide enough to type in, and lies within the face and its outline.
    QRectF Place(int slot) const;

private:
    bool IsThere() const;
    void BeginMessageMode();
    std::optional<QDateTime> EndMessageMode();
    void CloseBox();
    void Remove();
    void Settle(int slot, const std::optional<QDateTime>& calculated);
    void KeepDay(int slot, const std::optional<QDateTime>& calculated);
    void TellLoss(const timers::ClockTimer& timer, const QString& line);
    void DeferTo(int slot, const QDateTime& calculated);
    QDateTime ClockTime() const;

    ClockData& data_;
    Parts parts_;
    int slot_ = 0;
    QString time_;  ///< of the timer in the slot when the box opened
    bool isNew_ = false;
};

}  // namespace clockcore
