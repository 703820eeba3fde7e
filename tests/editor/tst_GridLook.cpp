#include "editor/GridLook.h"

#include <QTest>

using namespace Qt::StringLiterals;
using editor::ColAlign;
using editor::GridLook;

class tst_GridLook : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void KeepsEachProperty();
    void HasTheirNames();
    void RefusesWrongKinds();
    void GivesColumnsALook();
};

void tst_GridLook::KeepsEachProperty() {
    GridLook look;
    look.ForeColor = QColor(1, 2, 3, 4);
    look.BackColorFixed = QColor(0xC0FFC0);
    look.Font = QFont(u"Serif"_s, 17);
    look.HasFont = true;
    look.BorderStyle = GridLook::Frame::None;
    look.GridLines = GridLook::Lines::Raised;
    look.GridLineWidth = 4;
    look.HighLight = GridLook::When::WithFocus;
    look.FocusRect = 2;
    look.ScrollBars = GridLook::Bars::Vertical;
    look.AllowUserResizing = GridLook::Resizing::Both;
    look.ScrollTrack = false;
    look.WordWrap = true;
    look.RightToLeft = true;
    look.RowHeightMin = 300;
    look.TextStyle = 1;
    look.MergeCells = true;
    look.FormatString = u"a|>b"_s;
    look.ToolTipText = u"tip"_s;
    look.Index = 3;
    look.OLEDropMode = 1;
    look.Column(1) = {1200, ColAlign::Right, ColAlign::Centre, true, 42};
    GridLook other;
    QVERIFY(!(other == look));
    other.FromMap(look.ToMap());
    QVERIFY(other == look);
}

void tst_GridLook::HasTheirNames() {
    GridLook look;
    look.FocusRect = 2;
    look.Column(0).Width = 900;
    const QVariantMap bag = look.ToMap();
    QCOMPARE(bag[u"FocusRect"_s].toInt(), 2);
    QCOMPARE(bag[u"ScrollBars"_s].toInt(), 3);
    QCOMPARE(bag[u"AllowUserResizing"_s].toInt(), 1);
    QCOMPARE(bag[u"Columns"_s].toList()[0].toList()[0].toInt(), 900);
    for (const QString& name : {u"GridColorFixed"_s, u"TextStyleFixed"_s, u"Appearance"_s,
                                u"WhatsThisHelpID"_s, u"CausesValidation"_s, u"PictureType"_s}) {
        QVERIFY2(bag.contains(name), qPrintable(name));
    }
}

void tst_GridLook::RefusesWrongKinds() {
    GridLook look;
    look.GridLineWidth = 2;
    look.FromMap({{u"GridLineWidth"_s, u"5"_s}, {u"GridLines"_s, u"0"_s}, {u"WordWrap"_s, 1}});
    QCOMPARE(look.GridLineWidth, 2);
    QCOMPARE(look.GridLines, GridLook::Lines::Flat);
    QVERIFY(!look.WordWrap);
}

void tst_GridLook::GivesColumnsALook() {
    GridLook look;
    look.Column(3).Data = 5;
    QCOMPARE(look.Columns.size(), 4U);
    QCOMPARE(look.ColumnAt(3).Data, 5);
    QCOMPARE(look.ColumnAt(2).Width, 0);
    QVERIFY(look.ColumnAt(4) == editor::ColumnLook());
    QVERIFY(look.ColumnAt(-1) == editor::ColumnLook());
    look.Column(-7).Data = 6;
    QCOMPARE(look.ColumnAt(0).Data, 6);
}

QTEST_MAIN(tst_GridLook)
#include "tst_GridLook.moc"
