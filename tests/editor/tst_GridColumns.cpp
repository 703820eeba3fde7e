#include "editor/GridColumns.h"

#include <QTest>

using namespace Qt::StringLiterals;
using editor::CellCtl;
using editor::EditorKind;
using editor::GridColumns;

class tst_GridColumns : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void HasAPlaceForEachColumn();
    void KeepsWhatFits();
    void SetsEditors();
    void RefusesWhatIsNotThere();
    void ShowsAndHides();
    void ReadsFormats();
    void KnowsNumberFormats_data();
    void KnowsNumberFormats();
    void KeepsTwoLists();
};

void tst_GridColumns::HasAPlaceForEachColumn() {
    GridColumns columns;
    QCOMPARE(columns.Count(), 0);
    columns.Setup(2);
    QCOMPARE(columns.Count(), 3);
    columns.Setup(-5);
    QCOMPARE(columns.Count(), 1);
    QCOMPARE(columns.Ctl(0), CellCtl());
}

void tst_GridColumns::KeepsWhatFits() {
    GridColumns columns;
    columns.Setup(2);
    columns.SetCellCtlID(1, 3);
    columns.SetCellCtlID(2, 3);
    columns.Setup(1);
    columns.Setup(3);
    QCOMPARE(columns.Ctl(1).Id, EditorKind::Text);
    QCOMPARE(columns.Ctl(2).Id, EditorKind::None);
}

void tst_GridColumns::SetsEditors() {
    GridColumns columns;
    columns.Setup(4);
    for (int id = 0; id <= 4; ++id) {
        QVERIFY(columns.SetCellCtlID(id, id));
    }
    QCOMPARE(columns.Ctl(0), (CellCtl{EditorKind::None, true}));
    QCOMPARE(columns.Ctl(1), (CellCtl{EditorKind::Combo, true}));
    QCOMPARE(columns.Ctl(2), (CellCtl{EditorKind::UpDown, true}));
    QCOMPARE(columns.Ctl(3), (CellCtl{EditorKind::Text, true}));
    QCOMPARE(columns.Ctl(4), (CellCtl{EditorKind::ComboEdit, true}));
    QVERIFY(!columns.IsEditable(0));
    QVERIFY(columns.IsEditable(1));
    QVERIFY(columns.IsEditable(4));
}

void tst_GridColumns::RefusesWhatIsNotThere() {
    GridColumns columns;
    columns.Setup(1);
    QVERIFY(!columns.SetCellCtlID(2, 3));
    QVERIFY(!columns.SetCellCtlID(-1, 3));
    QVERIFY(!columns.SetCellCtlID(0, 5));
    QVERIFY(!columns.SetCellCtlID(0, -1));
    QVERIFY(!columns.SetCellCtlVisible(2, true));
    QVERIFY(!columns.AddCellComboItem(2, u"x"_s));
    QVERIFY(!columns.AddCellComboEditItem(2, u"x"_s));
    QVERIFY(!columns.AddComboEditItem(2, u"x"_s));
    QVERIFY(!columns.RemoveComboEditItem(2, u"x"_s));
    QVERIFY(!columns.ClearCellCombo(2));
    QVERIFY(!columns.ClearCellComboEdit(2));
    QCOMPARE(columns.Ctl(2), CellCtl());
    QCOMPARE(columns.Items(-1), QStringList());
    QCOMPARE(columns.ColFormat(9), QString());
}

void tst_GridColumns::ShowsAndHides() {
    GridColumns columns;
    columns.Setup(1);
    columns.SetCellCtlID(1, 2);
    QVERIFY(columns.SetCellCtlVisible(1, false));
    QVERIFY(!columns.IsEditable(1));
    QCOMPARE(columns.Ctl(1).Id, EditorKind::UpDown);
    QVERIFY(columns.SetCellCtlVisible(1, true));
    QVERIFY(columns.IsEditable(1));
}

void tst_GridColumns::ReadsFormats() {
    GridColumns columns;
    columns.Setup(2);
    columns.SetColFormat(u",0.00,#,more"_s);
    QCOMPARE(columns.ColFormat(0), QString());
    QCOMPARE(columns.ColFormat(1), u"0.00"_s);
    QCOMPARE(columns.ColFormat(2), u"#"_s);
    columns.SetColFormat(u"0"_s);
    QCOMPARE(columns.ColFormat(0), u"0"_s);
    QCOMPARE(columns.ColFormat(1), QString());
}

void tst_GridColumns::KnowsNumberFormats_data() {
    QTest::addColumn<QString>("format");
    QTest::addColumn<bool>("number");
    QTest::newRow("none") << QString() << false;
    QTest::newRow("0") << u"0"_s << true;
    QTest::newRow("0.00") << u"0.00"_s << true;
    QTest::newRow("#") << u"#"_s << true;
    QTest::newRow("text") << u"@"_s << false;
    QTest::newRow("date") << u"dd/mm/yyyy"_s << false;
}

void tst_GridColumns::KnowsNumberFormats() {
    QFETCH(QString, format);
    GridColumns columns;
    columns.Setup(1);
    columns.SetColFormat(u"x,"_s + format);
    QTEST(columns.HasNumberFormat(1), "number");
    QVERIFY(!columns.HasNumberFormat(0));
}

void tst_GridColumns::KeepsTwoLists() {
    GridColumns columns;
    columns.Setup(1);
    QVERIFY(columns.AddCellComboItem(1, u"a"_s));
    QVERIFY(columns.AddCellComboEditItem(1, u"b"_s));
    QVERIFY(columns.AddCellComboEditItem(1, u"c"_s));
    columns.SetCellCtlID(1, 1);
    QCOMPARE(columns.Items(1), QStringList{u"a"_s});
    columns.SetCellCtlID(1, 4);
    QCOMPARE(columns.Items(1), QStringList({u"b"_s, u"c"_s}));
    QVERIFY(columns.RemoveComboEditItem(1, u"b"_s));
    QVERIFY(!columns.RemoveComboEditItem(1, u"b"_s));
    QCOMPARE(columns.Items(1), QStringList{u"c"_s});
    QVERIFY(columns.ClearCellComboEdit(1));
    QCOMPARE(columns.Items(1), QStringList());
    columns.SetCellCtlID(1, 1);
    QCOMPARE(columns.Items(1), QStringList{u"a"_s});
    QVERIFY(columns.ClearCellCombo(1));
    QCOMPARE(columns.Items(1), QStringList());
}

QTEST_GUILESS_MAIN(tst_GridColumns)
#include "tst_GridColumns.moc"
