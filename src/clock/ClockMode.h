#pragma once

#include <QString>

#include "foundation/ClockProperty.h"

/// What a clock shows. The window's tag holds the mode as text; a tag of 7 or more stands for the
/// mode plus 7 in a plain wrapper.
namespace clockcore {

inline constexpr int Analogue = 1;
inline constexpr int Digital = 2;
inline constexpr int Calculator = 3;
inline constexpr int AnalogueAndDigital = 4;
inline constexpr int CalculatorInput = 5;
inline constexpr int Wrapper = 7;

/// The mode of the property "Clocks"; 0 for any other text.
int GetClockType(const ClockProperties& properties);

QString ClockModeName(int mode);  ///< the reverse; empty for other numbers

/// Whether a window with this tag is of that kind.
bool IsClockMode(const QString& tag, int kind);

}  // namespace clockcore
