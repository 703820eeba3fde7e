#include <QMdiArea>
#include <QMdiSubWindow>

#include "clock/ui/frmTempolark.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "shell/ShellDesk.h"

/// Keys and the menu of a clock in the real shell.
class tst_KeysInTheShell : public QObject {
    Q_OBJECT

    static frmTempolark* Launch(Desk& desk) {
        desk.Zone(u"UTC"_s);
        if (!desk.Start()) {
            qFatal("no shell");
        }
        desk.Machine.Clock.Advance(2000);
        desk.Shell->LaunchTempolark(u"UTC"_s);
        desk.Machine.Clock.Advance(2000);
        return dynamic_cast<frmTempolark*>(desk.Windows.Find(1002));
    }

private Q_SLOTS:
    /// A disabled clock can't have the focus: its key comes by way of the shell.
    void CtrlEEnablesTheClockInFront() {
        Desk desk;
        frmTempolark* clock = Launch(desk);
        QVERIFY(clock != nullptr);
        clock->EnableWindow(false);
        QTest::keyClick(desk.Shell.get(), Qt::Key_W, Qt::ControlModifier);
        QVERIFY(!clock->IsEnabled());
        QTest::keyClick(desk.Shell.get(), Qt::Key_E, Qt::ControlModifier);
        QVERIFY(clock->IsEnabled());
        desk.Stop();
    }

    void TheUsersShortcutsReachTheClock() {
        Desk desk;
        frmTempolark* clock = Launch(desk);
        QTest::keyClick(clock, Qt::Key_F2);
        QVERIFY(clock->Data().Is(clockcore::ClockKind::Digital));
        QTest::keyClick(clock, Qt::Key_M, Qt::ControlModifier);
        QCOMPARE(clock->WindowState(), 2);
        QTest::keyClick(clock, Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(clock->WindowState(), 0);
        QTest::keyClick(clock, Qt::Key_D, Qt::ControlModifier);
        QVERIFY(!clock->IsEnabled());
        QTest::keyClick(desk.Shell.get(), Qt::Key_D, Qt::ControlModifier);
        QVERIFY(clock->IsEnabled());
        QTest::keyClick(clock, Qt::Key_T, Qt::ControlModifier);
        QVERIFY(desk.Shell->findChild<QWidget*>(u"frmTimeZones"_s) != nullptr);
        desk.Stop();
    }

    void AutoStartIsKept() {
        Desk desk;
        Launch(desk);
        desk.Shell->SetAutoStart(u"UTC"_s, true);
        ClockProperties list;
        mduLib::ReadPropertyFile(desk.Machine.Files, desk.Module.Paths.AutoStartFile, list);
        QCOMPARE(mduLib::GetPropertyRaw(u"UTC"_s, list), u"UTC"_s);
        desk.Stop();
    }
};

QTEST_MAIN(tst_KeysInTheShell)
#include "tst_KeysInTheShell.moc"
