#include "shell/ShellDesk.h"
#include "support/FakeOneProgram.h"

namespace {

/// A shell that runs, and the starts that come after it.
struct RunningDesk : Desk {
    FakeOneProgram Program;

    bool Run() {
        const bool started = Start();
        Program.Listen([this](const QString& line) { Shell->TakeOver(line); });
        Settle();
        return started;
    }
};

}  // namespace

/// What the shell makes of a later start of the program.
class tst_TakeOver : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void OpensTheZone() {
        RunningDesk desk;
        QVERIFY(desk.Run());
        QVERIFY(desk.HeaderShows());
        desk.Program.LaterStart(u" Tokyo Standard Time "_s);
        desk.Settle();
        QCOMPARE(desk.Clocks(), QStringList{u"Tokyo Standard Time"_s});
        QVERIFY(desk.HasZone(u"Tokyo Standard Time"_s));
        QVERIFY(!desk.HeaderShows());
    }

    void TellsOfAMistypedZone() {
        RunningDesk desk;
        QVERIFY(desk.Run());
        desk.Program.LaterStart(u"tokyo"_s);
        desk.Settle();
        QCOMPARE(desk.Clocks(), QStringList{u"tokyo"_s});
        QVERIFY(desk.Status().startsWith(
            u"No time zone is called \"tokyo\": it counts as GMT. The nearest is \"Tokyo Standard "
            "Time\""_s));
    }

    void OpensNothingWithoutAName() {
        RunningDesk desk;
        QVERIFY(desk.Run());
        desk.Program.LaterStart(QString());
        desk.Settle();
        QCOMPARE(desk.Clocks(), QStringList());
        QVERIFY(desk.HeaderShows());
    }

    void ComesToTheFront_data() {
        QTest::addColumn<int>("state");
        QTest::newRow("normal") << 0;
        QTest::newRow("maximised") << 2;
    }

    /// Minimised or not, it shows in the state that it had.
    void ComesToTheFront() {
        QFETCH(int, state);
        RunningDesk desk;
        QVERIFY(desk.Run());
        desk.Shell->SetWindowState(state);
        desk.Shell->setWindowState(desk.Shell->windowState() | Qt::WindowMinimized);
        QCOMPARE(desk.Shell->WindowState(), 1);
        QWidget other;
        other.show();
        other.activateWindow();
        QTRY_VERIFY(other.isActiveWindow());
        desk.Program.LaterStart(QString());
        QTRY_VERIFY(desk.Shell->isActiveWindow());
        QCOMPARE(desk.Shell->WindowState(), state);
        QVERIFY(desk.Shell->isVisible());
    }

    void ShowsAgainWhatIsHidden() {
        RunningDesk desk;
        QVERIFY(desk.Run());
        desk.Shell->hide();
        desk.Program.LaterStart(QString());
        QVERIFY(desk.Shell->isVisible());
    }

    void RefusesNamesThatAreNoFileNames() {
        RunningDesk desk;
        QVERIFY(desk.Run());
        desk.Program.LaterStart(u"../../evil"_s);
        desk.Settle();
        QCOMPARE(desk.Clocks(), QStringList());
        QCOMPARE(desk.Status(), u"A time zone's name can't hold a path separator"_s);
    }

    void FillsTheScreenAsAScreenSaver() {
        RunningDesk desk;
        QVERIFY(desk.Run());
        desk.Program.LaterStart(u"/s"_s);
        desk.Settle();
        QCOMPARE(desk.Shell->WindowState(), 2);
        QCOMPARE(desk.Clocks(), QStringList());
        QVERIFY(!desk.HasZone(u"s"_s));
        QVERIFY(desk.Button(u"Launch"_s)->isVisible());
    }
};

QTEST_MAIN(tst_TakeOver)
#include "tst_TakeOver.moc"
