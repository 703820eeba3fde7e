#pragma once

#include <QDateTime>
#include <QStringList>
#include <functional>

#include "clock/ClockMode.h"
#include "foundation/ClockProperty.h"
#include "timezones/TimeZoneRecord.h"

namespace clockcore {

/// What a tick does. A clock goes from `Loading` to `FirstTickDue`, with the first tick by way of
/// `Running` to `RedrawRequested`, and then to and fro between these two until it closes. The
/// numbers are those that a script is told.
enum class ClockState : std::int16_t {
    Loading = 0,          ///< nothing
    Running = 1,          ///< the normal tick
    FirstTickDue = 2,     ///< the first-tick procedure
    RedrawRequested = 3,  ///< the redraw procedure
    Closing = 4           ///< nothing
};

/// The state of a clock, which may be watched from outside. Assigning a `ClockState` changes it; it
/// reads as one.
class WatchedState {
public:
    using Watcher = std::function<void(ClockState from, ClockState to)>;

    operator ClockState() const { return state_; }  // it is read as a state
    /// Tells the watcher of a state that is another than before, once it is in force.
    WatchedState& operator=(ClockState state) {
        const ClockState before = state_;
        state_ = state;
        if (before != state && watcher_) {
            watcher_(before, state);
        }
        return *this;
    }
    /// From now on this one is told, and no other; an empty one ends the watch. It must not destroy
    /// the clock.
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
    /// The name of the style that was put on the clock last, without its extension; empty for none
    /// and for one that is not in the folder of styles.
    QString LastStyle = {};
};

/// The fields of one clock, which its parts share by reference. The clock's window owns them; they
/// do nothing themselves.
class ClockData {
public:
    /// The zone that the clock shows, with the present offset.
    TimeZoneRecord Zone;
    WatchedState State;
    /// When the clock was loaded, on the machine's clock; "Stay Time" counts from then.
    QDateTime StartTime;
    /// "Digital Clock Format", as `ClockFace::ReadDigitalFormat` has read it last.
    QString ClockFormat;
    /// The full path of the clock's own file.
    QString PropertyFileName;
    /// The base name of another zone's file, whose zone has been put on the clock until it is
    /// loaded anew; empty while the clock shows its own.
    QString TakenZone;
    QString TimerFile;  ///< of this clock; the path table's is that of the clock created last
    ClockTag Tag;       ///< what the clock is
    /// While it is set, a clock in front keeps the interval that it has, and lays its dial out at
    /// each tick.
    bool ActiveEditFlag = false;
    /// Whether the clock takes the next style each ten seconds.
    bool AutoStyleChange = false;
    /// `StyleIndex` is the place, from 0, of the style that `ClockStyles::ApplyNextStyle` took last
    /// from `StyleFiles::Names`; the first turn so takes the second style.
    DialState Dial;

    /// Whether the clock is of that kind, in a wrapper or not.
    bool Is(ClockKind kind) const { return Tag.Kind == kind; }
    /// Whether it has a dial, alone or with a read-out.
    bool IsAnalogue() const { return Is(ClockKind::Analogue) || Is(ClockKind::AnalogueAndDigital); }
    /// Whether it has a digital read-out, alone or on a dial.
    bool IsDigital() const { return Is(ClockKind::Digital) || Is(ClockKind::AnalogueAndDigital); }
    /// Whether it is a calculator, typed into or not.
    bool IsCalculator() const {
        return Is(ClockKind::Calculator) || Is(ClockKind::CalculatorInput) ||
               Is(ClockKind::CalculatorMessage);
    }

    /// To be read only. The reference stays valid as long as the clock; what is in it changes.
    const ClockProperties& Properties() const { return properties_; }

    /// The properties for a change. Whoever keeps values read from them reads these again when
    /// `Revision` has moved.
    ClockProperties& EditProperties() {
        ++revision_;
        return properties_;
    }
    /// How often the properties have been asked for to be changed. It begins at 0 and only grows,
    /// so a reader that keeps values begins with -1:
    ///
    ///     if (revisionRead_ != data_.Revision()) {
    ///         revisionRead_ = data_.Revision();
    ///         speed_ = ReadSpeed(data_.Properties());
    ///     }
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
