#include "timers/TimerLog.h"

#include <algorithm>
#include <iterator>

#include "foundation/ModuleState.h"
#include "foundation/PropertyFile.h"
#include "platform/Files.h"
#include "timers/TimerFile.h"

using namespace Qt::StringLiterals;

namespace timers {

namespace {

constexpr QLatin1StringView Words[] = {"set"_L1,        "fired"_L1,         "late"_L1,
                                       "skipped"_L1,    "removed"_L1,       "action-asked"_L1,
                                       "action-run"_L1, "action-refused"_L1};

constexpr qsizetype Columns = 6;

QString LineOf(const TimerEvent& event) {
    QStringList values = {event.At.toString(Qt::ISODate), event.Clock,
                          HappeningText(event.Happening), event.Time,
                          QString::number(event.Late),    event.Message};
    for (QString& value : values) {
        value = OnOneLine(value.replace(u'\t', u' '));
    }
    return values.join(u'\t');
}

std::optional<TimerEvent> EventOf(const QString& line) {
    const QStringList values = line.split(u'\t');
    const QDateTime at = QDateTime::fromString(values[0], Qt::ISODate);
    const auto* word = std::find(std::begin(Words), std::end(Words), values.value(2));
    if (values.size() != Columns || !at.isValid() || word == std::end(Words)) {
        return std::nullopt;
    }
    const auto happening = static_cast<TimerHappening>(word - std::begin(Words));
    return TimerEvent{at, values[1], happening, values[3], values[4].toLongLong(), values[5]};
}

}  // namespace

QString HappeningText(TimerHappening happening) {
    return Words[static_cast<std::size_t>(happening)];
}

QString TimerLog::PathIn(const PathTable& paths) {
    return (paths.DataFolder.isEmpty() ? paths.AppFolder : paths.DataFolder) + u"/Timers.log"_s;
}

void TimerLog::Add(const TimerEvent& event) {
    added_ += LineOf(event);
    added_ = added_.mid(std::max(qsizetype{0}, added_.size() - MostEvents));
}

// A file that is there and can't be read is left as it is.
void TimerLog::Write() {
    if (added_.isEmpty() || (files_.Exists(path_()) && !files_.Read(path_()))) {
        return;
    }
    QStringList lines = Lines() + added_;
    lines = lines.mid(std::max(qsizetype{0}, lines.size() - MostEvents));
    if (files_.Write(path_(), (lines.join(u"\r\n"_s) + u"\r\n"_s).toUtf8())) {
        added_.clear();
    }
}

std::vector<TimerEvent> TimerLog::Events() const {
    std::vector<TimerEvent> events;
    for (const QString& line : Lines()) {
        if (const auto event = EventOf(line)) {
            events.push_back(*event);
        }
    }
    return events;
}

QStringList TimerLog::Lines() const {
    QStringList lines = mduLib::FileLines(files_.Read(path_()).value_or(QByteArray()));
    lines.removeAll(QString());
    return lines;
}

}  // namespace timers
