#include <QContextMenuEvent>
#include <QDialog>
#include <QListWidget>
#include <QTest>
#include <QWheelEvent>

#include "foundation/ui/BalloonWindow.h"
#include "shell/ShellDesk.h"
#include "shell/ui/ToolBar.h"

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

    void ButtonsAreCustomised() {
        Bar bar;
        bar.Tools.Offer(1, false);
        QCOMPARE(bar.Seen(), u"2 3 4 5 6 7 8 9 10 11"_s);
        QVERIFY(bar.Tools.Layout().startsWith(u"\"1,2\" \"1,3\""_s));
        QVERIFY(!bar.Tools.Layout().contains(u"17"_s));
    }

    void BalloonsTellWhatAButtonDoes() {
        Desk desk;
        QVERIFY(desk.Start());
        QEvent enter(QEvent::Enter);
        QCoreApplication::sendEvent(desk.Button(u"Auto Start"_s), &enter);
        desk.Machine.Clock.Advance(600);
        const auto balloons = [] {
            int visible = 0;
            for (const QWidget* widget : QApplication::topLevelWidgets()) {
                visible +=
                    dynamic_cast<const BalloonWindow*>(widget) != nullptr && widget->isVisible()
                        ? 1
                        : 0;
            }
            return visible;
        };
        QCOMPARE(balloons(), 1);
        QTest::mousePress(desk.Button(u"Auto Start"_s), Qt::LeftButton);
        QCOMPARE(balloons(), 0);
        QTest::mouseRelease(desk.Button(u"Auto Start"_s), Qt::LeftButton, {}, {-50, -50});
        desk.ClickItem(u"AutoShowToolTips"_s, 1);
        QCoreApplication::sendEvent(desk.Button(u"Auto Start"_s), &enter);
        desk.Machine.Clock.Advance(600);
        QCOMPARE(balloons(), 0);
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

    void AnswersOfWindowsThatAreNotThereYet_data() {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("answer");
        QTest::newRow("Property") << u"Property"_s << u"The property window can't be opened yet"_s;
        QTest::newRow("Shortcut") << u"Shortcut"_s << u"The shortcut window can't be opened yet"_s;
    }

    void AnswersOfWindowsThatAreNotThereYet() {
        QFETCH(QString, button);
        Desk desk;
        QVERIFY(desk.Start());
        QTest::mouseClick(desk.Button(button), Qt::LeftButton);
        QTEST(desk.Status(), "answer");
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
