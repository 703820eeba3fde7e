#include "ShellDesk.h"
#include "support/FakeDevices.h"

namespace {

/// A shell whose voice writes down what it says.
struct SpeakingDesk : Desk {
    FakeDevices Devices;
    platform::Services Machines = Devices.On(Services);
    Program Speaking{Machines, Module, Windows};

    bool StartSpeaking() {
        Shell = std::make_unique<frmMain>(Speaking);
        return Shell->Load();
    }
    StatusBar& Status() const { return *Shell->findChild<StatusBar*>(); }
};

}  // namespace

/// What the shell's timer does when.
class tst_StagesInTheShell : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // At noon of 15 June 2026.
    void GreetsWithItsFirstTick() {
        SpeakingDesk desk;
        desk.Machine.WriteFile(
            u"ini/TempolarkCentral.ini"_s,
            desk.Machine.ReadFile(u"ini/TempolarkCentral.ini"_s)
                .replace("Start Message=0", "Start Message=Good <Morning/Afternoon/Evening>"));
        QVERIFY(desk.StartSpeaking());
        QCOMPARE(desk.Devices.Voices.Log, QStringList());
        desk.Machine.Clock.Advance(1);
        QCOMPARE(desk.Devices.Voices.Log, QStringList{u"1 Good Afternoon"_s});
        desk.Machine.Clock.Advance(60'000);
        QCOMPARE(desk.Devices.Voices.Log.size(), 1);
        desk.Stop();
    }

    // With nothing to tell it looks at the time each ten seconds, not more often.
    void RestsWithAnEmptyMessageLine() {
        SpeakingDesk desk;
        QVERIFY(desk.StartSpeaking());
        desk.Machine.Clock.Advance(60'000);
        QCOMPARE(desk.Status().Message(), QString());
        QList<int> looks;
        for (int second = 1; second <= 40; ++second) {
            // A mark of the test's own, which the next look at the time replaces.
            desk.Status().SetTimeText(u"?"_s);
            desk.Machine.Clock.Advance(1'000);
            if (desk.Status().TimeText() != u"?"_s) {
                looks += second;
            }
        }
        QCOMPARE(looks.size(), 4);
        for (int look = 1; look < looks.size(); ++look) {
            QCOMPARE(looks[look] - looks[look - 1], 10);
        }
        desk.Stop();
    }

    // The line scrolls two and a half times a second.
    void IsBusyWithMessages() {
        SpeakingDesk desk;
        QVERIFY(desk.StartSpeaking());
        desk.Machine.Clock.Advance(60'000);
        desk.Shell->ShowStatusMsg(u"one"_s);
        desk.Shell->ShowStatusMsg(u"two"_s);
        const qsizetype before = desk.Status().Message().size();
        desk.Machine.Clock.Advance(799);
        QCOMPARE(before - desk.Status().Message().size(), 1);
        desk.Machine.Clock.Advance(1);
        QCOMPARE(before - desk.Status().Message().size(), 2);
        desk.Stop();
    }
};

QTEST_MAIN(tst_StagesInTheShell)
#include "tst_StagesInTheShell.moc"
