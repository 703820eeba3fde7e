#include "timers/TimerHints.h"

#include <QStringList>

#include "foundation/FileHelpers.h"
#include "foundation/NamedValues.h"
#include "timers/DialSpot.h"
#include "timers/SystemActions.h"
#include "timers/TimerFile.h"

using namespace Qt::StringLiterals;

namespace timers {

namespace {

constexpr int MinutesOfSpot = 12;
constexpr int SecondsOfMinute = 60;
constexpr int AnyYear = 2000;           // a time alone has none
constexpr qsizetype MostLetters = 200;  // of a message; a hint is no window

QString OrNone(const QString& text) {
    return text.isEmpty() ? QString(ActionText::None) : text;
}

QString Shortened(const QString& message) {
    return message.size() > MostLetters ? message.left(MostLetters) + u'\u2026' : message;
}

QString FileName(const QString& stored) {
    return mduLib::FileBaseName(mduLib::ToNativePath(stored), true);
}

}  // namespace

TimerHint SpotHint(const QString& spotTime) {
    const std::optional<QTime> from = TimeOfText(spotTime, AnyYear);
    if (!from) {
        return {};
    }
    const QTime to = from->addSecs(MinutesOfSpot * SecondsOfMinute);
    return {u"Time "_s + spotTime, u"Set timer for "_s + spotTime + u" to "_s + DialText(to)};
}

TimerHint MarkHint(const ClockTimer& timer) {
    QStringList lines = {
        u"Set timer action: "_s + OrNone(FileName(timer.TimerAction)),
        u"Play Music: "_s + OrNone(timer.MusicVolume),
        u"Set timer sound: "_s + OrNone(FileName(timer.SoundFile)),
        u"Set message display time: "_s + timer.DisplayMinutes,
        u"Set message colour: "_s + mduUILib::ColourName(timer.MessageColour),
        u"Edit message"_s,
        timer.IsPermanent() ? u"Remove timer permanent"_s : u"Set timer permanent"_s,
        u"Remove timer: "_s + timer.TimerTime,
        u"Change timer: "_s + timer.TimerTime,
    };
    if (timer.Due.WholeDay) {
        lines.prepend(u"Comes at "_s + timer.TimerTime);
    }
    if (!timer.Message.isEmpty()) {
        lines.prepend(Shortened(timer.Message));
    }
    return {timer.Message.isEmpty() ? u"Timer"_s : u"Timer Message"_s, lines.join(u"\r\n"_s),
            timer.MessageColour};
}

}  // namespace timers
