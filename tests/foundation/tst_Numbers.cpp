#include <QTest>
#include <cmath>
#include <limits>

#include "foundation/Numbers.h"

using namespace Qt::StringLiterals;

class tst_Numbers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsNumbers_data();
    void readsNumbers();
    void rounds_data();
    void rounds();
    void readsIntegers_data();
    void readsIntegers();
    void fitsSixteenBits_data();
    void fitsSixteenBits();
    void writesSingles_data();
    void writesSingles();
    void writesSinglesInSevenDigits();
};

void tst_Numbers::readsNumbers_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    QTest::addColumn<bool>("numeric");
    QTest::newRow("whole") << u"12"_s << 12.0 << true;
    QTest::newRow("blanks around") << u"  12 "_s << 12.0 << true;
    QTest::newRow("blanks within") << u"1 2"_s << 12.0 << false;
    QTest::newRow("number in front") << u"12abc"_s << 12.0 << false;
    QTest::newRow("no number") << u"abc"_s << 0.0 << false;
    QTest::newRow("empty") << QString() << 0.0 << false;
    QTest::newRow("blanks") << u"  "_s << 0.0 << false;
    QTest::newRow("fraction") << u"-2.5"_s << -2.5 << true;
    QTest::newRow("no digit before the point") << u".5"_s << 0.5 << true;
    QTest::newRow("no digit behind the point") << u"5."_s << 5.0 << true;
    QTest::newRow("a point alone") << u"."_s << 0.0 << false;
    QTest::newRow("a sign and a point") << u"+."_s << 0.0 << false;
    QTest::newRow("an exponent alone") << u"e5"_s << 0.0 << false;
    QTest::newRow("a sign alone") << u"-"_s << 0.0 << false;
    QTest::newRow("plus") << u"+7"_s << 7.0 << true;
    QTest::newRow("two signs") << u"--7"_s << 0.0 << false;
    QTest::newRow("exponent") << u"1e3"_s << 1000.0 << true;
    QTest::newRow("exponent with d") << u"1D-1"_s << 0.1 << true;
    QTest::newRow("exponent without digits") << u"1e"_s << 1.0 << false;
    QTest::newRow("exponent with a sign alone") << u"1e+"_s << 1.0 << false;
    QTest::newRow("hexadecimal") << u"&HFF"_s << 255.0 << true;
    QTest::newRow("hexadecimal in lower case") << u"&h00ff00"_s << 65280.0 << true;
    QTest::newRow("hexadecimal has 32 bits and a sign") << u"&HFFFFFFFF"_s << -1.0 << true;
    QTest::newRow("hexadecimal beyond them") << u"&H100000000"_s << 0.0 << false;
    QTest::newRow("hexadecimal without digits") << u"&H"_s << 0.0 << false;
    QTest::newRow("comma ends it") << u"1,000"_s << 1.0 << false;
    QTest::newRow("time") << u"00:20"_s << 0.0 << false;
    QTest::newRow("too large") << u"1e999"_s << 0.0 << false;
    QTest::newRow("infinity") << u"inf"_s << 0.0 << false;
    QTest::newRow("not a number") << u"nan"_s << 0.0 << false;
    QTest::newRow("digits of another script") << u"٣"_s << 0.0 << false;
}

void tst_Numbers::readsNumbers() {
    QFETCH(QString, text);
    QTEST(mduAPILib::Val(text), "value");
    QTEST(mduAPILib::IsNumeric(text), "numeric");
}

void tst_Numbers::rounds_data() {
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("rounded");
    QTest::newRow("half down to even") << 2.5 << 2;
    QTest::newRow("half up to even") << 3.5 << 4;
    QTest::newRow("negative half") << -2.5 << -2;
    QTest::newRow("half of one") << 0.5 << 0;
    QTest::newRow("above half") << 2.51 << 3;
    QTest::newRow("beyond the range") << 1e20 << 2147483647;
    QTest::newRow("below the range") << -1e20 << -2147483647 - 1;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << 2147483647;
    QTest::newRow("not a number") << std::nan("") << 0;
}

void tst_Numbers::rounds() {
    QFETCH(double, value);
    QTEST(mduAPILib::RoundToInteger(value), "rounded");
}

void tst_Numbers::readsIntegers_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("value");
    QTest::newRow("whole") << u"-1"_s << -1;
    QTest::newRow("half to even") << u"2.5"_s << 2;
    QTest::newRow("no number") << u"Automatic"_s << 0;
    QTest::newRow("too large") << u"99999999999"_s << 2147483647;
}

void tst_Numbers::readsIntegers() {
    QFETCH(QString, text);
    QTEST(mduAPILib::IntegerValue(text), "value");
}

void tst_Numbers::fitsSixteenBits_data() {
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("number");
    QTest::newRow("largest") << 32767.0 << 32767;
    QTest::newRow("rounds into the range") << 32767.4 << 32767;
    QTest::newRow("rounds out of it") << 32767.5 << 7;
    QTest::newRow("smallest") << -32768.0 << -32768;
    QTest::newRow("below") << -32769.0 << 7;
    QTest::newRow("half to even") << 0.5 << 0;
    QTest::newRow("not a number") << std::nan("") << 7;
}

void tst_Numbers::fitsSixteenBits() {
    QFETCH(double, value);
    QTEST(int(mduAPILib::ToInt16(value, 7)), "number");
}

void tst_Numbers::writesSingles_data() {
    QTest::addColumn<float>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("whole") << 4500.0F << u"4500"_s;
    QTest::newRow("shortest") << 0.1F << u"0.1"_s;
    QTest::newRow("negative") << -7.25F << u"-7.25"_s;
    QTest::newRow("seven digits") << 33.33333F << u"33.33333"_s;
    QTest::newRow("no exponent") << 1e7F << u"10000000"_s;
    QTest::newRow("small") << 1e-5F << u"0.00001"_s;
    QTest::newRow("zero") << -0.0F << u"0"_s;
    QTest::newRow("infinite") << std::numeric_limits<float>::infinity() << u"0"_s;
}

void tst_Numbers::writesSingles() {
    QFETCH(float, value);
    QTEST(mduAPILib::SingleText(value), "text");
}

void tst_Numbers::writesSinglesInSevenDigits() {
    QCOMPARE(mduAPILib::ShortSingleText(27.5F), u"27.5"_s);
    QCOMPARE(mduAPILib::ShortSingleText(0.1F), u"0.1"_s);
    QCOMPARE(mduAPILib::ShortSingleText(33.333332F), u"33.33333"_s);
    QCOMPARE(mduAPILib::ShortSingleText(-66.666664F), u"-66.66666"_s);
    QCOMPARE(mduAPILib::ShortSingleText(16777216.0F), u"16777220"_s);
    QCOMPARE(mduAPILib::ShortSingleText(std::numeric_limits<float>::infinity()), u"0"_s);
}

QTEST_GUILESS_MAIN(tst_Numbers)
#include "tst_Numbers.moc"
