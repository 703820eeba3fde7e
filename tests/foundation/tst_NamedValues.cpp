#include <QTest>

#include "foundation/NamedValues.h"
#include "support/FakeRandom.h"

using namespace Qt::StringLiterals;

class tst_NamedValues : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsColours_data();
    void readsColours();
    void lowersAColoursWord();
    void offersEightColours();
    void drawsRandomColours();
    void namesColours_data();
    void namesColours();
    void knowsCustom();
    void readsYesAndNo_data();
    void readsYesAndNo();
    void knowsNone();
    void readsWindowStates_data();
    void readsWindowStates();
    void namesWindowStates();
    void namesToolbarPositions();
    void readsIconSizes();
    void knowsPictures_data();
    void knowsPictures();
    void namesFunctionKeys();
};

void tst_NamedValues::readsColours_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("value");
    QTest::newRow("red") << u"Red"_s << 255;
    QTest::newRow("black") << u"Black"_s << 0;
    QTest::newRow("green") << u"Green"_s << 65280;
    QTest::newRow("yellow") << u"Yellow"_s << 65535;
    QTest::newRow("blue") << u"Blue"_s << 16711680;
    QTest::newRow("magenta") << u"Magenta"_s << 16711935;
    QTest::newRow("cyan") << u"Cyan"_s << 16776960;
    QTest::newRow("white is not pure") << u"WHITE"_s << 16777213;
    QTest::newRow("blanks around") << u" white "_s << 16777213;
    QTest::newRow("transparent") << u"Transparent"_s << 16777215;
    QTest::newRow("number") << u"8421504"_s << 8421504;
    QTest::newRow("hexadecimal") << u"&HFFFFFF"_s << 16777215;
    QTest::newRow("negative") << u"-5"_s << -5;
    QTest::newRow("fraction") << u"2.5"_s << 2;
    QTest::newRow("too large") << u"99999999999"_s << 0;
    QTest::newRow("number with more behind it") << u"12abc"_s << 0;
    QTest::newRow("unknown") << u"Pink"_s << 0;
    QTest::newRow("empty") << QString() << 0;
    QTest::newRow("custom") << u"Custom"_s << 0;
}

void tst_NamedValues::readsColours() {
    QFETCH(QString, text);
    FakeRandom random;
    QTEST(mduUILib::ColourValue(text, random), "value");
    QCOMPARE(random.Seeds, 0);
}

void tst_NamedValues::lowersAColoursWord() {
    QCOMPARE(mduUILib::ColourWord(u" White "_s), u"white"_s);
    QCOMPARE(mduUILib::ColourWord(u" No Colour "_s), u"no colour"_s);
    QCOMPARE(mduUILib::ColourWord({}), QString());
}

void tst_NamedValues::offersEightColours() {
    QCOMPARE(mduUILib::MenuColours().join(u' '),
             u"Black Blue Cyan Green Magenta Red White Yellow"_s);
}

void tst_NamedValues::drawsRandomColours() {
    FakeRandom random;
    random.Numbers = {0.5, 0.999, 0.0};
    QString text = u"Random"_s;
    QCOMPARE(mduUILib::ColourValue(text, random), 0x7FFE00);  // blue 127, green 254, red 0
    QCOMPARE(random.Seeds, 1);
    mduUILib::ColourValue(text, random);
    QCOMPARE(random.Seeds, 2);
}

void tst_NamedValues::namesColours_data() {
    QTest::addColumn<int>("colour");
    QTest::addColumn<QString>("name");
    QTest::newRow("black") << 0 << u"Black"_s;
    QTest::newRow("red") << 255 << u"Red"_s;
    QTest::newRow("green") << 65280 << u"Green"_s;
    QTest::newRow("yellow") << 65535 << u"Yellow"_s;
    QTest::newRow("blue") << 0xFF0000 << u"Blue"_s;
    QTest::newRow("magenta") << 0xFF00FF << u"Magenta"_s;
    QTest::newRow("cyan") << 0xFFFF00 << u"Cyan"_s;
    QTest::newRow("white") << 16777213 << u"White"_s;
    QTest::newRow("pure white") << 16777215 << u"White"_s;
    QTest::newRow("transparent window") << 0x1000002 << u"Transparent"_s;
    QTest::newRow("any other") << 8421504 << u"8421504"_s;
    QTest::newRow("negative") << -5 << u"-5"_s;
}

void tst_NamedValues::namesColours() {
    QFETCH(int, colour);
    QTEST(mduUILib::ColourName(colour), "name");
}

void tst_NamedValues::knowsCustom() {
    QVERIFY(mduUILib::IsCustomColour(u"Custom"_s));
    QVERIFY(!mduUILib::IsCustomColour(u"custom"_s));
    QVERIFY(!mduUILib::IsCustomColour(u" Custom"_s));
}

void tst_NamedValues::readsYesAndNo_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("value");
    QTest::newRow("yes") << u"Yes"_s << true;
    QTest::newRow("no") << u"No"_s << false;
    QTest::newRow("no with blanks") << u" NO "_s << false;
    QTest::newRow("maybe") << u"Maybe"_s << true;
    QTest::newRow("empty") << QString() << true;
    QTest::newRow("0") << u"0"_s << true;
    QTest::newRow("none") << u"None"_s << true;
}

void tst_NamedValues::readsYesAndNo() {
    QFETCH(QString, text);
    QTEST(mduUILib::YesNoToBool(text), "value");
    QCOMPARE(mduUILib::BoolToYesNo(true), u"Yes"_s);
    QCOMPARE(mduUILib::BoolToYesNo(false), u"No"_s);
}

void tst_NamedValues::knowsNone() {
    QVERIFY(mduUILib::IsNoneValue(u"0"_s));
    QVERIFY(mduUILib::IsNoneValue(u"None"_s));
    QVERIFY(mduUILib::IsNoneValue(QString()));
    QVERIFY(!mduUILib::IsNoneValue(u"none"_s));
    QVERIFY(!mduUILib::IsNoneValue(u"00"_s));
}

void tst_NamedValues::readsWindowStates_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("state");
    QTest::newRow("maximized") << u"Maximized"_s << 2;
    QTest::newRow("letter case") << u"MINIMIZED"_s << 1;
    QTest::newRow("normal") << u"Normal"_s << 0;
    QTest::newRow("missing") << u"0"_s << 0;
    QTest::newRow("blanks count") << u" Maximized"_s << 0;
}

void tst_NamedValues::readsWindowStates() {
    QFETCH(QString, text);
    QTEST(mduUILib::WindowStateValue(text), "state");
}

void tst_NamedValues::namesWindowStates() {
    QCOMPARE(mduUILib::WindowStateName(2), u"Maximized"_s);
    QCOMPARE(mduUILib::WindowStateName(1), u"Minimized"_s);
    QCOMPARE(mduUILib::WindowStateName(0), u"Normal"_s);
    QCOMPARE(mduUILib::WindowStateName(9), u"Normal"_s);
}

void tst_NamedValues::namesToolbarPositions() {
    QCOMPARE(mduUILib::ToolbarPositionName(1, true), u"Top"_s);
    QCOMPARE(mduUILib::ToolbarPositionName(2, true), u"Bottom"_s);
    QCOMPARE(mduUILib::ToolbarPositionName(3, true), u"Left"_s);
    QCOMPARE(mduUILib::ToolbarPositionName(4, false), u"Right:Hide"_s);
    QCOMPARE(mduUILib::ToolbarPositionName(5, true), u"None"_s);
    QCOMPARE(mduUILib::ToolbarPositionName(-1, false), u"None:Hide"_s);
}

void tst_NamedValues::readsIconSizes() {
    QCOMPARE(mduUILib::ToolbarIconSize(u"Large Size with Caption"_s), 2);
    QCOMPARE(mduUILib::ToolbarIconSize(u"Small Size"_s), 1);
    QCOMPARE(mduUILib::ToolbarIconSize(u"large size"_s), 1);
}

void tst_NamedValues::knowsPictures_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("picture");
    QTest::newRow("jpg") << u"a.jpg"_s << true;
    QTest::newRow("gif") << u"A.GIF"_s << true;
    QTest::newRow("bmp") << u"a.Bmp"_s << true;
    QTest::newRow("ending alone") << u".jpg"_s << true;
    QTest::newRow("png") << u"a.png"_s << false;
    QTest::newRow("jpeg") << u"a.jpeg"_s << false;
    QTest::newRow("more behind it") << u"a.jpg "_s << false;
    QTest::newRow("empty") << QString() << false;
}

void tst_NamedValues::knowsPictures() {
    QFETCH(QString, name);
    QTEST(mduUILib::IsPictureFile(name), "picture");
}

void tst_NamedValues::namesFunctionKeys() {
    QCOMPARE(mduUILib::FunctionKeyName(111), QString());
    QCOMPARE(mduUILib::FunctionKeyName(112), u"F1"_s);
    QCOMPARE(mduUILib::FunctionKeyName(123), u"F12"_s);
    QCOMPARE(mduUILib::FunctionKeyName(124), QString());
}

QTEST_GUILESS_MAIN(tst_NamedValues)
#include "tst_NamedValues.moc"
