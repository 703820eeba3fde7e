#include "shell/ui/ShellPlacement.h"

#include <QApplication>
#include <QScreen>
#include <QTest>
#include <QWidget>

#include "shell/SettingsDesk.h"

using namespace Qt::StringLiterals;

/// A plain window that is placed as the shell's is. The screen of the test is 800 by 800.
class tst_ShellPlacement : public QObject {
    Q_OBJECT

private:
    struct Desk : SettingsDesk {
        QWidget Window;
        ShellPlacement Placement{Window, Settings};
        void Place(const QString& left, const QString& top, const QString& width,
                   const QString& height, const QString& state = u"Normal"_s) {
            Hold({{u"Window Left"_s, left},
                  {u"Window Top"_s, top},
                  {u"Window Width"_s, width},
                  {u"Window Height"_s, height},
                  {u"Window State"_s, state}});
            Placement.ApplyPlacement();
        }
        QString Stored(const QString& key) const { return Settings.Setting(key); }
    };

private Q_SLOTS:
    void initTestCase() {
        QCOMPARE(QApplication::primaryScreen()->availableGeometry(), QRect(0, 0, 800, 800));
    }

    void StandsWhereTheSettingsHaveIt() {
        Desk desk;
        desk.Place(u"150"_s, u"-1"_s, u"9000"_s, u"6000"_s);
        QCOMPARE(desk.Window.pos(), QPoint(10, 200));
        QCOMPARE(desk.Window.size(), QSize(600, 400));
        desk.Placement.ShowAtStart();
        QVERIFY(desk.Window.isVisible());
        QCOMPARE(desk.Placement.WindowState(), 0);
        desk.Placement.SavePlacement();
        QCOMPARE(desk.Stored(u"Window Left"_s), u"150"_s);
        QCOMPARE(desk.Stored(u"Window Top"_s), u"3000"_s);
        desk.Window.resize(500, 400);
        desk.Placement.SavePlacement();
        QCOMPARE(desk.Stored(u"Window Width"_s), u"7500"_s);
        QCOMPARE(desk.Stored(u"Window Height"_s), u"6000"_s);
    }

    void AMaximisedWindowKeepsItsNumbers() {
        Desk desk;
        desk.Place(u"150"_s, u"300"_s, u"3000"_s, u"3000"_s, u"Maximized"_s);
        QCOMPARE(desk.Window.size(), QSize(800, 800));  // as large as it will be seen
        QCOMPARE(desk.Window.pos(), QPoint(100, 100));
        desk.Placement.ShowAtStart();
        QCOMPARE(desk.Placement.WindowState(), 2);
        desk.Placement.SavePlacement();
        QCOMPARE(desk.Stored(u"Window Left"_s), u"150"_s);
        QCOMPARE(desk.Stored(u"Window Width"_s), u"3000"_s);
    }

    void AMinimisedWindowHasAPlaceToComeBackTo() {
        Desk desk;
        desk.Place(u"150"_s, u"300"_s, u"3000"_s, u"3000"_s, u"Minimized"_s);
        QCOMPARE(desk.Window.geometry(), QRect(100, 100, 600, 600));
        desk.Placement.ShowAtStart();
        QCOMPARE(desk.Placement.WindowState(), 1);
        desk.Placement.SetWindowState(0);
        QCOMPARE(desk.Placement.WindowState(), 0);
    }

    /// The frame is known only once the window is shown; a window that was cut for it alone keeps
    /// its numbers.
    void FitsItsFrameOnTheScreen() {
        Desk desk;
        desk.Place(u"0"_s, u"0"_s, u"30000"_s, u"30000"_s);
        desk.Placement.ShowAtStart();
        desk.Placement.FitOnScreen();
        QVERIFY(QRect(0, 0, 800, 800).contains(desk.Window.frameGeometry()));
        desk.Placement.SavePlacement();
        QCOMPARE(desk.Stored(u"Window Height"_s), u"30000"_s);
    }

    void TheTitleBarComesAndGoes() {
        Desk desk;
        QVERIFY(desk.Placement.HasTitleBar());
        desk.Placement.ApplyTitleBar(false);
        QVERIFY(!desk.Placement.HasTitleBar());
        QVERIFY(!desk.Window.isVisible());
        desk.Window.show();
        desk.Placement.ApplyTitleBar(true);
        QVERIFY(desk.Placement.HasTitleBar());
        QVERIFY(desk.Window.isVisible());
    }

    void TakesTheScreen() {
        Desk desk;
        desk.Placement.TakeScreen();
        QVERIFY(!desk.Placement.HasTitleBar());
        QVERIFY(desk.Window.windowFlags() & Qt::WindowStaysOnTopHint);
        QCOMPARE(desk.Window.geometry(), QRect(0, 0, 800, 800));
    }
};

QTEST_MAIN(tst_ShellPlacement)
#include "tst_ShellPlacement.moc"
