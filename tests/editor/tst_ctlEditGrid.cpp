#include "editor/ui/ctlEditGrid.h"

#include "editor/GridDesk.h"

class tst_ctlEditGrid : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void OpensEachKind_data();
    void OpensEachKind();
};

void tst_ctlEditGrid::OpensEachKind_data() {
    QTest::addColumn<int>("col");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("list") << 1 << u"ctlCombo"_s << QString();
    QTest::newRow("spin") << 2 << u"ctlUpDown"_s << u"1.50"_s;
    QTest::newRow("line") << 3 << u"ctlText"_s << u"abc"_s;
    QTest::newRow("line with a list") << 4 << u"ctlComboEdit"_s << u"Blue"_s;
}

void tst_ctlEditGrid::OpensEachKind() {
    QFETCH(int, col);
    QFETCH(QString, text);
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, col);
    desk.Press(Qt::Key_Return);
    QVERIFY(desk.Editor() != nullptr);
    QTEST(desk.Editor()->objectName(), "name");
    if (!text.isEmpty()) {
        QCOMPARE(desk.Line()->text(), text);
    }
    desk.Press(Qt::Key_Escape);
    QVERIFY(desk.Editor() == nullptr);
}

QTEST_MAIN(tst_ctlEditGrid)
#include "tst_ctlEditGrid.moc"
