// The mouse on the grid of the window of properties, and what a long file does to it.
#include <QHeaderView>

#include "editor/PropertyWindowDesk.h"

class tst_PropertyWindowMouse : public QObject {
    Q_OBJECT

    /// Two presses, as the window system tells them.
    static void DoubleClick(PropertyWindowDesk& desk, const QPoint& place) {
        QWidget* viewport = desk.View().viewport();
        QTest::mouseClick(viewport, Qt::LeftButton, {}, place);
        QTest::mouseDClick(viewport, Qt::LeftButton, {}, place);
    }
    static void ClickHeading(PropertyWindowDesk& desk, int col) {
        QHeaderView& header = *desk.View().horizontalHeader();
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                          QPoint(header.sectionViewportPosition(col) + 20, header.height() / 2));
    }

private Q_SLOTS:
    void ADoubleClickBesideTheRowsOpensNothing() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.GoTo(u"Title"_s);
        DoubleClick(desk, QPoint(20, desk.View().viewport()->height() - 3));
        QVERIFY(!desk.Grid().Editing().IsEditing());
        QHeaderView& header = *desk.View().horizontalHeader();
        QTest::mouseDClick(header.viewport(), Qt::LeftButton, {}, QPoint(20, 5));
        QVERIFY(!desk.Grid().Editing().IsEditing());
        DoubleClick(desk, desk.View().visualRect(desk.Index(u"Title"_s)).center());
        QVERIFY(desk.Grid().Editing().IsEditing());
    }

    void ADoubleClickOnACheckBoxIsAClick() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.GoTo(u"Window Title Bar"_s);
        const QRect cell = desk.View().visualRect(desk.Index(u"Window Title Bar"_s));
        DoubleClick(desk, QPoint(cell.left() + 10, cell.center().y()));
        QCOMPARE(desk.Cell(u"Window Title Bar"_s), u"No"_s);
        QVERIFY(!desk.Grid().Editing().IsEditing());
        DoubleClick(desk, cell.center());
        QVERIFY(desk.Grid().Editing().IsEditing());
    }

    void ADoubleClickOnAButtonPicksOnce() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.GoTo(u"Flag File"_s);
        desk.Machine.Dialogs.FileAnswers = {u"/clocks/a.gif"_s};
        const QRect cell = desk.View().visualRect(desk.Index(u"Flag File"_s));
        DoubleClick(desk, QPoint(cell.right() - 8, cell.center().y()));
        QCOMPARE(desk.Cell(u"Flag File"_s), u"\\clocks\\a.gif"_s);
        QCOMPARE(desk.Machine.Dialogs.PickerTitles.size(), 1);
    }

    void AClickOnAHeadingSorts() {
        PropertyWindowDesk desk;
        desk.Open();
        const QHeaderView& header = *desk.View().horizontalHeader();
        QVERIFY(!header.isSortIndicatorShown());
        ClickHeading(desk, 0);
        QCOMPARE(desk.Grid().Tag, u"2,1"_s);
        QCOMPARE(desk.Listed().first(), u"Flag File"_s);
        QVERIFY(header.isSortIndicatorShown());
        QCOMPARE(header.sortIndicatorSection(), 0);
        QCOMPARE(header.sortIndicatorOrder(), Qt::AscendingOrder);
        ClickHeading(desk, 0);
        QCOMPARE(desk.Grid().Tag, u"2,2"_s);
        QCOMPARE(desk.Listed().first(), u"Window Title Bar"_s);
        QCOMPARE(header.sortIndicatorOrder(), Qt::DescendingOrder);
        ClickHeading(desk, 1);
        QCOMPARE(desk.Grid().Tag, u"3,1"_s);
        QCOMPARE(header.sortIndicatorSection(), 1);
        QCOMPARE(header.sortIndicatorOrder(), Qt::AscendingOrder);
        ClickHeading(desk, 1);
        QCOMPARE(desk.Grid().Tag, u"3,2"_s);
        desk.Run(u"SortNone"_s);
        QVERIFY(!header.isSortIndicatorShown());
        desk.Run(u"CategorizedAscending"_s);
        QVERIFY(!header.isSortIndicatorShown());
    }

    void AHeadingTakesAnOpenEditAlong() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.GoTo(u"Title"_s);
        desk.Type(u"Aaa"_s);
        ClickHeading(desk, 1);
        QCOMPARE(desk.Cell(u"Title"_s), u"Aaa"_s);
        QCOMPARE(desk.Current(), u"Title"_s);
    }

    void FiveThousandRows() {
        PropertyWindowDesk desk;
        QByteArray content;
        for (int row = 1; row <= 5000; ++row) {
            content += "Key " + QByteArray::number(row) + "=Red,Black,Red\r\n";
        }
        desk.Machine.WriteFile(QString::fromLatin1(desk.ClockFile), content);
        desk.Publish(desk.Clock->File);
        desk.Open();
        QCOMPARE(desk.View().model()->rowCount(), 5000);
        desk.Search().setText(u"key 499"_s);
        QCOMPARE(desk.Listed().size(), 15);  // 499, 1499 to 4499, and 4990 to 4999
        QCOMPARE(desk.View().model()->rowCount(), 15);
        desk.GoTo(u"Key 4999"_s);
        desk.Key(Qt::Key_Return);
        desk.Key(Qt::Key_Home);
        desk.Key(Qt::Key_Return);
        QCOMPARE(desk.Cell(u"Key 4999"_s), u"Black"_s);
        desk.Search().clear();
        QCOMPARE(desk.Current(), u"Key 4999"_s);
        QCOMPARE(desk.View().currentIndex().row(), 4998);
        desk.ClickButton();
        QCOMPARE(desk.Stored(u"Key 4999"_s), u"Black,Black,Red"_s);
        QCOMPARE(desk.Stored(u"Key 5000"_s), u"Red,Black,Red"_s);
    }
};

QTEST_MAIN(tst_PropertyWindowMouse)
#include "tst_PropertyWindowMouse.moc"
