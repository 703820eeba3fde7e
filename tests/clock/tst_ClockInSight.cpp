#include <QMdiSubWindow>
#include <QTest>

#include "ClockDesk.h"

/// A message without an end makes its clock tick ten times a second, but only where somebody could
/// see it move.
class tst_ClockInSight : public QObject {
    Q_OBJECT

    struct Clock : Desk {
        frmTempolark* Shown = nullptr;

        Clock() {
            Machine.WriteFile(u"tester/Timers/UTCTimer.txt"_s,
                              "0,red,,None,0#12:1@On and on and on\r\n");
            Shown = Running(u"UTC"_s);
            Machine.Clock.Advance(65'000);
        }
        QMdiSubWindow* Frame() const { return qobject_cast<QMdiSubWindow*>(Shown->parentWidget()); }

        /// The clock's ticks in ten seconds, once it has settled; the minutes hold no other work.
        int TicksInTenSeconds() {
            Machine.Clock.Advance(3'000);
            int ticks = 0;
            for (int step = 0; step < 1'000; ++step) {
                const int before = Position();
                Machine.Clock.Advance(10);
                ticks += Position() != before ? 1 : 0;
            }
            return ticks;
        }

    private:
        /// Each step moves the label or its text.
        int Position() const {
            const mduUILib::Control& label = Shown->Controls().lblMsg(1);
            return static_cast<int>(label.Left * 1000) + static_cast<int>(label.Caption.size());
        }
    };

private Q_SLOTS:
    void RunsFastInSight() {
        Clock clock;
        QVERIFY(clock.Shown->Controls().lblMsg(1).Visible);
        QVERIFY(clock.TicksInTenSeconds() > 90);
    }

    void RestsOutOfSight_data() {
        QTest::addColumn<QString>("how");
        for (const char* how :
             {"clock hidden", "clock minimised", "area hidden", "area minimised", "covered"}) {
            QTest::newRow(how) << QString::fromLatin1(how);
        }
    }

    void RestsOutOfSight() {
        QFETCH(QString, how);
        Clock clock;
        if (how == u"clock hidden"_s) {
            clock.Frame()->hide();
        } else if (how == u"clock minimised"_s) {
            clock.Shown->SetWindowState(1);
        } else if (how == u"area hidden"_s) {
            clock.Area.hide();
        } else if (how == u"area minimised"_s) {
            clock.Area.showMinimized();
        } else {
            frmTempolark* other = clock.Running(u"India Standard Time"_s);
            other->SetWindowState(2);
        }
        QVERIFY(clock.TicksInTenSeconds() <= 10);
        if (how == u"clock hidden"_s) {
            clock.Frame()->show();
            QVERIFY(clock.TicksInTenSeconds() > 90);
        }
    }
};

QTEST_MAIN(tst_ClockInSight)
#include "tst_ClockInSight.moc"
