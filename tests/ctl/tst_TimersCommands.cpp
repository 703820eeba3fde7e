#include "ctl/Companion.h"

using namespace Qt::StringLiterals;

namespace {

/// A machine in London on the morning of 16 November 2026.
CompanionAnswer Run(const Companion& companion, const QStringList& command,
                    const QString& now = u"2026-11-16T09:00:00"_s) {
    return companion.Run(QStringList{u"--app-folder"_s, companion.Folder.path(), u"--user"_s,
                                     u"ann"_s, u"--now"_s, now, u"--local-zone"_s,
                                     u"Europe/London"_s, u"timers"_s} +
                         command);
}

const QString London = u"GMT Standard Time"_s;

const QByteArray Lines =
    "5,red,,None,0#15:5@Call home\r\n"
    "not a timer\r\n"
    "0,Blue,.\\Sounds\\bell.wav,Log Off,40#16/11/2026 16:30=Tea\r\n"
    "17/11/2026 09:30=Tomorrow\r\n"
    "15/11/2026 09:30=Yesterday\r\n";

QJsonObject Slot(int slot, const QString& time, const QString& permanent, const QString& minutes,
                 const QString& message, int colour) {
    return {
        {u"slot"_s, slot},           {u"TimerTime"_s, time},         {u"Permanent"_s, permanent},
        {u"OnDial"_s, true},         {u"DisplayMinutes"_s, minutes}, {u"Message"_s, message},
        {u"MessageColour"_s, colour}};
}

}  // namespace

class tst_TimersCommands : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Loads();
    void LoadsAtTheClocksTime();
    void TellsOfAZoneThatNobodyKnows();
    void LoadsAMissingFile();
    void TellsOfAFileThatIsNoText();
    void Saves();
    void TellsWhenItCannotSave();
    void SavesNothingOfAFileThatIsNoText();
    void TellsTheNextTimers();
    void TellsTheLog();
    void RefusesOtherArguments_data();
    void RefusesOtherArguments();
};

void tst_TimersCommands::Loads() {
    const Companion companion;
    const QString file = companion.Write(u"Timer.txt"_s, Lines);
    const CompanionAnswer answer = Run(companion, {u"load"_s, file, u"--zone"_s, London});
    QCOMPARE(answer.Status, 0);
    QJsonObject call = Slot(1, u"03:05"_s, u"P"_s, u"5"_s, u"Call home"_s, 255);
    call[u"SoundFile"_s] = QString();
    call[u"TimerAction"_s] = u"None"_s;
    call[u"MusicVolume"_s] = u"0"_s;
    QJsonObject tea = Slot(2, u"04:30"_s, {}, u"0"_s, u"Tea"_s, 0xFF0000);
    tea[u"SoundFile"_s] = u".\\Sounds\\bell.wav"_s;
    tea[u"TimerAction"_s] = u"Log Off"_s;
    tea[u"MusicVolume"_s] = u"40"_s;
    QCOMPARE(answer.Object(),
             QJsonObject({{u"slots"_s, QJsonArray{call, tea}},
                          {u"deferred"_s, QJsonArray{u"17/11/2026 09:30=Tomorrow"_s}}}));
}

// In Tokyo it is nine hours later, so that the day's second half has begun.
void tst_TimersCommands::LoadsAtTheClocksTime() {
    const Companion companion;
    const QString file = companion.Write(u"Timer.txt"_s, Lines);
    const QJsonObject tokyo =
        Run(companion, {u"load"_s, file, u"--zone"_s, u"Tokyo Standard Time"_s}).Object();
    QCOMPARE(tokyo[u"slots"_s].toArray().size(), 2);
    QCOMPARE(tokyo[u"slots"_s].toArray()[1].toObject()[u"TimerTime"_s].toString(), u"09:30"_s);
    QCOMPARE(tokyo[u"deferred"_s].toArray(),
             QJsonArray{u"0,Blue,.\\Sounds\\bell.wav,Log Off,40#16/11/2026 16:30=Tea"_s});
}

void tst_TimersCommands::TellsOfAZoneThatNobodyKnows() {
    const Companion companion;
    const QString file = companion.Write(u"Timer.txt"_s, "");
    const QByteArray notice =
        "No time zone is called \"tokyo\": it counts as GMT. The nearest is "
        "\"Tokyo Standard Time\"\n";
    CompanionAnswer answer = Run(companion, {u"load"_s, file, u"--zone"_s, u"tokyo"_s});
    QCOMPARE(answer.Messages, notice);
    QCOMPARE(answer.Output, QByteArray("{\"deferred\":[],\"slots\":[]}\n"));
    QCOMPARE(answer.Status, 0);
    const QString saved = companion.Folder.filePath(u"saved.txt"_s);
    answer = Run(companion, {u"save"_s, file, saved, u"--zone"_s, u"tokyo"_s});
    QCOMPARE(answer.Messages, notice);
    QCOMPARE(answer.Status, 0);
    QCOMPARE(Run(companion, {u"load"_s, file, u"--zone"_s, London}).Messages, QByteArray());
}

void tst_TimersCommands::LoadsAMissingFile() {
    const CompanionAnswer answer =
        Run(Companion(), {u"load"_s, u"none.txt"_s, u"--zone"_s, London});
    QCOMPARE(answer.Status, 0);
    QCOMPARE(answer.Object(),
             QJsonObject({{u"slots"_s, QJsonArray()}, {u"deferred"_s, QJsonArray()}}));
}

void tst_TimersCommands::TellsOfAFileThatIsNoText() {
    const Companion companion;
    const QString file = companion.Write(u"Timer.txt"_s, QByteArray("3:5@a\0b\r\n", 9));
    const CompanionAnswer answer = Run(companion, {u"load"_s, file, u"--zone"_s, London});
    QCOMPARE(answer.Status, 1);
    QCOMPARE(answer.Object()[u"slots"_s].toArray().size(), 0);
}

void tst_TimersCommands::Saves() {
    const Companion companion;
    const QString file = companion.Write(u"Timer.txt"_s, Lines);
    const QString out = companion.Folder.filePath(u"Out.txt"_s);
    const CompanionAnswer answer = Run(companion, {u"save"_s, file, out, u"--zone"_s, London});
    QCOMPARE(answer.Status, 0);
    QCOMPARE(answer.Object(), QJsonObject({{u"lines"_s, 3}}));
    QCOMPARE(companion.Read(u"Out.txt"_s),
             QByteArray("5,Red,,None,0#15:5@Call home\r\n"
                        "0,Blue,.\\Sounds\\bell.wav,Log Off,40#16/11/2026 16:30=Tea\r\n"
                        "17/11/2026 09:30=Tomorrow\r\n"));
    QCOMPARE(companion.Read(u"Timer.txt"_s), Lines);
}

void tst_TimersCommands::TellsWhenItCannotSave() {
    const Companion companion;
    const QString file = companion.Write(u"Timer.txt"_s, Lines);
    const QString out = companion.Folder.filePath(u"none/Out.txt"_s);
    const CompanionAnswer answer = Run(companion, {u"save"_s, file, out, u"--zone"_s, London});
    QCOMPARE(answer.Status, 1);
    QCOMPARE(answer.Object(), QJsonObject({{u"lines"_s, 0}}));
    QCOMPARE(answer.Messages, (out + u" can't be written\n"_s).toUtf8());
}

void tst_TimersCommands::SavesNothingOfAFileThatIsNoText() {
    const Companion companion;
    const QString file = companion.Write(u"Timer.txt"_s, QByteArray("3:5@a\0b\r\n", 9));
    const QString out = companion.Write(u"Out.txt"_s, "3:5@Kept\r\n");
    const CompanionAnswer answer = Run(companion, {u"save"_s, file, out, u"--zone"_s, London});
    QCOMPARE(answer.Status, 1);
    QCOMPARE(answer.Object(), QJsonObject({{u"lines"_s, 0}}));
    QCOMPARE(companion.Read(u"Out.txt"_s), QByteArray("3:5@Kept\r\n"));
}

// At 9 o'clock in London it is 18 o'clock in Tokyo.
void tst_TimersCommands::TellsTheNextTimers() {
    const Companion companion;
    const QString kept =
        companion.Write(u"ann/Timers/GMT Standard TimeTimer.txt"_s,
                        "5,red,,None,0,16:30,2026-11-16T16:30:00Z#16/11/2026 16:30=Tea\r\n"
                        "16/12/2026 21:30=Call home\r\n");
    companion.Write(u"ann/TimeZones/GMT Standard Time.ini"_s, "Timer:Timer Clock=24,24,12\r\n");
    companion.Write(u"ann/Timers/Tokyo Standard TimeTimer.txt"_s, "5,red,,Reboot,0#19:5@Go\r\n");
    const QByteArray before = companion.Read(u"ann/Timers/GMT Standard TimeTimer.txt"_s);
    const CompanionAnswer answer = Run(companion, {u"next"_s});
    QCOMPARE(answer.Status, 0);
    const QJsonArray all = QJsonDocument::fromJson(answer.Output).array();
    QStringList lines;
    for (const QJsonValue& value : all) {
        lines += QStringList{value[u"at"_s].toString(), value[u"zone"_s].toString(),
                             value[u"time"_s].toString(), value[u"message"_s].toString(),
                             value[u"action"_s].toString()}
                     .join(u'|');
    }
    QCOMPARE(lines, QStringList({u"2026-11-16T10:05:00Z|Tokyo Standard Time|07:05|Go|Reboot"_s,
                                 u"2026-11-16T16:30:00Z|GMT Standard Time|16:30|Tea|None"_s,
                                 u"2026-12-16T21:30:00Z|GMT Standard Time|21:30|Call home|"_s}));
    QCOMPARE(all[1].toObject()[u"file"_s].toString(), kept);
    QCOMPARE(companion.Read(u"ann/Timers/GMT Standard TimeTimer.txt"_s), before);
    const CompanionAnswer one = Run(companion, {u"next"_s, u"--zone"_s, u"Tokyo Standard Time"_s});
    QCOMPARE(QJsonDocument::fromJson(one.Output).array().size(), 1);
}

void tst_TimersCommands::TellsTheLog() {
    const Companion companion;
    QCOMPARE(Run(companion, {u"log"_s}).Output.trimmed(), QByteArray("[]"));
    companion.Write(u"ann/Timers.log"_s,
                    "2026-11-16T14:10:00Z\tLondon\tset\t14:10\t0\tTea\r\n"
                    "2026-11-16T14:22:10Z\tLondon\tlate\t14:10\t730\tTea\r\n");
    const QJsonArray all = QJsonDocument::fromJson(Run(companion, {u"log"_s}).Output).array();
    QCOMPARE(all.size(), 2);
    const QJsonArray last =
        QJsonDocument::fromJson(Run(companion, {u"log"_s, u"--last"_s, u"1"_s}).Output).array();
    QCOMPARE(last, (QJsonArray{QJsonObject{{u"at"_s, u"2026-11-16T14:22:10Z"_s},
                                           {u"zone"_s, u"London"_s},
                                           {u"event"_s, u"late"_s},
                                           {u"time"_s, u"14:10"_s},
                                           {u"message"_s, u"Tea"_s},
                                           {u"late"_s, 730}}}));
}

void tst_TimersCommands::RefusesOtherArguments_data() {
    QTest::addColumn<QStringList>("command");

    QTest::newRow("no zone") << QStringList{u"load"_s, u"Timer.txt"_s};
    QTest::newRow("empty zone") << QStringList{u"load"_s, u"Timer.txt"_s, u"--zone"_s, QString()};
    QTest::newRow("no file") << QStringList{u"load"_s, u"--zone"_s, London};
    QTest::newRow("no OUT") << QStringList{u"save"_s, u"Timer.txt"_s, u"--zone"_s, London};
    QTest::newRow("save without zone") << QStringList{u"save"_s, u"Timer.txt"_s, u"Out.txt"_s};
}

void tst_TimersCommands::RefusesOtherArguments() {
    QFETCH(QStringList, command);
    const Companion companion;
    const CompanionAnswer answer = Run(companion, command);
    QCOMPARE(answer.Status, 2);
    QVERIFY(answer.Messages.contains("timers "));
    QVERIFY(!QFile::exists(companion.Folder.filePath(u"Out.txt"_s)));
}

QTEST_GUILESS_MAIN(tst_TimersCommands)
#include "tst_TimersCommands.moc"
