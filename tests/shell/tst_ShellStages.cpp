#include "shell/ShellStages.h"

#include <QTest>

#include "support/FakeServices.h"

using namespace Qt::StringLiterals;

/// The shell's timer, without a shell. The machine's clock stands at noon.
class tst_ShellStages : public QObject {
    Q_OBJECT

private:
    struct Desk {
        FakeServices Machine;
        QStringList Log;
        shell::ShellStages Stages{Machine.Clock,
                                  {[this] { Log += u"first"_s; }, [this] { Log += u"second"_s; },
                                   [this](const QString& text) { Log += u"message "_s + text; },
                                   [this](int frame) { Log += u"eye %1"_s.arg(frame); },
                                   [this](const QString& time) { Log += u"time "_s + time; }}};
        QStringList After(int milliseconds) {
            Machine.Clock.Advance(milliseconds);
            return std::exchange(Log, {});
        }
    };

private Q_SLOTS:
    // A tick that is due sooner still comes, so that the second follows the first at once.
    void TwoTicksEndTheStart() {
        Desk desk;
        QCOMPARE(desk.After(60'000), QStringList());
        desk.Stages.Start();
        QVERIFY(!desk.Stages.HasBegun());
        QCOMPARE(desk.After(1), (QStringList{u"first"_s, u"time 12:01"_s}));
        QVERIFY(desk.Stages.HasBegun());
        QCOMPARE(desk.After(1), QStringList{u"second"_s});
        QCOMPARE(desk.After(399), QStringList());
        QCOMPARE(desk.After(1), (QStringList{u"eye 0"_s, u"message "_s, u"time 12:01"_s}));
    }

    void RestsForTenSeconds() {
        Desk desk;
        desk.Stages.Start();
        desk.After(802);
        QCOMPARE(desk.After(9'999), QStringList());
        QCOMPARE(desk.After(1), (QStringList{u"eye 0"_s, u"message "_s, u"time 12:00"_s}));
        QCOMPARE(desk.After(10'000).size(), 3);
    }

    void AMessageWakesIt() {
        Desk desk;
        desk.Stages.Start();
        desk.After(802);
        desk.Stages.ShowStatusMsg(u"A"_s);
        desk.Stages.ShowStatusMsg(u"B"_s);
        QCOMPARE(desk.After(399), (QStringList{u"message A"_s, u"message B << A"_s}));
        QCOMPARE(desk.After(1), (QStringList{u"eye 1"_s, u"message  << A"_s, u"time 12:00"_s}));
        QCOMPARE(desk.After(400), (QStringList{u"eye 2"_s, u"message A"_s, u"time 12:00"_s}));
        QCOMPARE(desk.Stages.Panel(), u"A"_s);
        desk.Stages.ClearMessages();
        QCOMPARE(desk.Stages.Panel(), QString());
        QCOMPARE(desk.After(400),
                 (QStringList{u"message "_s, u"eye 0"_s, u"message "_s, u"time 12:00"_s}));
    }

    /// An empty message is none: it does not keep the timer busy.
    void AnEmptyMessageLetsItRest() {
        Desk desk;
        desk.Stages.Start();
        desk.After(802);
        desk.Stages.ShowStatusMsg({});
        QCOMPARE(desk.After(9'999), QStringList{u"message "_s});
    }

    /// What is told before the start does not start the timer.
    void AMessageBeforeTheStart() {
        Desk desk;
        desk.Stages.ShowStatusMsg(u"early"_s);
        QCOMPARE(desk.After(60'000), QStringList{u"message early"_s});
        desk.Stages.Start();
        QCOMPARE(desk.After(1), (QStringList{u"first"_s, u"time 12:01"_s}));
        desk.Stages.ShowStatusMsg(u"next"_s);
        QCOMPARE(desk.After(1), (QStringList{u"message next << early"_s, u"second"_s}));
        QCOMPARE(desk.After(400),
                 (QStringList{u"eye 1"_s, u"message ext << early"_s, u"time 12:01"_s}));
    }
};

QTEST_GUILESS_MAIN(tst_ShellStages)
#include "tst_ShellStages.moc"
