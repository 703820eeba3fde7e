#pragma once

#include <QDateTime>
#include <QStringList>
#include <functional>

#include "clock/ClockMode.h"
#include "foundation/ClockProperty.h"
#include "timezones/TimeZoneRecord.h"

namespace clockcore {

/// What a tick does.
enum class ClockState : std::int16_t {
    Loading = 0,          ///< nothing
    Running = 1,          ///< the normal tick
    FirstTickDue = 2,     ///< the first-tick procedure
    RedrawRequested = 3,  ///< the redraw procedure
    Closing = 4           ///< nothing
};

/// The state of a clock, which may be watched from outside.
class WatchedState {
public:
    using Watcher = std::function<void(ClockState from, ClockState to)>;

    operator ClockState() const { return state_; }  // it is read as a state
    WatchedState& operator=(ClockState state) {
        const ClockState before = state_;
        state_ = state;
        if (before != state && watcher_) {
            watcher_(before, state);
        }
        return *this;
    }
    void Watch(Watcher watcher) { watcher_ = std::move(watcher); }

    /// Whether the first tick is over: before it a clock has nothing to show, nor any state to
    /// change.
    bool HasBegun() const {
        return state_ != ClockState::Loading && state_ != ClockState::FirstTickDue;
    }
    /// Whether the face is laid out and to be kept up to date.
    bool IsDrawn() const {
        return state_ == ClockState::Running || state_ == ClockState::RedrawRequested;
    }

private:
    ClockState state_ = ClockState::Loading;
    Watcher watcher_;
};

/// Working values of the face and the tick.
struct DialState {
    int StyleIndex = 0;
};

/// The fields of one clock.
class ClockData {
public:
    TimeZoneRecord Zone;
    WatchedState State;
    QDateTime StartTime;
    QString ClockFormat;
    QString PropertyFileName;
    QString TimerFile;  ///< of this clock; the path table's is that of the clock created last
    ClockTag Tag;       ///< what the clock is
    bool ActiveEditFlag = false;
    bool AutoStyleChange = false;
    DialState Dial;

    /// Whether the clock is of that kind, in a wrapper or not.
    bool Is(ClockKind kind) const { return Tag.Kind == kind; }
    /// Whether it has a dial, alone or with a read-out.
    bool IsAnalogue() const { return Is(ClockKind::Analogue) || Is(ClockKind::AnalogueAndDigital); }
    /// Whether it has a digital read-out, alone or on a dial.
    bool IsDigital() const { return Is(ClockKind::Digital) || Is(ClockKind::AnalogueAndDigital); }
    /// Whether it is a calculator, typed into or not.
    bool IsCalculator() const {
        return Is(ClockKind::Calculator) || Is(ClockKind::CalculatorInput);
    }

    const ClockProperties& Properties() const { return properties_; }

    /// The properties for a change. Whoever keeps values read from them reads these again when
    /// `Revision` has moved.
    ClockProperties& EditProperties() {
        ++revision_;
        return properties_;
    }
    int Revision() const { return revision_; }

    /// See `ClockProperties::CollectAskedNames`. The properties stay as they are.
    void CollectAskedNames(std::shared_ptr<AskedNames> names) {
        properties_.CollectAskedNames(std::move(names));
    }

private:
    ClockProperties properties_;
    int revision_ = 0;
};

}  // namespace clockcore
