#include "editor/EditLine.h"

#include <QTest>

using namespace Qt::StringLiterals;
using editor::EditLine;
namespace KeyCode = editor::KeyCode;

class tst_EditLine : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void BeginsAtTheEnd();
    void TypesAtTheCaret();
    void Moves_data();
    void Moves();
    void Deletes_data();
    void Deletes();
    void KeepsPairsTogether();
    void Completes();
    void LeavesACompletion_data();
    void LeavesACompletion();
};

void tst_EditLine::BeginsAtTheEnd() {
    EditLine line;
    QCOMPARE(line.Text(), QString());
    QCOMPARE(line.Caret(), 0);
    line.SetText(u"abc"_s);
    QCOMPARE(line.Text(), u"abc"_s);
    QCOMPARE(line.Caret(), 3);
    QCOMPARE(line.SelectedLength(), 0);
}

void tst_EditLine::TypesAtTheCaret() {
    EditLine line;
    line.SetText(u"ac"_s);
    line.Key(KeyCode::Left);
    line.Type(u"b"_s);
    QCOMPARE(line.Text(), u"abc"_s);
    QCOMPARE(line.Caret(), 2);
    line.Type(u"\U0001F600"_s);
    QCOMPARE(line.Text(), u"ab\U0001F600c"_s);
    QCOMPARE(line.Caret(), 4);
}

void tst_EditLine::Moves_data() {
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<int>("caret");
    QTest::newRow("left") << QList<int>{37} << 2;
    QTest::newRow("left twice, right") << QList<int>{37, 37, 39} << 2;
    QTest::newRow("home") << QList<int>{36} << 0;
    QTest::newRow("left of the start") << QList<int>{36, 37} << 0;
    QTest::newRow("right of the end") << QList<int>{39} << 3;
    QTest::newRow("end") << QList<int>{36, 35} << 3;
    QTest::newRow("other keys") << QList<int>{37, 38, 40, 9, 0} << 2;
}

void tst_EditLine::Moves() {
    QFETCH(QList<int>, keys);
    EditLine line;
    line.SetText(u"abc"_s);
    for (const int key : keys) {
        line.Key(key);
    }
    QTEST(line.Caret(), "caret");
    QCOMPARE(line.Text(), u"abc"_s);
}

void tst_EditLine::Deletes_data() {
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("caret");
    QTest::newRow("before the caret") << QList<int>{8} << u"ab"_s << 2;
    QTest::newRow("before the caret within") << QList<int>{37, 8} << u"ac"_s << 1;
    QTest::newRow("before the start") << QList<int>{36, 8} << u"abc"_s << 0;
    QTest::newRow("at the caret") << QList<int>{37, 46} << u"ab"_s << 2;
    QTest::newRow("at the start") << QList<int>{36, 46} << u"bc"_s << 0;
    QTest::newRow("behind the end") << QList<int>{46} << u"abc"_s << 3;
    QTest::newRow("all and more") << QList<int>{8, 8, 8, 8, 46} << QString() << 0;
}

void tst_EditLine::Deletes() {
    QFETCH(QList<int>, keys);
    EditLine line;
    line.SetText(u"abc"_s);
    for (const int key : keys) {
        line.Key(key);
    }
    QTEST(line.Text(), "text");
    QTEST(line.Caret(), "caret");
}

void tst_EditLine::KeepsPairsTogether() {
    EditLine line;
    line.SetText(u"a\U0001F600"_s);
    line.Key(KeyCode::Left);
    QCOMPARE(line.Caret(), 1);
    line.Key(KeyCode::Right);
    QCOMPARE(line.Caret(), 3);
    line.Key(KeyCode::Backspace);
    QCOMPARE(line.Text(), u"a"_s);
    line.SetText(u"\U0001F600b"_s);
    line.Key(KeyCode::Home);
    line.Key(KeyCode::Delete);
    QCOMPARE(line.Text(), u"b"_s);
}

void tst_EditLine::Completes() {
    EditLine line;
    line.Type(u"g"_s);
    line.Complete(u"Green"_s);
    QCOMPARE(line.Text(), u"Green"_s);
    QCOMPARE(line.TypedText(), u"G"_s);
    QCOMPARE(line.Caret(), 1);
    QCOMPARE(line.SelectedLength(), 4);
    line.Type(u"o"_s);
    QCOMPARE(line.Text(), u"Go"_s);
    QCOMPARE(line.SelectedLength(), 0);
    line.Complete(u"G"_s);
    QCOMPARE(line.Caret(), 1);
    QCOMPARE(line.SelectedLength(), 0);
}

void tst_EditLine::LeavesACompletion_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("caret");
    QTest::newRow("end") << 35 << u"Green"_s << 5;
    QTest::newRow("left") << 37 << u"Green"_s << 0;
    QTest::newRow("right") << 39 << u"Green"_s << 2;
    QTest::newRow("delete") << 46 << u"G"_s << 1;
    QTest::newRow("backspace") << 8 << u"G"_s << 1;
}

void tst_EditLine::LeavesACompletion() {
    QFETCH(int, key);
    EditLine line;
    line.Type(u"G"_s);
    line.Complete(u"Green"_s);
    line.Key(key);
    QTEST(line.Text(), "text");
    QTEST(line.Caret(), "caret");
    QCOMPARE(line.SelectedLength(), 0);
    line.Complete(u"Green"_s);
    line.SetText(u"x"_s);
    QCOMPARE(line.SelectedLength(), 0);
}

QTEST_GUILESS_MAIN(tst_EditLine)
#include "tst_EditLine.moc"
