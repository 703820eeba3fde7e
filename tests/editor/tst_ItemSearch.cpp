#include "editor/ItemSearch.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_ItemSearch : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Finds_data();
    void Finds();
    void FindsNothingInNothing();
};

void tst_ItemSearch::Finds_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("equal");
    QTest::addColumn<int>("beginning");
    QTest::addColumn<int>("initial");
    // 0 Red, 1 green, 2 Green, 3 Blue, 4 (empty), 5 Blue, 6 Black
    QTest::newRow("the first of two") << u"Blue"_s << 3 << 3 << 3;
    QTest::newRow("to the letter") << u"Green"_s << 2 << 2 << 1;
    QTest::newRow("the letter's case aside") << u"RED"_s << -1 << 0 << 0;
    QTest::newRow("a beginning") << u"Bla"_s << -1 << 6 << 6;
    QTest::newRow("a beginning to the letter first") << u"G"_s << -1 << 2 << 1;
    QTest::newRow("a beginning in another case") << u"bL"_s << -1 << 3 << 3;
    QTest::newRow("empty") << QString() << 4 << -1 << -1;
    QTest::newRow("no such") << u"x"_s << -1 << -1 << -1;
    QTest::newRow("longer than an entry") << u"Redd"_s << -1 << -1 << -1;
}

void tst_ItemSearch::Finds() {
    const QStringList items{u"Red"_s,  u"green"_s, u"Green"_s, u"Blue"_s,
                            QString(), u"Blue"_s,  u"Black"_s};
    QFETCH(QString, text);
    QTEST(editor::FindItem(items, text), "equal");
    QTEST(editor::FindItemBeginning(items, text), "beginning");
    QTEST(editor::FindItemByInitial(items, text), "initial");
}

void tst_ItemSearch::FindsNothingInNothing() {
    QCOMPARE(editor::FindItem({}, u"a"_s), -1);
    QCOMPARE(editor::FindItemBeginning({}, u"a"_s), -1);
    QCOMPARE(editor::FindItemByInitial({}, u"a"_s), -1);
}

QTEST_GUILESS_MAIN(tst_ItemSearch)
#include "tst_ItemSearch.moc"
