#include <QTest>

#include "foundation/TextHelpers.h"

using namespace Qt::StringLiterals;

class tst_TextHelpers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void takesFirstFields();
    void limits();
    void takesFractions_data();
    void takesFractions();
    void replacesFirst_data();
    void replacesFirst();
    void turnsLineBreaksToSpaces();
    void wraps_data();
    void wraps();
    void cutsAtNul();
    void splitsColours();
    void writesIntegers();
    void listsFonts();
};

void tst_TextHelpers::takesFirstFields() {
    QCOMPARE(mduLib::FirstListField(u"a,b,c"_s), u"a"_s);
    QCOMPARE(mduLib::FirstListField(u"abc"_s), u"abc"_s);
    QCOMPARE(mduLib::FirstListField(u",b"_s), QString());
    QCOMPARE(mduLib::FirstListField(QString()), QString());
    ClockProperties array;
    array[1].Value = u"x,y"_s;
    QCOMPARE(mduLib::RowFirstField(1, array), u"x"_s);
    QCOMPARE(mduLib::RowFirstField(2, array), QString());
    QCOMPARE(mduLib::RowFirstField(-1, array), QString());
}

void tst_TextHelpers::limits() {
    QCOMPARE(mduLib::AtLeast(3, 3), 3.0);
    QCOMPARE(mduLib::AtLeast(2, 3), 3.0);
    QCOMPARE(mduLib::AtLeast(4, 3), 4.0);
    QCOMPARE(mduLib::AtMost(3, 3), 3.0);
    QCOMPARE(mduLib::AtMost(2, 3), 2.0);
    QCOMPARE(mduLib::AtMost(4, 3), 3.0);
}

void tst_TextHelpers::takesFractions_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("fraction");
    QTest::newRow("positive") << u"5.25"_s << 0.25;
    QTest::newRow("negative") << u"-5.25"_s << -0.25;
    QTest::newRow("whole") << u"5"_s << 0.0;
    QTest::newRow("no number") << u"5.25x"_s << 0.0;
    QTest::newRow("empty") << QString() << 0.0;
}

void tst_TextHelpers::takesFractions() {
    QFETCH(QString, text);
    QTEST(mduLib::Fraction(text), "fraction");
}

void tst_TextHelpers::replacesFirst_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("find");
    QTest::addColumn<QString>("result");
    QTest::newRow("the first alone") << u"aXbXc"_s << u"X"_s << u"a-bXc"_s;
    QTest::newRow("none") << u"abc"_s << u"X"_s << u"abc"_s;
    QTest::newRow("letter case counts") << u"aXb"_s << u"x"_s << u"aXb"_s;
    QTest::newRow("nothing to find") << u"abc"_s << QString() << u"abc"_s;
}

void tst_TextHelpers::replacesFirst() {
    QFETCH(QString, text);
    QFETCH(QString, find);
    QTEST(mduLib::ReplaceFirst(text, find, u"-"_s), "result");
}

void tst_TextHelpers::turnsLineBreaksToSpaces() {
    QCOMPARE(mduLib::LineBreaksToSpaces(u"a\r\nb\r\n\r\nc"_s), u"a b  c"_s);
    QCOMPARE(mduLib::LineBreaksToSpaces(u"a\nb\rc"_s), u"a\nb\rc"_s);
}

void tst_TextHelpers::wraps_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("wrapped");
    QTest::newRow("as long as the width") << u"aa bb"_s << 5 << u"aa bb"_s;
    QTest::newRow("longer") << u"aa bb c"_s << 5 << u"aa\r\nbb c"_s;
    QTest::newRow("last blank of each piece")
        << u"a b c d e f g h"_s << 6 << u"a b c\r\nd e f\r\ng h"_s;
    QTest::newRow("rest as long as the width is broken")
        << u"aaa bb c"_s << 4 << u"aaa\r\nbb\r\nc"_s;
    QTest::newRow("piece without a blank ends it")
        << u"a bbbbbbbb c d"_s << 4 << u"a\r\nbbbbbbbb c d"_s;
    QTest::newRow("no blank") << u"abcdefgh"_s << 3 << u"abcdefgh"_s;
    QTest::newRow("width 0") << u"a b"_s << 0 << u"a b"_s;
    QTest::newRow("negative width") << u"a b"_s << -1 << u"a b"_s;
    QTest::newRow("width 1") << u"  "_s << 1 << u"\r\n\r\n"_s;
    QTest::newRow("empty") << QString() << 5 << QString();
}

void tst_TextHelpers::wraps() {
    QFETCH(QString, text);
    QFETCH(int, width);
    QTEST(mduLib::WrapText(text, width), "wrapped");
}

void tst_TextHelpers::cutsAtNul() {
    const QChar text[] = {u'a', u'b', QChar::Null, u'c'};
    QCOMPARE(mduLib::CutAtNul(QString(text, 4)), u"ab"_s);
    QCOMPARE(mduLib::CutAtNul(u"ab"_s), QString());
    QCOMPARE(mduLib::CutAtNul(QString()), QString());
}

void tst_TextHelpers::splitsColours() {
    QCOMPARE(mduLib::SplitColour(0x123456), (mduLib::ColourParts{0x56, 0x34, 0x12}));
    QCOMPARE(mduLib::SplitColour(-1), (mduLib::ColourParts{255, 255, 255}));
}

void tst_TextHelpers::writesIntegers() {
    QCOMPARE(mduLib::IntegerText(12), u"12"_s);
    QCOMPARE(mduLib::IntegerText(-12), u"-12"_s);
}

void tst_TextHelpers::listsFonts() {
    const QStringList names = mduLib::SystemFontList().split(u',');
    QVERIFY(!names.contains(QString()));
    QCOMPARE(names.filter(QRegularExpression(u"^\\s|\\s$"_s)), QStringList());
}

QTEST_MAIN(tst_TextHelpers)
#include "tst_TextHelpers.moc"
