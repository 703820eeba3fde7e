#include "MenuClicks.h"

namespace {

const QString Zone = u"UTC"_s;
constexpr int Second = 1000;

/// A clock that has the focus, at noon of 15 June 2026 in GMT, with one pattern of its file.
struct PatternDesk : ClickedDesk {
    frmTempolark* Clock = nullptr;

    explicit PatternDesk(const QByteArray& minutePattern) {
        Base.Machine.WriteFile(
            u"tester/TimeZones/UTC.ini"_s,
            Base.Machine.ReadFile(u"ini/Tempolark.ini"_s)
                .replace("Speech Minute Pattern=None", "Speech Minute Pattern=" + minutePattern));
        Clock = Running(Zone);
    }
    bool HasFocus() {
        Base.Area.activateWindow();
        Clock->SetFocus();
        return QTest::qWaitForWindowActive(&Base.Area);
    }

    /// What is spoken from now on until that many seconds have gone by.
    QStringList SpokenIn(int seconds) {
        Devices.Voices.Log.clear();
        Base.Machine.Clock.Advance(seconds * Second);
        return Devices.Voices.Log;
    }
};

}  // namespace

/// The patterns that a clock speaks by are those of its file, and at once those that are set.
class tst_SpokenTimeOnAClock : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void SpeaksByItsFile() {
        PatternDesk desk("<Minute> past");
        QVERIFY(desk.HasFocus());
        QCOMPARE(desk.SpokenIn(125), QStringList({u"2 1 past"_s, u"2 2 past"_s}));
    }

    void SpeaksByItsMenu() {
        PatternDesk desk("None");
        QVERIFY(desk.HasFocus());
        QCOMPARE(desk.SpokenIn(65), QStringList());
        desk.Click(*desk.Clock, desk.Clock->Controls().imgSpeaker(1), Qt::RightButton);
        PatternDesk::Choose({u"Minute Speak Pattern"_s, u"<Minute>"_s});
        QVERIFY(desk.HasFocus());
        QCOMPARE(desk.SpokenIn(60), QStringList{u"2 2"_s});
    }

    void SpeaksByWhatWasSaved() {
        PatternDesk desk("None");
        QVERIFY(desk.HasFocus());
        ClockProperties changed = desk.Clock->Data().Properties();
        mduLib::PutProperty(u"Speech Minute Pattern"_s, u"new <Minute>"_s, changed);
        desk.Base.Module.CurrentProperties = changed;
        desk.Clock->RefreshForm({});
        QVERIFY(desk.HasFocus());
        QCOMPARE(desk.SpokenIn(65), QStringList{u"2 new 1"_s});
    }

    // Each second has its pattern, and the voice takes longer: nothing piles up.
    void PassesOverWhatItHasNoTimeFor() {
        PatternDesk desk("<Minute>");
        QVERIFY(desk.HasFocus());
        desk.Devices.Voices.Lasting = true;
        QCOMPARE(desk.SpokenIn(185), QStringList{u"2 1"_s});
        desk.Devices.Voices.EndText();
        QCOMPARE(desk.SpokenIn(60), QStringList{u"2 4"_s});
    }
};

QTEST_MAIN(tst_SpokenTimeOnAClock)
#include "tst_SpokenTimeOnAClock.moc"
