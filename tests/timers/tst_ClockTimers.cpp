#include "timers/ClockTimers.h"

#include <QTest>

#include "foundation/PropertyLookup.h"
#include "support/FakeTimerHost.h"

using namespace Qt::StringLiterals;
using namespace timers;

namespace {

/// A desk whose timer file holds these lines, loaded at that moment.
struct Loaded : TimerDesk {
    explicit Loaded(const QByteArray& content, const QString& now = u"2026-11-16T09:00:00"_s) {
        SetNow(now);
        Path = Machine.WriteFile(u"Timer.txt"_s, content);
        Timers.LoadTimers(Path);
    }
    QByteArray Saved() {
        Timers.SaveTimer(Path);
        return Machine.ReadFile(u"Timer.txt"_s);
    }
    int Taken() const {
        int taken = 0;
        for (int slot = 1; slot <= Timers.SlotCount(); ++slot) {
            taken += Timers.Timer(slot).IsFree() ? 0 : 1;
        }
        return taken;
    }
    QString Path;
};

using Mark = FakeTimerHost::Mark;

}  // namespace

class tst_ClockTimers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void BeginsWithAHundredFreeSlots();
    void LoadsALine();
    void LoadsNothing_data();
    void LoadsNothing();
    void DefersLines();
    void DropsPastLines();
    void NormalisesTimes();
    void SavesWhatItLoaded();
    void LosesAPermanentHourOfTwelve();
    void KeepsAnAfternoonHourOfTwelve();
    void WritesASpentTimerWithoutTime();
    void SavesAnEmptyFile();
    void TellsWhenItCannotSave();
    void LeavesAFileThatItCouldNotRead_data();
    void LeavesAFileThatItCouldNotRead();
    void LeavesAFileThatItHasNotLoaded();
    void MakesSlots();
    void PlacesMarks_data();
    void PlacesMarks();
    void PlacesAllMarksAnew();
    void ClearsASlot();
    void SetsTheTemplate();
    void SetsANewTimer();
    void ANewTimerLeavesOutASoundThatBreaksItsLine();
    void ANewTimerHasNothingOfTheOldOne();
    void DefersATimer();
    void TakesFiveThousandLines();
    void TakesALongMessage();
};

void tst_ClockTimers::BeginsWithAHundredFreeSlots() {
    TimerDesk desk;
    QCOMPARE(desk.Timers.SlotCount(), 100);
    QVERIFY(desk.Timers.Timer(1).IsFree());
    QVERIFY(desk.Timers.Timer(100).IsFree());
}

void tst_ClockTimers::LoadsALine() {
    const Loaded desk("  5,red,,None,0#15:5@Call home \r\n");
    const ClockTimer expected{u"03:05"_s, u"P"_s,    true,      u"5"_s, u"Call home"_s,
                              255,        QString(), u"None"_s, u"0"_s};
    QCOMPARE(desk.Timers.Timer(1), expected);
    QVERIFY(desk.Timers.Timer(2).IsFree());
    QVERIFY(desk.Controls.imgTimer(1).Visible);
    QVERIFY(!desk.Controls.imgTimer(2).Visible);
    QCOMPARE(desk.Controls.txtMsg(1).Caption, u"Call home"_s);
    QCOMPARE(desk.Host.Marks, std::vector<Mark>({{1, 15, 6}}));
    QVERIFY(desk.Timers.DeferredTimerLines().isEmpty());
}

void tst_ClockTimers::LoadsNothing_data() {
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("empty") << QByteArray();
    QTest::newRow("line ends") << QByteArray("\r\n\n\r\n");
    QTest::newRow("comment") << QByteArray("remember the milk at 15:05\r\n");
    QTest::newRow("marks") << QByteArray("@\r\n=\r\n@=\r\n#@\r\n,,,,#=\r\n");
    QTest::newRow("bad times") << QByteArray("24:30@a\n99:99=b\n-1:00@c\n5@d\n12:@e\n");
}

void tst_ClockTimers::LoadsNothing() {
    QFETCH(QByteArray, content);
    const Loaded desk(content);
    QCOMPARE(desk.Taken(), 0);
    QVERIFY(desk.Timers.DeferredTimerLines().isEmpty());
    TimerDesk missing;
    missing.Timers.LoadTimers(missing.Machine.AppFolder() + u"/none.txt"_s);
    missing.Timers.LoadTimers({});
    QVERIFY(missing.Timers.Timer(1).IsFree());
    QVERIFY(missing.Host.Events.isEmpty());
}

void tst_ClockTimers::DefersLines() {
    Loaded desk("17/11/2026 09:30=Call home\r\n3:5=Twice\r\n16/11/2026 16:0=Now\r\n");
    const QStringList expected = {u"17/11/2026 09:30=Call home"_s, u"3:5=Twice"_s};
    QCOMPARE(desk.Timers.DeferredTimerLines(), expected);
    QCOMPARE(desk.Timers.Timer(1).TimerTime, u"03:05"_s);
    QCOMPARE(desk.Timers.Timer(2).TimerTime, u"04:00"_s);
    QCOMPARE(desk.Saved(), QByteArray("0,Black,,,#16/11/2026 15:5=Twice\r\n"
                                      "0,Black,,,#16/11/2026 16:0=Now\r\n"
                                      "17/11/2026 09:30=Call home\r\n3:5=Twice\r\n"));
}

void tst_ClockTimers::DropsPastLines() {
    Loaded desk("15/11/2026 09:30=Gone\r\n01/01/2020 15:5@Gone\r\n");
    QCOMPARE(desk.Taken(), 0);
    QCOMPARE(desk.Saved(), QByteArray());
}

void tst_ClockTimers::NormalisesTimes() {
    const Loaded desk("3:5@a\n12:30@b\n0:0@c\n16/11/2026 9:7=d\n23:59@e\n");
    QCOMPARE(desk.Timers.Timer(1).TimerTime, u"03:05"_s);
    QCOMPARE(desk.Timers.Timer(2).TimerTime, u"00:30"_s);
    QCOMPARE(desk.Timers.Timer(3).TimerTime, u"00:00"_s);
    QCOMPARE(desk.Timers.Timer(4).TimerTime, u"09:07"_s);
    QCOMPARE(desk.Timers.Timer(5).TimerTime, u"11:59"_s);
}

void tst_ClockTimers::SavesWhatItLoaded() {
    const QByteArray content =
        "5,Red,.\\Sounds\\bell.wav,None,30#15:5@Call home\r\n"
        "0,Blue,,Log Off,0#17/11/2026 23:59=Gr\xC3\xBC\xC3\x9F"
        "e\r\n"
        "18/11/2026 09:30=Later\r\n";
    Loaded desk(content, u"2026-11-16T13:00:00"_s);
    QCOMPARE(desk.Taken(), 2);
    QCOMPARE(desk.Saved(), content);
}

void tst_ClockTimers::LosesAPermanentHourOfTwelve() {
    Loaded desk("");
    desk.Timers.ChangeTimer(1, {u"12:30"_s, u"P"_s, true, u"5"_s, u"Lunch"_s, 0, {}, {}, {}});
    const QByteArray saved = desk.Saved();
    QCOMPARE(saved, QByteArray("5,Black,,,#24:30@Lunch\r\n"));
    QCOMPARE(Loaded(saved).Taken(), 0);
}

void tst_ClockTimers::KeepsAnAfternoonHourOfTwelve() {
    const ClockTimer lunch{u"12:30"_s, {}, true, u"5"_s, u"Lunch"_s, 0, {}, {}, {}};
    Loaded morning("");
    morning.Timers.ChangeTimer(1, lunch);
    QCOMPARE(morning.Saved(), QByteArray("5,Black,,,#16/11/2026 24:30=Lunch\r\n"));
    Loaded evening("", u"2026-11-16T18:00:00"_s);
    evening.Timers.ChangeTimer(1, lunch);
    const QByteArray saved = evening.Saved();
    QCOMPARE(saved, QByteArray("5,Black,,,#17/11/2026 12:30=Lunch\r\n"));
    QCOMPARE(Loaded(saved, u"2026-11-16T18:00:00"_s).Timers.Timer(1).TimerTime, u"00:30"_s);
}

void tst_ClockTimers::WritesASpentTimerWithoutTime() {
    Loaded desk("5,Red,a.wav,None,30#15:5@Call home\r\n");
    desk.Timers.ClearTimerSlot(1);
    const QByteArray saved = desk.Saved();
    QCOMPARE(saved, QByteArray(",Red,,,30#@\r\n"));
    QCOMPARE(Loaded(saved).Taken(), 0);
}

void tst_ClockTimers::SavesAnEmptyFile() {
    TimerDesk desk;
    const QString path = desk.Machine.AppFolder() + u"/New.txt"_s;
    desk.Timers.LoadTimers(path);
    desk.Timers.SaveTimer(path);
    QVERIFY(desk.Machine.Files.Exists(path));
    desk.Timers.SaveTimer({});
    QVERIFY(desk.Host.Events.isEmpty());
}

void tst_ClockTimers::TellsWhenItCannotSave() {
    Loaded desk("3:5@Call home\r\n");
    desk.Machine.Files.Unwritable = {desk.Path};
    desk.Timers.ClearTimerSlot(1);
    QCOMPARE(desk.Saved(), QByteArray("3:5@Call home\r\n"));
    QCOMPARE(desk.Host.Events, QStringList{u"status:"_s + desk.Path + u" can't be written"_s});
}

void tst_ClockTimers::LeavesAFileThatItCouldNotRead_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("unreadable");

    QTest::newRow("NUL") << QByteArray("3:5@Call\0home\r\n", 15) << false;
    QTest::newRow("refused") << QByteArray("3:5@Call home\r\n") << true;
    QTest::newRow("endless") << QByteArray("3:5@x\n").repeated(32768) << false;
}

void tst_ClockTimers::LeavesAFileThatItCouldNotRead() {
    QFETCH(QByteArray, content);
    QFETCH(bool, unreadable);
    TimerDesk desk;
    const QString path = desk.Machine.WriteFile(u"Timer.txt"_s, content);
    if (unreadable) {
        desk.Machine.Files.Unreadable = {path};
    }
    desk.Timers.LoadTimers(path);
    QVERIFY(!desk.Timers.FileWasRead());
    QVERIFY(desk.Timers.Timer(1).IsFree());
    desk.Machine.Files.Unreadable.clear();
    desk.Timers.SaveTimer(path);
    desk.Timers.SaveTimer(path);
    QCOMPARE(desk.Machine.ReadFile(u"Timer.txt"_s), content);
    QCOMPARE(desk.Host.Events,
             QStringList{u"status:"_s + path + u" can't be read and is left as it is"_s});
}

void tst_ClockTimers::LeavesAFileThatItHasNotLoaded() {
    TimerDesk desk;
    const QString path = desk.Machine.WriteFile(u"Timer.txt"_s, "3:5@Call home\r\n");
    desk.Timers.SaveTimer(path);
    QCOMPARE(desk.Machine.ReadFile(u"Timer.txt"_s), QByteArray("3:5@Call home\r\n"));
}

void tst_ClockTimers::MakesSlots() {
    Loaded desk(QByteArray("3:5@x\r\n").repeated(99));
    const auto picture = std::make_shared<QImage>(8, 9, QImage::Format_RGB32);
    desk.Controls.imgTimer(1).Picture = picture;
    desk.Controls.imgTimer(1).Enabled = false;
    desk.Controls.imgTimer(1).Width = 8;
    QCOMPARE(desk.Timers.GetFreeTimerSlot(), 100);
    QCOMPARE(desk.Timers.SetNewTimer(u"04:00"_s), 100);
    QCOMPARE(desk.Timers.SlotCount(), 100);
    QCOMPARE(desk.Timers.GetFreeTimerSlot(), 101);
    QCOMPARE(desk.Timers.GetFreeTimerSlot(), 101);
    QCOMPARE(desk.Timers.SlotCount(), 101);
    QCOMPARE(desk.Controls.imgTimer.Count(), 101);
    QCOMPARE(desk.Controls.txtMsg.Count(), 101);
    QCOMPARE(desk.Controls.imgTimer(101).Picture.get(), picture.get());
    QVERIFY(!desk.Controls.imgTimer(101).Enabled);
    QVERIFY(!desk.Controls.imgTimer(101).Visible);
    QCOMPARE(desk.Controls.imgTimer(101).Width, 8.0F);
    QCOMPARE(desk.Controls.txtMsg(101).Caption, QString());
    ClockTimer freed;
    desk.Timers.ChangeTimer(7, freed);
    QCOMPARE(desk.Timers.GetFreeTimerSlot(), 7);
}

void tst_ClockTimers::PlacesMarks_data() {
    QTest::addColumn<QString>("time");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("spot");
    QTest::addColumn<int>("place");

    QTest::newRow("midnight") << u"0:0"_s << u"00:00"_s << 0 << 1;
    QTest::newRow("3:5") << u"3:5"_s << u"03:05"_s << 15 << 6;
    QTest::newRow("11 minutes") << u"03:11"_s << u"03:11"_s << 15 << 12;
    QTest::newRow("12 minutes") << u"03:12"_s << u"03:12"_s << 16 << 1;
    QTest::newRow("last minute") << u"11:59"_s << u"11:59"_s << 59 << 12;
    QTest::newRow("noon") << u"12:30"_s << u"12:30"_s << 62 << 7;
    QTest::newRow("afternoon") << u"13:00"_s << u"13:00"_s << 5 << 1;
    QTest::newRow("end of day") << u"23:59"_s << u"23:59"_s << 59 << 12;
    QTest::newRow("with a date") << u"16/11/2026 9:30"_s << u"09:30"_s << 47 << 7;
}

void tst_ClockTimers::PlacesMarks() {
    QFETCH(QString, time);
    QFETCH(int, spot);
    QFETCH(int, place);
    TimerDesk desk;
    desk.Timers.PlaceTimerMark(3, time);
    QTEST(desk.Timers.Timer(3).TimerTime, "stored");
    QCOMPARE(desk.Host.Marks, std::vector<Mark>({{3, spot, place}}));
    desk.Timers.PlaceTimerMark(3, u"24:30"_s);
    desk.Timers.PlaceTimerMark(3, u"soon"_s);
    desk.Timers.PlaceTimerMark(3, {});
    QTEST(desk.Timers.Timer(3).TimerTime, "stored");
    QCOMPARE(desk.Host.Marks.size(), std::size_t(1));
}

void tst_ClockTimers::PlacesAllMarksAnew() {
    Loaded desk("3:5@a\r\n4:0@b\r\n5:0@c\r\n");
    desk.Timers.ClearTimerSlot(2);
    desk.Host.Marks.clear();
    desk.Timers.PlaceTimerMarks();
    QCOMPARE(desk.Host.Marks, std::vector<Mark>({{1, 15, 6}, {3, 25, 1}}));
}

void tst_ClockTimers::ClearsASlot() {
    Loaded desk("5,Red,a.wav,Log Off,30#15:5@Call home\r\n");
    desk.Timers.ClearTimerSlot(1);
    const ClockTimer spent{{}, u"P"_s, false, {}, {}, 255, {}, {}, u"30"_s};
    QCOMPARE(desk.Timers.Timer(1), spent);
    QVERIFY(!desk.Timers.Timer(1).IsFree());
    QVERIFY(!desk.Controls.imgTimer(1).Visible);
    QCOMPARE(desk.Controls.txtMsg(1).Caption, QString());
    QCOMPARE(desk.Timers.GetFreeTimerSlot(), 2);
}

void tst_ClockTimers::SetsTheTemplate() {
    TimerDesk desk;
    mduLib::PutPropertyRaw(u"Message Colour"_s, u"Blue,Red,Blue"_s, desk.Host.Properties);
    mduLib::PutProperty(u"Timer Sound File"_s, u".\\Sounds\\bell.wav"_s, desk.Host.Properties);
    desk.Timers.SetTemplate();
    QCOMPARE(desk.Timers.Timer(1).MessageColour, 0xFF0000);
    QCOMPARE(desk.Timers.Timer(1).SoundFile, u".\\Sounds\\bell.wav"_s);
    QVERIFY(desk.Timers.Timer(1).IsFree());
    QCOMPARE(desk.Timers.Timer(2), ClockTimer());
}

void tst_ClockTimers::SetsANewTimer() {
    Loaded desk("3:5@a\r\n");
    desk.Controls.imgTimer(1).Picture = std::make_shared<QImage>(8, 9, QImage::Format_RGB32);
    mduLib::PutProperty(u"Message Colour"_s, u"Green"_s, desk.Host.Properties);
    mduLib::PutProperty(u"Timer Sound File"_s, u"bell.wav"_s, desk.Host.Properties);
    mduLib::PutProperty(u"Message Display Time"_s, u"5"_s, desk.Host.Properties);
    QCOMPARE(desk.Timers.SetNewTimer(u"04:10"_s), 2);
    const ClockTimer expected{u"04:10"_s, {}, true, u"5"_s, {}, 65280, u"bell.wav"_s, {}, {}};
    QCOMPARE(desk.Timers.Timer(2), expected);
    QVERIFY(desk.Controls.imgTimer(2).Visible);
    QCOMPARE(desk.Controls.imgTimer(2).Picture.get(), desk.Controls.imgTimer(1).Picture.get());
    QCOMPARE(desk.Host.Marks.back(), (Mark{2, 20, 11}));
}

// A line can't hold it, and would not be read again.
void tst_ClockTimers::ANewTimerLeavesOutASoundThatBreaksItsLine() {
    Loaded desk("");
    mduLib::PutProperty(u"Message Colour"_s, u"Green"_s, desk.Host.Properties);
    for (const QString& sound : {u"a#b.wav"_s, u"a@b.wav"_s}) {
        mduLib::PutProperty(u"Timer Sound File"_s, sound, desk.Host.Properties);
        desk.Host.TakeEvents();
        const int slot = desk.Timers.SetNewTimer(u"04:10"_s);
        QCOMPARE(desk.Timers.Timer(slot).SoundFile, QString());
        QCOMPARE(desk.Host.TakeEvents(),
                 QStringList{u"status:"_s + sound +
                             u" has one of , # @ = in its name; no timer can keep it"_s});
        desk.Timers.SetTemplate();
        QCOMPARE(desk.Timers.Timer(1).SoundFile, QString());
    }
}

void tst_ClockTimers::ANewTimerHasNothingOfTheOldOne() {
    Loaded desk("5,Red,,Log Off,40#15:5@a\r\n");
    ClockTimer old = desk.Timers.Timer(1);
    old.Permanent.clear();
    old.OnDial = false;  // off the dial, but not cleared
    desk.Timers.ChangeTimer(1, old);
    QCOMPARE(desk.Timers.SetNewTimer(u"04:10"_s), 1);
    QCOMPARE(desk.Timers.Timer(1).Message, QString());
    QCOMPARE(desk.Timers.Timer(1).TimerAction, QString());
    QCOMPARE(desk.Timers.Timer(1).MusicVolume, QString());
    QCOMPARE(desk.Controls.txtMsg(1).Caption, QString());
}

void tst_ClockTimers::DefersATimer() {
    Loaded desk("");
    desk.Timers.ChangeTimer(
        1, {u"09:30"_s, {}, true, u"5"_s, u" Call\r\nhome "_s, 255, u"bell.wav"_s, {}, {}});
    desk.Timers.DeferTimer(1, QDate(2026, 11, 19));
    QVERIFY(desk.Timers.Timer(1).IsFree());
    QVERIFY(!desk.Controls.imgTimer(1).Visible);
    QCOMPARE(desk.Timers.DeferredTimerLines(), QStringList{u"19/11/2026 09:30=Call home"_s});
    QCOMPARE(desk.Saved(), QByteArray("19/11/2026 09:30=Call home\r\n"));
}

void tst_ClockTimers::TakesFiveThousandLines() {
    Loaded desk(QByteArray("5,Red,,None,0#15:5@Call home\r\n").repeated(5000));
    QCOMPARE(desk.Timers.SlotCount(), 5000);
    QCOMPARE(desk.Taken(), 5000);
    QCOMPARE(desk.Timers.Timer(5000).TimerTime, u"03:05"_s);
    QCOMPARE(desk.Saved(), QByteArray("5,Red,,None,0#15:5@Call home\r\n").repeated(5000));
}

void tst_ClockTimers::TakesALongMessage() {
    const QByteArray line = "0,Red,,None,0#15:5@" + QByteArray(100000, 'x') + "\r\n";
    Loaded desk(line);
    QCOMPARE(desk.Timers.Timer(1).Message.size(), 100000);
    QCOMPARE(desk.Saved(), line);
}

QTEST_GUILESS_MAIN(tst_ClockTimers)
#include "tst_ClockTimers.moc"
