#include <QContextMenuEvent>
#include <QDialog>
#include <QListWidget>
#include <QTest>
#include <QWheelEvent>

#include "foundation/ui/BalloonWindow.h"
#include "shell/ShellDesk.h"
#include "shell/ui/ToolBar.h"
#include "support/FakeSettings.h"

/// A toolbar of its own, 300 pixels long.
struct Bar {
    Bar()
        : Tools(Files, u"/nowhere"_s,
                {[this](int i) { Clicked += i; }, [this](int i) { Hovered += i; },
                 [this](const QPoint&) { ++Menus; }},
                nullptr) {
        Tools.resize(300, 40);
        Tools.ApplyToolbarSize(u"Small Size"_s);
        Tools.show();
    }
    void Move(const QPoint& to) {
        QMouseEvent move(QEvent::MouseMove, to, Tools.mapToGlobal(to), Qt::NoButton,
                         QGuiApplication::mouseButtons(), {});
        QCoreApplication::sendEvent(&Tools, &move);
    }
    QString Seen() const {
        QStringList numbers;
        for (int i = 1; i <= shell::Tool::Count; ++i) {
            if (Tools.Button(i) != nullptr && Tools.Button(i)->isVisible()) {
                numbers += QString::number(i);
            }
        }
        return numbers.join(u' ');
    }
    /// The left button goes down at one place of the bar, moves, and is let go.
    void Drag(const QPoint& from, const QPoint& to) {
        QTest::mousePress(&Tools, Qt::LeftButton, {}, from);
        QMouseEvent first(QEvent::MouseMove, from, Tools.mapToGlobal(from), Qt::NoButton,
                          Qt::LeftButton, {});
        QCoreApplication::sendEvent(&Tools, &first);
        QMouseEvent move(QEvent::MouseMove, to, Tools.mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                         {});
        QCoreApplication::sendEvent(&Tools, &move);
        QTest::mouseRelease(&Tools, Qt::LeftButton, {}, to);
    }

    QList<int> Clicked;
    QList<int> Hovered;
    int Menus = 0;
    platform::LocalFiles Files;
    ToolBar Tools;
};

/// The balloon on the screen; null if there is none.
static const BalloonWindow* Balloon() {
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
        const auto* balloon = dynamic_cast<const BalloonWindow*>(widget);
        if (balloon != nullptr && balloon->isVisible()) {
            return balloon;
        }
    }
    return nullptr;
}

static void Enter(QWidget* button) {
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(button, &enter);
}

class tst_ShellToolbar : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void WhatDoesNotFitIsHidden() {
        Bar bar;
        // Ten buttons of 30 pixels.
        QCOMPARE(bar.Seen(), u"1 2 3 4 5 6 7 8 9 10"_s);
        bar.Tools.resize(95, 40);
        QCOMPARE(bar.Seen(), u"1 2 3"_s);
        bar.Tools.resize(1000, 40);
        QCOMPARE(bar.Seen(), u"1 2 3 4 5 6 7 8 9 10 11 12 14 15 16 19 20"_s);
    }

    void DraggingBringsThemIn() {
        Bar bar;
        bar.Tools.resize(115, 40);
        QCOMPARE(bar.Seen(), u"1 2 3"_s);
        bar.Drag({110, 20}, {80, 20});  // a step is the 30 pixels of a button
        QCOMPARE(bar.Seen(), u"2 3 4"_s);
        bar.Drag({110, 20}, {50, 20});
        QCOMPARE(bar.Seen(), u"4 5 6"_s);
        bar.Drag({94, 20}, {114, 20});
        QCOMPARE(bar.Seen(), u"4 5 6"_s);  // too short a way
        bar.Drag({91, 20}, {121, 20});
        QCOMPARE(bar.Seen(), u"3 4 5"_s);
        QVERIFY(bar.Clicked.isEmpty());
    }

    void ADragBeginsBehindTheLastButton() {
        Bar bar;
        bar.Tools.resize(115, 40);
        bar.Drag({85, 38}, {20, 38});
        QCOMPARE(bar.Seen(), u"1 2 3"_s);
    }

    void AVerticalBarIsDraggedDown() {
        Bar bar;
        bar.Tools.SetAlign(3);
        bar.Tools.resize(32, 115);
        QCOMPARE(bar.Seen(), u"1 2 3"_s);
        bar.Drag({10, 110}, {10, 80});
        QCOMPARE(bar.Seen(), u"2 3 4"_s);
    }

    void TheWheelScrolls() {
        Bar bar;
        bar.Tools.resize(95, 40);
        QWheelEvent down({5, 5}, bar.Tools.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                         {}, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&bar.Tools, &down);
        QCOMPARE(bar.Seen(), u"2 3 4"_s);
    }

    void DatebrookNeverShows() {
        Bar bar;
        bar.Tools.resize(2000, 60);
        for (const QString& size : {u"Small Size"_s, u"Small Size with Caption"_s, u"Large Size"_s,
                                    u"Large Size with Caption"_s}) {
            bar.Tools.ApplyToolbarSize(size);
            QVERIFY(!bar.Tools.Button(17)->isVisible());
            QVERIFY(bar.Tools.Button(20)->isVisible());
        }
    }

    void ClicksPassTheNumberOn() {
        Bar bar;
        QTest::mouseClick(bar.Tools.Button(5), Qt::LeftButton);
        QTest::keyClick(bar.Tools.Button(9), Qt::Key_Space);
        QCOMPARE(bar.Clicked, (QList<int>{5, 9}));
    }

    void CaptionsGrowWithTheButtons() {
        Bar bar;
        QCOMPARE(bar.Tools.Button(1)->font().pixelSize(), 10);
        bar.Tools.ApplyToolbarSize(u"Large Size with Caption"_s);
        QCOMPARE(bar.Tools.Button(1)->font().pixelSize(), 12);
        bar.Tools.ApplyToolbarSize(u"Small Size with Caption"_s);
        QCOMPARE(bar.Tools.Button(1)->font().pixelSize(), 10);
    }

    void ButtonsAreCustomised() {
        Bar bar;
        bar.Tools.Offer(1, false);
        QCOMPARE(bar.Seen(), u"2 3 4 5 6 7 8 9 10 11"_s);
        QVERIFY(bar.Tools.Layout().startsWith(u"\"1,2\" \"1,3\""_s));
        QVERIFY(!bar.Tools.Layout().contains(u"17"_s));
    }

    void ADragBegunInTheGapNeedsNoSecondMoveThere() {
        Bar bar;
        bar.Tools.resize(115, 40);  // three buttons of 30 pixels, and a gap
        QTest::mousePress(&bar.Tools, Qt::LeftButton, {}, {110, 20});
        bar.Move({50, 20});
        QTest::mouseRelease(&bar.Tools, Qt::LeftButton, {}, {50, 20});
        QCOMPARE(bar.Seen(), u"3 4 5"_s);
        QTest::mousePress(&bar.Tools, Qt::RightButton, {}, {110, 20});
        bar.Move({50, 20});
        QTest::mouseRelease(&bar.Tools, Qt::RightButton, {}, {50, 20});
        QCOMPARE(bar.Seen(), u"3 4 5"_s);
    }

    void BalloonsTellWhatAButtonDoes_data() {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("text");
        QTest::newRow("first") << u"Launch"_s
                               << u"Create new timezones\r\nLaunch clocks\r\nLaunch previous "
                                  "opened clocks\r\nChoose timezones\r\nRemove timezones\r\n"
                                  "Close Tempolark Central"_s;
        QTest::newRow("middle") << u"Auto Start"_s
                                << u"Set the selected clock\r\nto start automatically"_s;
        QTest::newRow("behind a separator")
            << u"CProperty"_s << u"Set tempolark central settings"_s;
    }

    void BalloonsTellWhatAButtonDoes() {
        QFETCH(QString, button);
        Desk desk;
        QVERIFY(desk.Start());
        desk.Machine.Clock.Advance(1000);  // the stages of the start
        QToolButton* target = desk.Button(button);
        Enter(target);
        desk.Machine.Clock.Advance(499);
        QVERIFY(Balloon() == nullptr);
        desk.Machine.Clock.Advance(1);
        const BalloonWindow* balloon = Balloon();
        QVERIFY(balloon != nullptr);
        QCOMPARE(balloon->Look().Title, button);
        QTEST(balloon->Look().Text, "text");
        // The pointer of the balloon touches the middle of the button's lower edge.
        const QPoint tip = balloon->pos() + balloon->Place().Tip;
        QCOMPARE(tip, target->mapToGlobal(QPoint(target->width() / 2, target->height())));

        QTest::mousePress(target, Qt::LeftButton);
        QVERIFY(Balloon() == nullptr);
        QTest::mouseRelease(target, Qt::LeftButton, {}, {-50, -50});
        desk.ClickItem(u"AutoShowToolTips"_s, 1);
        Enter(target);
        desk.Machine.Clock.Advance(600);
        QVERIFY(Balloon() == nullptr);
    }

    void NoBalloonForAPointerThatPassesBy() {
        Desk desk;
        QVERIFY(desk.Start());
        desk.Machine.Clock.Advance(1000);
        Enter(desk.Button(u"Launch"_s));
        desk.Machine.Clock.Advance(300);
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(desk.Button(u"Launch"_s), &leave);
        desk.Machine.Clock.Advance(1000);
        QVERIFY(Balloon() == nullptr);
    }

    void ABalloonAtTheSideCoversNoButton() {
        Desk desk;
        QVERIFY(desk.Start());
        desk.Machine.Clock.Advance(1000);
        for (const int side : {3, 4}) {
            desk.ClickItem(u"ToolBarPositions"_s, side);
            const auto* bar = desk.Shell->findChild<ToolBar*>();
            QTRY_VERIFY(bar->height() > bar->width());  // the layout follows
            Enter(desk.Button(u"Disable"_s));
            desk.Machine.Clock.Advance(500);
            const BalloonWindow* balloon = Balloon();
            QVERIFY(balloon != nullptr);
            const QRect column(bar->mapToGlobal(QPoint(2, 0)), bar->size() - QSize(4, 0));
            QVERIFY(!balloon->geometry().intersects(column));
        }
    }

    /// What the balloon tells is what a click does.
    void AfterScrollingTheBalloonIsThatOfTheButtonUnderThePointer() {
        Bar bar;
        bar.Tools.resize(95, 40);
        Enter(bar.Tools.Button(2));
        QCOMPARE(bar.Hovered.last(), 2);
        QTest::mousePress(&bar.Tools, Qt::RightButton, {}, QPoint(90, 2));
        QCOMPARE(bar.Hovered.last(), 0);
        Enter(bar.Tools.Button(2));
        const auto turn = [&bar](const QPointF& at, int delta) {
            QWheelEvent event(at, bar.Tools.mapToGlobal(at), {}, {0, delta}, Qt::NoButton, {},
                              Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&bar.Tools, &event);
        };
        turn({45, 20}, -120);
        QCOMPARE(bar.Seen(), u"2 3 4"_s);
        QCOMPARE(bar.Hovered.last(), 3);
        turn({45, 20}, -120);
        QCOMPARE(bar.Hovered.last(), 4);
        turn({93, 20}, 120);
        QCOMPARE(bar.Hovered.last(), 0);  // behind the buttons
        bar.Hovered.clear();
        turn({45, 20}, 120);
        turn({45, 20}, 120);  // there is nothing more in front
        QCOMPARE(bar.Seen(), u"1 2 3"_s);
        QCOMPARE(bar.Hovered, (QList<int>{0, 2}));
        turn({15, 20}, -120);
        turn({15, 20}, 120);
        QCOMPARE(bar.Hovered.last(), 1);
    }

    void AfterScrollingToTheEndTheBalloonIsThatOfTheLastButton() {
        Bar bar;
        bar.Tools.resize(95, 40);
        const auto turn = [&bar](const QPointF& at, int delta) {
            QWheelEvent event(at, bar.Tools.mapToGlobal(at), {}, {0, delta}, Qt::NoButton, {},
                              Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&bar.Tools, &event);
        };
        for (int i = 0; i < 20; ++i) {
            turn({45, 20}, -120);
        }
        QVERIFY(bar.Seen().endsWith(u" 20"_s));
        const QPointF last = bar.Tools.Button(20)->geometry().center();
        turn(last, 120);
        QVERIFY(!bar.Seen().contains(u"20"_s));
        turn(last, -120);
        QCOMPARE(bar.Hovered.last(), 20);
    }

    void ButtonsThatMoveTakeTheBalloonAway() {
        Bar bar;
        bar.Tools.resize(95, 40);
        Enter(bar.Tools.Button(3));
        QTest::keyClick(bar.Tools.Button(3), Qt::Key_Right);
        QCOMPARE(bar.Seen(), u"2 3 4"_s);
        QCOMPARE(bar.Hovered.last(), 0);
        Enter(bar.Tools.Button(3));
        bar.Tools.ApplyToolbarSize(u"Large Size"_s);
        QCOMPARE(bar.Hovered.last(), 0);
    }

    void TheCustomizeDialogActsAtOnce() {
        Desk desk;
        QVERIFY(desk.Start());
        bool seen = false;
        const auto look = [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr) {
                return;
            }
            seen = true;
            auto* list = dialog->findChild<QListWidget*>();
            QCOMPARE(list->count(), 17);
            QCOMPARE(list->item(0)->text(), u"Launch"_s);
            list->item(0)->setCheckState(Qt::Unchecked);
            dialog->reject();
        };
        QMetaObject::invokeMethod(desk.Shell.get(), look, Qt::QueuedConnection);
        desk.ClickItem(u"ToolbarCustomize"_s, 1);
        QVERIFY(seen);
        QVERIFY(!desk.Button(u"Launch"_s)->isVisible());
        QVERIFY(desk.Button(u"Close"_s)->isVisible());
        desk.ClickItem(u"SaveToolbarSetting"_s, 1);
        QVERIFY(desk.Machine.Settings.Value(u"TempolarkCentralToolbar"_s, u"tester"_s)
                    .toString()
                    .startsWith(u"\"1,2\""_s));
        desk.Stop();
        QVERIFY(desk.Start());  // every start begins with the whole catalogue
        QVERIFY(desk.Button(u"Launch"_s)->isVisible());
    }

    void ButtonsOpenWindows_data() {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("window");
        QTest::newRow("Property") << u"Property"_s << u"frmProperties"_s;
        QTest::newRow("Shortcut") << u"Shortcut"_s << u"frmShortcuts"_s;
        QTest::newRow("Timezone") << u"Timezone"_s << u"frmTimeZones"_s;
    }

    void ButtonsOpenWindows() {
        QFETCH(QString, button);
        QFETCH(QString, window);
        Desk desk;
        QVERIFY(desk.Start());
        QTest::mouseClick(desk.Button(button), Qt::LeftButton);
        const auto* opened = desk.Shell->findChild<QWidget*>(window);
        QVERIFY(opened != nullptr && opened->isVisible());
    }

    void ARightClickOpensTheBarsOwnMenu() {
        Desk desk;
        QVERIFY(desk.Start());
        auto* bar = desk.Shell->findChild<ToolBar*>();
        QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, bar->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(bar, &event);
        const QWidget* popup = QApplication::activePopupWidget();
        QVERIFY(popup != nullptr);
        QCOMPARE(popup->objectName(), u"ToolBarMenu"_s);
    }
};

QTEST_MAIN(tst_ShellToolbar)
#include "tst_ShellToolbar.moc"
