#include "clock/ClockMode.h"

#include "foundation/PropertyLookup.h"
#include "foundation/WordTable.h"

using namespace Qt::StringLiterals;

namespace clockcore {

namespace {

constexpr int WrapperOffset = 7;

constexpr mduUILib::WordTable<ClockKind, 4> Kinds = {{{
    {"Analogue"_L1, ClockKind::Analogue},
    {"Digital"_L1, ClockKind::Digital},
    {"Calculator"_L1, ClockKind::Calculator},
    {"Analogue and Digital"_L1, ClockKind::AnalogueAndDigital},
}}};

}  // namespace

ClockKind GetClockType(const ClockProperties& properties) {
    return Kinds.Find(mduLib::GetProperty(u"Clocks"_s, properties)).value_or(ClockKind::None);
}

ClockKind NumberedClockKind(int number) {
    return Kinds.Find(ClockKindNames().value(number - 1)).value_or(ClockKind::None);
}

QString ClockKindName(ClockKind kind) {
    return Kinds.NameOf(kind);
}

QStringList ClockKindNames() {
    return Kinds.Words();
}

QString ClockTag::Text() const {
    const int number = static_cast<int>(Kind);
    return QString::number(IsWrapper ? number + WrapperOffset : number);
}

}  // namespace clockcore
