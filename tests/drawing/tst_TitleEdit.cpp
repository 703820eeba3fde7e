#include <QTest>

#include "drawing/TitleEdit.h"

using namespace Qt::StringLiterals;
using drawing::EditTitleKey;
using drawing::EndKey;
using drawing::HomeKey;
using drawing::TitleCaret;
using drawing::TypedKey;

class tst_TitleEdit : public QObject {
    Q_OBJECT

    using Keys = QList<int>;

private Q_SLOTS:
    void ShowsTheCaret_data();
    void ShowsTheCaret();
    void Edits_data();
    void Edits();
    void EndsWithEnter();
    void KeepsAnEmptyTextOpen();
    void IgnoresOtherControlKeys_data();
    void IgnoresOtherControlKeys();
    void KeepsThePrefix();
    void StopsAtTheLongestText();
    void MendsACaretOutsideOfTheText();
};

void tst_TitleEdit::ShowsTheCaret_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("shown");
    QTest::newRow("first") << u"12:30"_s << 0 << u"_2:30"_s;
    QTest::newRow("within") << u"12:30"_s << 2 << u"12_30"_s;
    QTest::newRow("last") << u"12:30"_s << 4 << u"12:3_"_s;
    QTest::newRow("behind") << u"12:30"_s << 5 << u"12:30 _"_s;
    QTest::newRow("empty") << QString() << 0 << u" _"_s;
    QTest::newRow("far behind") << u"12"_s << 9 << u"12 _"_s;
    QTest::newRow("before") << u"12"_s << -1 << u"_2"_s;
}

void tst_TitleEdit::ShowsTheCaret() {
    QFETCH(QString, text);
    QFETCH(int, position);
    QTEST(drawing::TextWithCaret(text, position), "shown");
}

// Each edit begins with "abc" and the caret behind it.
void tst_TitleEdit::Edits_data() {
    QTest::addColumn<Keys>("keys");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("caption");
    QTest::newRow("appends") << Keys{'d'} << u"abcd"_s << u"abcd _"_s;
    QTest::newRow("appends a blank") << Keys{' '} << u"abc "_s << u"abc  _"_s;
    QTest::newRow("appends a letter of another script") << Keys{0x0416} << u"abcЖ"_s << u"abcЖ _"_s;
    QTest::newRow("left") << Keys{37} << u"abc"_s << u"ab_"_s;
    QTest::newRow("left to the start") << Keys{37, 37, 37, 37} << u"abc"_s << u"_bc"_s;
    QTest::newRow("right at the end") << Keys{39} << u"abc"_s << u"abc _"_s;
    QTest::newRow("left and right") << Keys{37, 37, 39} << u"abc"_s << u"ab_"_s;
    QTest::newRow("inserts") << Keys{37, 37, 'x'} << u"axbc"_s << u"ax_c"_s;
    QTest::newRow("overwrites") << Keys{37, 37, 45, 'x'} << u"axc"_s << u"ax_"_s;
    QTest::newRow("overwrites up to the end") << Keys{37, 45, 'x', 'y'} << u"abxy"_s << u"abxy _"_s;
    QTest::newRow("inserts again") << Keys{37, 45, 45, 'x'} << u"abxc"_s << u"abx_"_s;
    QTest::newRow("deletes at the caret") << Keys{37, 37, 46} << u"ac"_s << u"a_"_s;
    QTest::newRow("deletes the last") << Keys{37, 46} << u"ab"_s << u"ab _"_s;
    QTest::newRow("deletes nothing at the end") << Keys{46} << u"abc"_s << u"abc _"_s;
    QTest::newRow("deletes before") << Keys{8} << u"ab"_s << u"ab _"_s;
    QTest::newRow("deletes before, within") << Keys{37, 8} << u"ac"_s << u"a_"_s;
    QTest::newRow("deletes nothing at the start") << Keys{37, 37, 37, 8} << u"abc"_s << u"_bc"_s;
    QTest::newRow("types %") << Keys{TypedKey(u'%')} << u"abc%"_s << u"abc% _"_s;
    QTest::newRow("types '") << Keys{TypedKey(u'\'')} << u"abc'"_s << u"abc' _"_s;
    QTest::newRow("types -") << Keys{TypedKey(u'-')} << u"abc-"_s << u"abc- _"_s;
    QTest::newRow("types .") << Keys{37, TypedKey(u'.')} << u"ab.c"_s << u"ab._"_s;
    QTest::newRow("types a letter") << Keys{TypedKey(u'Ж')} << u"abcЖ"_s << u"abcЖ _"_s;
    QTest::newRow("the codes of # and $ are typed") << Keys{35, 36} << u"abc#$"_s << u"abc#$ _"_s;
    QTest::newRow("home") << Keys{HomeKey} << u"abc"_s << u"_bc"_s;
    QTest::newRow("end") << Keys{HomeKey, EndKey} << u"abc"_s << u"abc _"_s;
    QTest::newRow("types between") << Keys{HomeKey, 'x', EndKey, 'y'} << u"xabcy"_s << u"xabcy _"_s;
    QTest::newRow("deletes all") << Keys{8, 8, 8, 8} << QString() << u" _"_s;
}

void tst_TitleEdit::Edits() {
    QFETCH(Keys, keys);
    QString tag = u"abc"_s;
    QString caption;
    TitleCaret caret{3};
    for (const int key : keys) {
        QVERIFY(!EditTitleKey(tag, caption, {}, key, caret));
    }
    QTEST(tag, "tag");
    QTEST(caption, "caption");
}

void tst_TitleEdit::EndsWithEnter() {
    QString tag = u"abc"_s;
    QString caption = u"a_c"_s;
    TitleCaret caret{1};
    QVERIFY(EditTitleKey(tag, caption, {}, 13, caret));
    QCOMPARE(tag, u"abc"_s);
    QCOMPARE(caption, u"abc"_s);
}

void tst_TitleEdit::KeepsAnEmptyTextOpen() {
    QString tag;
    QString caption;
    TitleCaret caret;
    QVERIFY(!EditTitleKey(tag, caption, {}, 13, caret));
    QCOMPARE(caption, u" _"_s);
}

void tst_TitleEdit::IgnoresOtherControlKeys_data() {
    QTest::addColumn<int>("key");
    for (const int key : {-1, 0, 1, 9, 16, 27, 31, 127, 0x85, 0xD800, 0x10000, 0x7FFFFFFF}) {
        QTest::addRow("%d", key) << key;
    }
    QTest::newRow("a typed Esc") << TypedKey(QChar(27));
    QTest::newRow("a typed half") << TypedKey(QChar(0xD800));
    QTest::newRow("beyond those typed") << 0x1010041;
    QTest::newRow("another key") << 0x2000025;
}

void tst_TitleEdit::IgnoresOtherControlKeys() {
    QFETCH(int, key);
    QString tag = u"abc"_s;
    QString caption = u"as it was"_s;
    TitleCaret caret{1};
    QVERIFY(!EditTitleKey(tag, caption, {}, key, caret));
    QCOMPARE(tag, u"abc"_s);
    QCOMPARE(caption, u"as it was"_s);
    QCOMPARE(caret.Position, 1);
}

void tst_TitleEdit::KeepsThePrefix() {
    QString tag = u"ab"_s;
    QString caption;
    TitleCaret caret{2};
    EditTitleKey(tag, caption, u"Name: "_s, 'c', caret);
    QCOMPARE(caption, u"Name: abc _"_s);
    EditTitleKey(tag, caption, u"Name: "_s, 13, caret);
    QCOMPARE(caption, u"Name: abc"_s);
}

void tst_TitleEdit::StopsAtTheLongestText() {
    QString tag(39, u'1');
    QString caption;
    TitleCaret caret{39};
    EditTitleKey(tag, caption, {}, '2', caret);
    EditTitleKey(tag, caption, {}, '3', caret);
    QCOMPARE(tag, QString(39, u'1') + u'2');
    QCOMPARE(caret.Position, 40);
    caret = {0, false};
    EditTitleKey(tag, caption, {}, '3', caret);
    QCOMPARE(tag, u'3' + QString(38, u'1') + u'2');
}

void tst_TitleEdit::MendsACaretOutsideOfTheText() {
    QString tag = u"ab"_s;
    QString caption;
    TitleCaret caret{9};
    EditTitleKey(tag, caption, {}, 'c', caret);
    QCOMPARE(tag, u"abc"_s);
    caret.Position = -4;
    EditTitleKey(tag, caption, {}, 'x', caret);
    QCOMPARE(tag, u"xabc"_s);
}

QTEST_GUILESS_MAIN(tst_TitleEdit)
#include "tst_TitleEdit.moc"
