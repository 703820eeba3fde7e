#include "editor/ColChooser.h"

#include <QTest>

#include "editor/GridOf.h"

using namespace Qt::StringLiterals;
using editor::EditGridData;

class tst_ColChooser : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Offers_data();
    void Offers();
    void NumbersItsEntries();
    void Sorts();
    void AsksTheWindow();
};

void tst_ColChooser::Offers_data() {
    QTest::addColumn<QString>("options");
    QTest::addColumn<QStringList>("captions");
    QTest::newRow("none") << QString() << QStringList();
    QTest::newRow("no numbers") << u"a,b"_s << QStringList();
    QTest::newRow("one") << u"3"_s << QStringList{u"Numeric Ascending"_s};
    QTest::newRow("10 holds 0 and 1")
        << u"10"_s << QStringList{u"Sort None"_s, u"Generic Ascending"_s, u"Find"_s};
    QTest::newRow("11 has none of its own") << u"11"_s << QStringList{u"Generic Ascending"_s};
    QTest::newRow("any order") << u"9,2"_s
                               << QStringList{u"Generic Descending"_s, u"Auto Column Fit"_s};
    QTest::newRow("all") << u"0,1,2,3,4,5,6,7,8,9,10,11"_s
                         << QStringList{u"Sort None"_s,
                                        u"Generic Ascending"_s,
                                        u"Generic Descending"_s,
                                        u"Numeric Ascending"_s,
                                        u"Numeric Descending"_s,
                                        u"No Case Asending"_s,
                                        u"No Case Descending"_s,
                                        u"String Ascending"_s,
                                        u"String Descending"_s,
                                        u"Auto Column Fit"_s,
                                        u"Find"_s};
}

void tst_ColChooser::Offers() {
    QFETCH(QString, options);
    QStringList captions;
    for (const editor::ColComboItem& item : editor::SetColComboOption(options)) {
        captions += item.Caption;
    }
    QTEST(captions, "captions");
}

void tst_ColChooser::NumbersItsEntries() {
    const std::vector<editor::ColComboItem> items = editor::SetColComboOption(u"10,8"_s);
    QCOMPARE(items.size(), std::size_t(4));
    QCOMPARE(items[2].Number, 8);
    QCOMPARE(items[2].Caption, u"String Descending"_s);
    QCOMPARE(items[3].Number, 10);
}

void tst_ColChooser::Sorts() {
    EditGridData grid = GridOf({u"T"_s, u"b"_s, u"c"_s, u"a"_s}, 1);
    QCOMPARE(editor::ChooseColOption(grid, 8), editor::ColChoice::Nothing);
    QCOMPARE(RowsOf(grid), QStringList({u"c"_s, u"b"_s, u"a"_s}));
    QCOMPARE(editor::ChooseColOption(grid, 0), editor::ColChoice::Nothing);
    QCOMPARE(RowsOf(grid), QStringList({u"c"_s, u"b"_s, u"a"_s}));
}

void tst_ColChooser::AsksTheWindow() {
    EditGridData grid = GridOf({u"T"_s, u"b"_s, u"a"_s}, 1);
    QCOMPARE(editor::ChooseColOption(grid, 9), editor::ColChoice::FitColumns);
    QCOMPARE(editor::ChooseColOption(grid, 10), editor::ColChoice::Find);
    QCOMPARE(editor::ChooseColOption(grid, 11), editor::ColChoice::Nothing);
    QCOMPARE(RowsOf(grid), QStringList({u"b"_s, u"a"_s}));
}

QTEST_GUILESS_MAIN(tst_ColChooser)
#include "tst_ColChooser.moc"
