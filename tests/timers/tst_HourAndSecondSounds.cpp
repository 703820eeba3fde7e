#include "timers/HourAndSecondSounds.h"

#include <QTest>

#include "foundation/PropertyLookup.h"
#include "support/FakeTimerHost.h"

using namespace Qt::StringLiterals;

namespace {

struct SoundDesk : TimerDesk {
    SoundDesk() {
        HourFile = Machine.WriteFile(u"Sounds/hour.wav"_s, "RIFF");
        SecondFile = Machine.WriteFile(u"Sounds/tick.wav"_s, "RIFF");
        Set(u"Hour Sound File"_s, u".\\Sounds\\hour.wav"_s);
        Set(u"Second Sound File"_s, SecondFile);
    }
    void Set(const QString& name, const QString& value) {
        mduLib::PutProperty(name, value, Host.Properties);
    }
    QString HourFile, SecondFile;
    timers::HourAndSecondSounds Sounds{Context};
};

}  // namespace

class tst_HourAndSecondSounds : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void SoundsTheHour();
    void IsBusyForFiveTicksMore();
    void IsSilentWithinTheHour();
    void IsSilentWithoutAFile_data();
    void IsSilentWithoutAFile();
    void SoundsEachSecondOnce();
    void FollowsTheMachinesTime();
};

void tst_HourAndSecondSounds::SoundsTheHour() {
    SoundDesk desk;
    QVERIFY(desk.Sounds.PlayHourSound());
    QCOMPARE(desk.Host.Events, QStringList{u"sound:"_s + desk.HourFile});
}

void tst_HourAndSecondSounds::IsBusyForFiveTicksMore() {
    SoundDesk desk;
    QList<bool> busy;
    QList<int> counts;
    for (int tick = 0; tick < 8; ++tick) {
        busy += desk.Sounds.PlayHourSound();
        counts += desk.Sounds.HourSoundCount();
        desk.Machine.Clock.Advance(1000);
    }
    QCOMPARE(busy, QList<bool>({true, true, true, true, true, true, false, false}));
    QCOMPARE(counts, QList<int>({1, 2, 3, 4, 5, 0, 0, 0}));
    QCOMPARE(desk.Host.Events.size(), 1);
}

void tst_HourAndSecondSounds::IsSilentWithinTheHour() {
    SoundDesk desk;
    desk.SetNow(u"2026-06-15T12:00:01"_s);
    QVERIFY(!desk.Sounds.PlayHourSound());
    desk.SetNow(u"2026-06-15T12:30:00"_s);
    QVERIFY(!desk.Sounds.PlayHourSound());
    QVERIFY(desk.Host.Events.isEmpty());
}

void tst_HourAndSecondSounds::IsSilentWithoutAFile_data() {
    QTest::addColumn<QString>("file");

    QTest::newRow("unset") << QString();
    QTest::newRow("none") << u"None"_s;
    QTest::newRow("missing") << u".\\Sounds\\gone.wav"_s;
}

void tst_HourAndSecondSounds::IsSilentWithoutAFile() {
    QFETCH(QString, file);
    SoundDesk desk;
    desk.Set(u"Hour Sound File"_s, file);
    desk.Set(u"Second Sound File"_s, file);
    QVERIFY(!desk.Sounds.PlayHourSound());
    QCOMPARE(desk.Sounds.HourSoundCount(), 0);
    desk.Sounds.PlaySecondSound();
    QVERIFY(desk.Host.Events.isEmpty());
    QCOMPARE(desk.Sounds.LastSecond(), 0);
}

void tst_HourAndSecondSounds::SoundsEachSecondOnce() {
    SoundDesk desk;
    desk.Sounds.PlaySecondSound();
    desk.Machine.Clock.Advance(900);
    desk.Sounds.PlaySecondSound();
    QCOMPARE(desk.Host.TakeEvents(), QStringList{u"sound:"_s + desk.SecondFile});
    desk.Machine.Clock.Advance(100);
    desk.Sounds.PlaySecondSound();
    QCOMPARE(desk.Host.TakeEvents(), QStringList{u"sound:"_s + desk.SecondFile});
    QCOMPARE(desk.Sounds.LastSecond(), 1);
}

void tst_HourAndSecondSounds::FollowsTheMachinesTime() {
    SoundDesk desk;
    desk.Zone.HoursFromLocal = 0.5;
    QVERIFY(desk.Sounds.PlayHourSound());
}

QTEST_GUILESS_MAIN(tst_HourAndSecondSounds)
#include "tst_HourAndSecondSounds.moc"
