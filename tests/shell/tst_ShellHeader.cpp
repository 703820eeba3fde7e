#include "shell/ui/ShellHeader.h"

#include <QMdiSubWindow>
#include <QTest>

#include "shell/BarsDesk.h"

using namespace Qt::StringLiterals;

/// When the header is seen, over an area without a shell.
class tst_ShellHeader : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void FillsTheAreaBehindItsWindows() {
        BarsDesk desk;
        desk.Window.show();
        desk.Header.SetHeaderVisible(true);
        QVERIFY(desk.Header.IsVisible());
        QCOMPARE(desk.Header.Art().geometry(), desk.Area->viewport()->rect());
        desk.Area->addSubWindow(new QWidget)->show();
        desk.Window.resize(700, 500);
        desk.Header.ArrangeHeader();
        QCOMPARE(desk.Header.Art().geometry(), desk.Area->viewport()->rect());
        QCOMPARE(desk.Area->viewport()->children().first(), &desk.Header.Art());
        desk.Header.SetHeaderVisible(false);
        QVERIFY(!desk.Header.IsVisible());
    }

    void ComesBackWhenTheLastWindowHasGone() {
        BarsDesk desk;
        desk.Window.show();
        desk.Header.SetHeaderVisible(false);
        QMdiSubWindow* child = desk.Area->addSubWindow(new QWidget);
        child->show();
        desk.Header.ShowHeaderWhenEmpty();
        QVERIFY(!desk.Header.IsVisible());
        delete child;
        desk.Header.ShowHeaderWhenEmpty();
        QVERIFY(desk.Header.IsVisible());
        QVERIFY(!desk.Header.Art().IsMoving());
    }

    void ADoubleClickHidesItOverAWindow() {
        BarsDesk desk;
        desk.Window.show();
        desk.Header.SetHeaderVisible(true);
        QTest::mouseDClick(&desk.Header.Art(), Qt::LeftButton, {}, {5, 5});
        QVERIFY(desk.Header.IsVisible());
        desk.Area->addSubWindow(new QWidget)->show();
        QTest::mouseDClick(&desk.Header.Art(), Qt::LeftButton, {}, {5, 5});
        QVERIFY(!desk.Header.IsVisible());
    }

    void TheLettersFollowTheSettings() {
        BarsDesk desk;
        desk.Window.show();
        desk.Header.SetHeaderVisible(true);
        desk.Hold({{u"Heading Variation"_s, u"Bend Up"_s}});
        desk.Header.ApplyHeaderStyle();
        std::vector<QPointF> places = desk.Header.Art().Places();
        QVERIFY(places.front().y() > places[8].y() + 20);
        desk.Hold({{u"Heading Variation"_s, u"Bend Down"_s}});
        desk.Header.ApplyHeaderStyle();
        places = desk.Header.Art().Places();
        QVERIFY(places.front().y() < places[8].y() - 20);
        desk.Header.ShowHeaderAnimation();
        QVERIFY(desk.Header.Art().IsMoving());
    }
};

QTEST_MAIN(tst_ShellHeader)
#include "tst_ShellHeader.moc"
