#include "shell/ui/ClockArea.h"

#include <QMdiSubWindow>
#include <QTest>

/// How the area arranges its children, which are plain widgets here.
class tst_ClockArea : public QObject {
    Q_OBJECT

private:
    struct Desk {
        ClockArea Area{nullptr};
        Desk() {
            Area.resize(600, 400);
            Area.show();
        }
        QMdiSubWindow* Add() {
            QMdiSubWindow* child = Area.addSubWindow(new QWidget);
            child->resize(150, 100);
            child->show();
            return child;
        }
    };

private Q_SLOTS:
    void TwoShareTheArea_data() {
        QTest::addColumn<int>("code");
        QTest::addColumn<QRect>("first");
        QTest::addColumn<QRect>("second");
        QTest::newRow("rows") << 1 << QRect(0, 0, 600, 200) << QRect(0, 200, 600, 200);
        QTest::newRow("columns") << 2 << QRect(0, 0, 300, 400) << QRect(300, 0, 300, 400);
    }

    void TwoShareTheArea() {
        QFETCH(int, code);
        Desk desk;
        const QMdiSubWindow* first = desk.Add();
        const QMdiSubWindow* second = desk.Add();
        QMdiSubWindow* icon = desk.Add();
        desk.Add()->hide();
        icon->showMinimized();
        icon->move(70, 80);
        desk.Area.Arrange(static_cast<shell::Arrangement>(code));
        QTEST(first->geometry(), "first");
        QTEST(second->geometry(), "second");
        QCOMPARE(icon->pos(), QPoint(70, 80));
    }

    void IconsStandInTheCorner() {
        Desk desk;
        QMdiSubWindow* icon = desk.Add();
        QMdiSubWindow* window = desk.Add();
        icon->showMinimized();
        icon->move(70, 80);
        window->move(5, 6);
        desk.Area.Arrange(shell::Arrangement::Icons);
        QCOMPARE(icon->geometry().bottomLeft(), QPoint(0, 399));
        QCOMPARE(window->pos(), QPoint(5, 6));
    }

    void AChildThatIsNoFormIsNone() {
        Desk desk;
        QVERIFY(desk.Area.ActiveChild() == nullptr);
        desk.Add();
        QVERIFY(desk.Area.ActiveChild() == nullptr);
    }
};

QTEST_MAIN(tst_ClockArea)
#include "tst_ClockArea.moc"
