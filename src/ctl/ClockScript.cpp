#include "ctl/ClockScript.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace ctl {

namespace {

struct StepWord {
    QLatin1StringView Word;
    ScriptAction Action;
    bool TakesArgument;
};

constexpr StepWord Words[] = {
    {"sleep"_L1, ScriptAction::Sleep, true},
    {"set-clock"_L1, ScriptAction::SetClock, true},
    {"zone"_L1, ScriptAction::Zone, true},
    {"kill"_L1, ScriptAction::Kill, false},
    {"quit"_L1, ScriptAction::Quit, false},
    {"start"_L1, ScriptAction::Start, false},
    {"disk-full"_L1, ScriptAction::DiskFull, false},
    {"disk-free"_L1, ScriptAction::DiskFree, false},
};

QDateTime Reading(const QString& text) {
    const QDateTime time = QDateTime::fromString(text, u"yyyy-MM-ddTHH:mm:ss"_s);
    return {time.date(), time.time(), Qt::UTC};
}

bool TakeArgument(const QString& text, ScriptStep& step) {
    bool isNumber = true;
    switch (step.Action) {
        case ScriptAction::Sleep:
            step.Minutes = text.toInt(&isNumber);
            return isNumber && step.Minutes >= 0;
        case ScriptAction::SetClock:
            step.Time = Reading(text);
            return step.Time.isValid();
        default:
            step.Zone = text;
            return !text.isEmpty();
    }
}

// step = "at" time word [ argument ]
std::optional<ScriptStep> StepOf(const QString& line) {
    const QStringList words = line.split(u' ', Qt::SkipEmptyParts);
    const auto* word = std::find_if(std::begin(Words), std::end(Words), [&](const StepWord& known) {
        return known.Word == words.value(2);
    });
    if (words[0] != "at"_L1 || word == std::end(Words) ||
        words.size() != (word->TakesArgument ? 4 : 3)) {
        return std::nullopt;
    }
    ScriptStep step{Reading(words[1]), word->Action, 0, {}, {}};
    const bool isWhole = !word->TakesArgument || TakeArgument(words[3], step);
    return isWhole && step.At.isValid() ? std::optional(step) : std::nullopt;
}

}  // namespace

std::optional<std::vector<ScriptStep>> ReadClockScript(const QStringList& lines, QString& wrong) {
    std::vector<ScriptStep> steps;
    for (const QString& line : lines) {
        const QString text = line.section(u'#', 0, 0).trimmed();
        if (text.isEmpty()) {
            continue;
        }
        const std::optional<ScriptStep> step = StepOf(text);
        if (!step) {
            wrong = line;
            return std::nullopt;
        }
        steps.push_back(*step);
    }
    return steps;
}

}  // namespace ctl
