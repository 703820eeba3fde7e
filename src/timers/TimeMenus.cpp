#include "timers/TimeMenus.h"

#include "foundation/Numbers.h"
#include "timers/TimerFile.h"

using namespace Qt::StringLiterals;

namespace timers {

namespace {

constexpr int Entries = 12;
constexpr int SecondsOfMinute = 60;
constexpr int HourStep = 5;  // minutes between the entries of an hour

QString WithMinutes(const QString& text) {
    return text + (mduAPILib::IsNumeric(text) ? u":00"_s : u" 00:00"_s);
}

}  // namespace

QStringList FillTimeMenu(const QString& text, int presentYear) {
    const bool isMinute = text.contains(u':');
    const QString wanted = text.trimmed();
    const std::optional<QTime> first =
        wanted.isEmpty() ? std::nullopt
                         : TimeOfText(isMinute ? wanted : WithMinutes(wanted), presentYear);
    QStringList captions;
    for (int entry = 0; first && entry < Entries; ++entry) {
        const int minutes = isMinute ? entry : entry * HourStep;
        captions += HourMinute(first->addSecs(minutes * SecondsOfMinute));
    }
    return captions;
}

QStringList FillMinutesMenu(int start) {
    QStringList captions;
    for (int entry = 0; entry < Entries; ++entry) {
        captions += QString::number(qint64{start} + entry);
    }
    return captions;
}

}  // namespace timers
