#include "editor/CellText.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_CellText : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void FormatsNumbers_data();
    void FormatsNumbers();
    void Spins_data();
    void Spins();
};

void tst_CellText::FormatsNumbers_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("formatted");
    QTest::newRow("whole") << u"3"_s << u"3"_s;
    QTest::newRow("blanks") << u" 3 "_s << u"3"_s;
    QTest::newRow("zeros before") << u"007"_s << u"7"_s;
    QTest::newRow("a point") << u"3.5"_s << u"3.50"_s;
    QTest::newRow("a point alone behind") << u"3."_s << u"3.00"_s;
    QTest::newRow("more digits") << u"2.719"_s << u"2.72"_s;
    QTest::newRow("an exponent") << u"1e3"_s << u"1000"_s;
    QTest::newRow("halves go away from nothing") << u"25e-1"_s << u"3"_s;
    QTest::newRow("hexadecimal") << u"&HFF"_s << u"255"_s;
    QTest::newRow("below nothing") << u"-4.25"_s << u"-4.25"_s;
    QTest::newRow("nothing below nothing") << u"-0.001"_s << u"0.00"_s;
    QTest::newRow("fifteen digits") << u"999999999999999"_s << u"999999999999999"_s;
    QTest::newRow("too many digits") << u"1234567890123456.5"_s << u"1234567890123456.5"_s;
    QTest::newRow("too large") << u"1e999"_s << u"1e999"_s;
    QTest::newRow("no number") << u" abc "_s << u"abc"_s;
    QTest::newRow("a number and more") << u"3 kg"_s << u"3 kg"_s;
    QTest::newRow("a comma") << u"3,5"_s << u"3,5"_s;
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("blank") << u"  "_s << QString();
}

void tst_CellText::FormatsNumbers() {
    QFETCH(QString, text);
    QTEST(editor::FormattedNumber(text), "formatted");
}

void tst_CellText::Spins_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<std::optional<QString>>("up");
    QTest::addColumn<std::optional<QString>>("down");
    using Text = std::optional<QString>;
    QTest::newRow("two digits") << u"1.50"_s << Text(u"2.50"_s) << Text(u"0.50"_s);
    QTest::newRow("whole") << u"3"_s << Text(u"4"_s) << Text(u"2"_s);
    QTest::newRow("blanks") << u" 3 "_s << Text(u"4"_s) << Text(u"2"_s);
    QTest::newRow("past nothing") << u"0"_s << Text(u"1"_s) << Text(u"-1"_s);
    QTest::newRow("one digit") << u"-0.5"_s << Text(u"0.50"_s) << Text(u"-1.50"_s);
    QTest::newRow("to nothing") << u"-1.0"_s << Text(u"0.00"_s) << Text(u"-2.00"_s);
    QTest::newRow("the largest") << u"999999999999999"_s << Text() << Text(u"999999999999998"_s);
    QTest::newRow("a date") << u"25/03/2008"_s << Text(u"26/03/2008"_s) << Text(u"24/03/2008"_s);
    QTest::newRow("a leap day") << u"28/2/2024"_s << Text(u"29/02/2024"_s) << Text(u"27/02/2024"_s);
    QTest::newRow("the end of a year")
        << u"31/12/2025"_s << Text(u"01/01/2026"_s) << Text(u"30/12/2025"_s);
    QTest::newRow("no year") << u"1/3"_s << Text(u"02/03/2026"_s) << Text(u"28/02/2026"_s);
    QTest::newRow("a date and a time") << u"25/03/2008 9:05:07"_s << Text(u"26/03/2008 9:05:07"_s)
                                       << Text(u"24/03/2008 9:05:07"_s);
    QTest::newRow("a time alone") << u"9:05"_s << Text() << Text();
    QTest::newRow("the last day") << u"31/12/9999"_s << Text() << Text(u"30/12/9999"_s);
    QTest::newRow("the first day") << u"1/1/100"_s << Text(u"02/01/0100"_s) << Text();
    QTest::newRow("no such day") << u"31/02/2024"_s << Text() << Text();
    QTest::newRow("a word") << u"abc"_s << Text() << Text();
    QTest::newRow("empty") << QString() << Text() << Text();
}

void tst_CellText::Spins() {
    QFETCH(QString, text);
    QTEST(editor::SpunText(text, 1, 2026), "up");
    QTEST(editor::SpunText(text, -1, 2026), "down");
}

QTEST_GUILESS_MAIN(tst_CellText)
#include "tst_CellText.moc"
