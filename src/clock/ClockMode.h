#pragma once

#include <QString>
#include <QStringList>

#include "foundation/ClockProperty.h"

/// What a clock shows, and what its window's tag tells of that.
namespace clockcore {

/// The kinds of a clock, with the numbers that menus and the tag count them by. A new kind needs a
/// row here and one in the table of words.
enum class ClockKind {
    None = 0,  ///< the property "Clocks" holds no kind: nothing is drawn but the background
    Analogue = 1,
    Digital = 2,
    Calculator = 3,
    AnalogueAndDigital = 4,
    CalculatorInput = 5,  ///< a calculator while a time is typed into it; no property asks for it
    CalculatorMessage = 6  ///< a calculator while a timer's message is typed; its lines stand still
};

/// The kind of the property "Clocks"; `None` for any other text.
ClockKind GetClockType(const ClockProperties& properties);

/// The kind with that number in the menus, from 1 on; `None` for any other number.
ClockKind NumberedClockKind(int number);

/// The property's word; empty for `None` and for a calculator that is typed into.
QString ClockKindName(ClockKind kind);

/// The words of the property in the order of the menus: the first is that of number 1.
QStringList ClockKindNames();

/// The tag of a clock's window.
struct ClockTag {
    ClockKind Kind = ClockKind::Analogue;
    bool IsWrapper = false;  ///< a plain, undrawn window around a clock of that kind

    /// The tag for those outside: the number of the kind, and 7 more in a wrapper. An analogue
    /// clock is "1", one in a wrapper "8".
    QString Text() const;
    bool operator==(const ClockTag&) const = default;
};

}  // namespace clockcore
