#include <QJsonObject>

#include "Companion.h"

using namespace Qt::StringLiterals;

/// A Saturday in November with ten timers on the dial, from midnight to midnight in London: every
/// event of the clock, and why it comes.
class tst_ClockDay : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TellsEveryEvent();
    void LeavesTheseTimers();
};

namespace {

const QString TimerFile = u"me/Timers/GMT Standard TimeTimer.txt"_s;

// The first ten go to the dial, in slots 1 to 10. The date of the eleventh is tomorrow's, so its
// line waits in the file; that of the last has passed, so it is dropped for good.
constexpr const char* Timers =
    "5,Red,,None,0#12:30@Half past twelve\r\n"
    "1,Red,,None,0#13:1@One past one\r\n"
    "2,Blue,,None,0#21/11/2026 14:30=Once, this morning\r\n"
    "3:15=Without a word on how long\r\n"
    "1,Green,.\\SoundFiles\\Bell.wav,None,0#16:0@Bell\r\n"
    "1,Green,.\\SoundFiles\\Gong.wav,None,0#16:0@Gong\r\n"
    "1,Cyan,,None,40#17:0@Music, please\r\n"
    "1,White,,Lock Workstation,0#18:0@\r\n"
    "1,Yellow,,None,0#18:0@Passed over\r\n"
    "0,Magenta,,/opt/tools/backup,0#20:15@\r\n"
    "1,Red,,None,0#22/11/2026 15:0=Tomorrow\r\n"
    "1,Red,,None,0#20/11/2026 15:0=Yesterday\r\n";

// A line with "# " in front tells why the lines behind it come. "*" stands for a minute's
// countdown.
constexpr const char* Day = R"(
# The user has no files yet: those of the program are copied.
00:00:00.000 saved file=~/me/Action.txt
00:00:00.000 saved file=~/me/Shortcuts.txt
00:00:00.000 saved file=~/me/TimeZones/GMT Standard Time.ini
00:00:00.000 saved file=~/me/TempolarkCentral.ini
# The zone's keys are written into the new file in one step.
00:00:00.000 saved file=~/me/TimeZones/GMT Standard Time.ini
# The window is built: its first tick is due in ten milliseconds, those behind it each second.
00:00:00.000 state from=0 to=2
00:00:00.000 interval ms=10
00:00:00.000 interval ms=1000
# The first tick loads the timers and asks for a redraw at once.
00:00:00.010 state from=2 to=1
00:00:00.010 state from=1 to=3
00:00:00.010 interval ms=10
00:00:00.010 interval ms=1000
# The redraw; normal ticks follow.
00:00:00.020 state from=3 to=1

# Slot 1 was written with hour 12, which a dial of twelve hours calls 0. The file is saved with the
# timer still in it, then the message shows, in the status bar as well.
00:30:00.000 timer-fired message=Half past twelve slot=1 time=00:30
00:30:00.000 saved file=~/me/Timers/GMT Standard TimeTimer.txt
00:30:00.000 message text=Half past twelve
00:30:00.000 status text=Half past twelve
# What was being said is cut off, and the message is spoken.
00:30:00.000 speak flags=2 text=.
00:30:00.000 speak flags=2 text=Half past twelve
# It runs at ten steps a second. It would expire at "00:35", which reads as the number 0 and so
# never comes: the message goes on until another takes its place.
00:30:00.000 interval ms=100

# Slot 2 does that. The tick is at 100 already.
01:01:00.000 timer-fired message=One past one slot=2 time=01:01
01:01:00.000 saved file=~/me/Timers/GMT Standard TimeTimer.txt
01:01:00.000 message text=One past one
01:01:00.000 status text=One past one
01:01:00.000 speak flags=2 text=.
01:01:00.000 speak flags=2 text=One past one
# One minute on show, then the tick goes back to the second.
01:02:00.000 message-hidden
01:02:00.000 interval ms=1000

# Slot 3, a one-shot timer dated today and loaded before noon. The hour 14 in the file tells only
# that it lives this morning.
02:30:00.000 timer-fired message=Once, this morning slot=3 time=02:30
02:30:00.000 saved file=~/me/Timers/GMT Standard TimeTimer.txt
02:30:00.000 message text=Once, this morning
02:30:00.000 status text=Once, this morning
02:30:00.000 speak flags=2 text=.
02:30:00.000 speak flags=2 text=Once, this morning
02:30:00.000 interval ms=100
# Two minutes on show.
02:32:00.000 message-hidden
02:32:00.000 interval ms=1000

# Slot 4, a time alone, without any settings: no minutes on show means no end.
03:15:00.000 timer-fired message=Without a word on how long slot=4 time=03:15
03:15:00.000 saved file=~/me/Timers/GMT Standard TimeTimer.txt
03:15:00.000 message text=Without a word on how long
03:15:00.000 status text=Without a word on how long
03:15:00.000 speak flags=2 text=.
03:15:00.000 speak flags=2 text=Without a word on how long
03:15:00.000 interval ms=100

# Slots 5 and 6 are due together. The first of them plays its sound; its action "None" holds the
# second back until the next tick.
04:00:00.000 timer-fired message=Bell slot=5 time=04:00
04:00:00.000 saved file=~/me/Timers/GMT Standard TimeTimer.txt
04:00:00.000 message text=Bell
04:00:00.000 status text=Bell
04:00:00.000 speak flags=2 text=.
04:00:00.000 speak flags=2 text=Bell
04:00:00.000 sound file=~/SoundFiles/Bell.wav
# That is a tenth of a second later, while the message runs. There is no gong: the status bar tells.
04:00:00.100 timer-fired message=Gong slot=6 time=04:00
04:00:00.100 saved file=~/me/Timers/GMT Standard TimeTimer.txt
04:00:00.100 message text=Gong
04:00:00.100 status text=Gong
04:00:00.100 speak flags=2 text=.
04:00:00.100 speak flags=2 text=Gong
04:00:00.100 status text=.\SoundFiles\Gong.wav does not exist
04:01:00.000 message-hidden
04:01:00.000 interval ms=1000

# Slot 7 turns the music up to 40; in the same tick its only piece begins, and it never ends here.
05:00:00.000 timer-fired message=Music, please slot=7 time=05:00
05:00:00.000 saved file=~/me/Timers/GMT Standard TimeTimer.txt
05:00:00.000 message text=Music, please
05:00:00.000 status text=Music, please
05:00:00.000 speak flags=2 text=.
05:00:00.000 speak flags=2 text=Music, please
05:00:00.000 interval ms=100
05:00:00.000 music file=~/Music/Waltz.mp3 volume=40
05:01:00.000 message-hidden
05:01:00.000 interval ms=1000

# Slot 8 has no message: what was being said is cut off all the same, and its action is spoken in
# place of the message. Then the countdown shows. The music stops, and stays off for as long as the
# clock is open.
06:00:00.000 timer-fired message= slot=8 time=06:00
06:00:00.000 saved file=~/me/Timers/GMT Standard TimeTimer.txt
06:00:00.000 speak flags=2 text=.
06:00:00.000 speak flags=2 text=.
06:00:00.000 speak flags=2 text=Lock Workstation
06:00:00.000 action-countdown caption=Lock Workstation
06:00:00.000 music-stop
# The countdown, shown and spoken at each tick; no message runs, so that is each second. Slot 9 is
# due in this minute and passed over.
* 06:00 Lock Workstation
06:01:00.000 action-countdown caption=Lock Workstation 0
06:01:00.000 speak flags=2 text= 0
06:01:00.000 action text=Lock Workstation

# Slot 10: a deadline of no minutes, so the program starts in the tick that fires the timer. Its
# label shows the file's name first, and the whole text with the seconds then.
08:15:00.000 timer-fired message= slot=10 time=08:15
08:15:00.000 saved file=~/me/Timers/GMT Standard TimeTimer.txt
08:15:00.000 speak flags=2 text=.
08:15:00.000 speak flags=2 text=.
08:15:00.000 speak flags=2 text=/opt/tools/backup
08:15:00.000 action-countdown caption=backup
08:15:00.000 action-countdown caption=/opt/tools/backup 0
08:15:00.000 speak flags=2 text= 0
08:15:00.000 action text=/opt/tools/backup

# Timers with an action stay on the dial, which shows 6 o'clock again. Slot 9 is passed over again.
18:00:00.000 timer-fired message= slot=8 time=06:00
18:00:00.000 saved file=~/me/Timers/GMT Standard TimeTimer.txt
18:00:00.000 speak flags=2 text=.
18:00:00.000 speak flags=2 text=.
18:00:00.000 speak flags=2 text=Lock Workstation
18:00:00.000 action-countdown caption=Lock Workstation
* 18:00 Lock Workstation
18:01:00.000 action-countdown caption=Lock Workstation 0
18:01:00.000 speak flags=2 text= 0
18:01:00.000 action text=Lock Workstation

# And a quarter past eight. All others have fired once, and that was their end.
20:15:00.000 timer-fired message= slot=10 time=08:15
20:15:00.000 saved file=~/me/Timers/GMT Standard TimeTimer.txt
20:15:00.000 speak flags=2 text=.
20:15:00.000 speak flags=2 text=.
20:15:00.000 speak flags=2 text=/opt/tools/backup
20:15:00.000 action-countdown caption=backup
20:15:00.000 action-countdown caption=/opt/tools/backup 0
20:15:00.000 speak flags=2 text= 0
20:15:00.000 action text=/opt/tools/backup
)";

QStringList Countdown(const QString& minute, const QString& action) {
    QStringList lines;
    for (int second = 0; second < 60; ++second) {
        const QString at = u"%1:%2.000 "_s.arg(minute).arg(second, 2, 10, QChar(u'0'));
        const QString left = QString::number(60 - second);
        lines += at + u"action-countdown caption="_s + action + u' ' + left;
        lines += at + u"speak flags=2 text= "_s + left;
    }
    return lines;
}

QStringList ExpectedEvents() {
    QStringList events;
    for (const QString& line : QString::fromUtf8(Day).split(u'\n', Qt::SkipEmptyParts)) {
        if (line.startsWith(u"* "_s)) {
            events += Countdown(line.mid(2, 5), line.mid(8));
        } else if (!line.startsWith(u"# "_s)) {
            events += line;
        }
    }
    return events;
}

/// The clock of London for a day, with a sound and a piece of music, and no other files but the
/// default ones.
CompanionAnswer RunTheDay(const Companion& companion) {
    QDir().mkpath(companion.Folder.filePath(u"ini"_s));
    const QDir defaults(QStringLiteral(TEMPOLARK_SOURCE_DIR "/data/ini"));
    for (const QString& name : defaults.entryList(QDir::Files)) {
        QFile::copy(defaults.filePath(name), companion.Folder.filePath(u"ini/"_s + name));
    }
    companion.Write(u"SoundFiles/Bell.wav"_s, "bell");
    companion.Write(u"Music/Waltz.mp3"_s, "waltz");
    companion.Write(TimerFile, Timers);
    return companion.Run({u"--app-folder"_s, companion.Folder.path(), u"--user"_s, u"me"_s,
                          u"--now"_s, u"2026-11-21T00:00:00"_s, u"--local-zone"_s,
                          u"Europe/London"_s, u"clock"_s, u"run"_s, u"GMT Standard Time"_s,
                          u"--seconds"_s, u"86400"_s});
}

/// An event as "time event field=value field=value", with "~" for the program's folder.
QString EventLine(const QByteArray& json, const QString& folder) {
    QJsonObject object = QJsonDocument::fromJson(json).object();
    const QString at = object.take(u"at"_s).toString();
    QString line = at.mid(11) + u' ' + object.take(u"event"_s).toString();
    for (auto field = object.begin(); field != object.end(); ++field) {
        line += u' ' + field.key() + u'=' + field.value().toVariant().toString();
    }
    return at.startsWith(u"2026-11-21T"_s) ? line.replace(folder, u"~"_s) : u"another day"_s;
}

}  // namespace

void tst_ClockDay::TellsEveryEvent() {
    const Companion companion;
    const CompanionAnswer answer = RunTheDay(companion);
    QCOMPARE(answer.Status, 0);
    QStringList events;
    for (const QByteArray& line : answer.Output.split('\n')) {
        if (!line.isEmpty()) {
            events += EventLine(line, companion.Folder.path());
        }
    }
    const QStringList expected = ExpectedEvents();
    for (qsizetype i = 0; i < qMin(events.size(), expected.size()); ++i) {
        QCOMPARE(events[i], expected[i]);
    }
    QCOMPARE(events.size(), expected.size());
}

// As they were saved at a quarter past eight in the evening. Permanent timers that have fired keep
// their slot until the clock is closed, without a time, so that the next load skips them.
void tst_ClockDay::LeavesTheseTimers() {
    const Companion companion;
    QCOMPARE(RunTheDay(companion).Status, 0);
    QCOMPARE(companion.Read(TimerFile), QByteArray(",Red,,,0#@\r\n"
                                                   ",Red,,,0#@\r\n"
                                                   ",Green,,,0#@\r\n"
                                                   ",Green,,,0#@\r\n"
                                                   ",Cyan,,,40#@\r\n"
                                                   "1,White,,Lock Workstation,0#18:0@\r\n"
                                                   "1,Yellow,,None,0#18:0@Passed over\r\n"
                                                   "0,Magenta,,/opt/tools/backup,0#20:15@\r\n"
                                                   "3:15=Without a word on how long\r\n"
                                                   "1,Red,,None,0#22/11/2026 15:0=Tomorrow\r\n"));
}

QTEST_GUILESS_MAIN(tst_ClockDay)
#include "tst_ClockDay.moc"
