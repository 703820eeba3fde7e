#include "clock/PartHints.h"

#include <array>

#include "timers/TimerHints.h"

using namespace Qt::StringLiterals;

namespace clockcore {

namespace {

/// A hint has four lines at most.
struct Row {
    ClockPart Part;
    QLatin1StringView Title;
    std::array<QLatin1StringView, 4> Lines;
};

constexpr Row Rows[] = {
    {ClockPart::Hands,
     "Clock Hand Settings"_L1,
     {"Set clock hand length"_L1, "Set clock hand line width"_L1, "Set clock hand style"_L1,
      "Set clock hand colour"_L1}},
    {ClockPart::Digits,
     "Digital Number Settings"_L1,
     {"Digital clock format"_L1, "Set number colour"_L1}},
    {ClockPart::HourNumber, "Clock Hour Number"_L1, {"Set timer"_L1, "Set hour number colour"_L1}},
    {ClockPart::Input, "Local time settings"_L1, {"Set local time font colour"_L1}},
    {ClockPart::Output,
     "Calculated Time Settings"_L1,
     {"Set timer"_L1, "Set calculated time font colour"_L1}},
};

QString Joined(const Row& row) {
    QString text;
    for (const QLatin1StringView line : row.Lines) {
        if (!line.isEmpty()) {
            text += text.isEmpty() ? QString(line) : u"\r\n"_s + line;
        }
    }
    return text;
}

}  // namespace

PartHint HintOf(ClockPart part) {
    for (const Row& row : Rows) {
        if (row.Part == part) {
            return {row.Title, Joined(row)};
        }
    }
    return {};
}

PartHint HintOfSpot(const QString& spotTime) {
    const timers::TimerHint hint = timers::SpotHint(spotTime);
    return {hint.Title, hint.Text};
}

PartHint HintOfMark(const timers::ClockTimer& timer) {
    const timers::TimerHint hint = timers::MarkHint(timer);
    return {hint.Title, hint.Text, hint.Colour};
}

}  // namespace clockcore
