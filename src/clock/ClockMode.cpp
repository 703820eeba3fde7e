#include "clock/ClockMode.h"

#include <QStringList>

#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;

namespace clockcore {

namespace {

const QStringList& ModeNames() {
    static const QStringList names = {u"Analogue"_s, u"Digital"_s, u"Calculator"_s,
                                      u"Analogue and Digital"_s};
    return names;
}

}  // namespace

int GetClockType(const ClockProperties& properties) {
    return static_cast<int>(
               ModeNames().indexOf(mduLib::GetProperty(u"Clocks"_s, properties).trimmed())) +
           1;
}

QString ClockModeName(int mode) {
    return ModeNames().value(mode - 1);
}

bool IsClockMode(const QString& tag, int kind) {
    if (!mduAPILib::IsNumeric(tag)) {
        return false;
    }
    const int number = mduAPILib::IntegerValue(tag);
    if (number < Wrapper) {
        return number == kind;
    }
    if (kind == Wrapper) {
        return true;
    }
    return number - Wrapper == kind || (kind == AnalogueAndDigital && number == kind);
}

}  // namespace clockcore
