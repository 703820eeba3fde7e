#include <QTest>

#include "foundation/MenuLists.h"
#include "support/FakeRandom.h"

using namespace Qt::StringLiterals;
using mduUILib::CheckMenuItem;
using mduUILib::FillColourMenu;
using mduUILib::FillMenuFromList;

class tst_MenuLists final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TicksTheSameText_data();
    void TicksTheSameText();
    void FillsFromAList_data();
    void FillsFromAList();
    void OffersEightColours();
    void NamesAColour_data();
    void NamesAColour();
};

void tst_MenuLists::TicksTheSameText_data() {
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("ticked");
    QTest::newRow("the same") << u"Blue"_s << u"Blue"_s << true;
    QTest::newRow("blanks around the caption") << u" Blue "_s << u"Blue"_s << true;
    QTest::newRow("blanks around the value") << u"Blue"_s << u"\tBlue "_s << true;
    QTest::newRow("blanks within") << u"Light Blue"_s << u"LightBlue"_s << false;
    QTest::newRow("another letter case") << u"blue"_s << u"Blue"_s << false;
    QTest::newRow("a part of it") << u"Blue"_s << u"Blue1"_s << false;
    QTest::newRow("the same number, another text") << u"10"_s << u"10.0"_s << false;
    QTest::newRow("nothing") << u"Blue"_s << u""_s << false;
    QTest::newRow("a separator") << u"-"_s << u"-"_s << false;
}

void tst_MenuLists::TicksTheSameText() {
    QFETCH(QString, caption);
    QFETCH(QString, value);
    QTEST(CheckMenuItem(caption, value), "ticked");
}

void tst_MenuLists::NamesAColour_data() {
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("caption");
    QTest::newRow("a name") << u"Cyan"_s << u"Cyan"_s;
    QTest::newRow("another letter case") << u" cYAN "_s << u"Cyan"_s;
    QTest::newRow("a number") << u"255"_s << u"Red"_s;
    QTest::newRow("black") << u"0"_s << u"Black"_s;
    QTest::newRow("in base 16") << u"&HFF0000"_s << u"Blue"_s;
    QTest::newRow("white") << u"16777213"_s << u"White"_s;
    QTest::newRow("the transparent key") << u"16777215"_s << u"White"_s;
    QTest::newRow("a transparent window") << u"16777218"_s << u"Transparent"_s;
    QTest::newRow("transparent") << u"transparent"_s << u"Transparent"_s;
    QTest::newRow("random") << u"random"_s << u"Random"_s;
    QTest::newRow("without a name") << u"4711"_s << u"4711"_s;
    QTest::newRow("no colour") << u"Purple"_s << u"Purple"_s;
    QTest::newRow("nothing") << u""_s << u""_s;
}

void tst_MenuLists::NamesAColour() {
    QFETCH(QString, value);
    FakeRandom random;
    QTEST(mduUILib::ColourCaption(value, random), "caption");
}

void tst_MenuLists::FillsFromAList_data() {
    QTest::addColumn<QString>("list");
    QTest::addColumn<QStringList>("captions");
    QTest::newRow("three") << u"30,10,20"_s << QStringList{u"30"_s, u"10"_s, u"20"_s};
    QTest::newRow("blanks around them")
        << u" 12 hours , 24 hours"_s << QStringList{u"12 hours"_s, u"24 hours"_s};
    QTest::newRow("one") << u"Arial"_s << QStringList{u"Arial"_s};
    QTest::newRow("twice the same") << u"1,1"_s << QStringList{u"1"_s, u"1"_s};
    QTest::newRow("empty parts") << u",a,, ,b,"_s << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("nothing") << u""_s << QStringList{};
}

void tst_MenuLists::FillsFromAList() {
    QFETCH(QString, list);
    QTEST(FillMenuFromList(list), "captions");
}

void tst_MenuLists::OffersEightColours() {
    QCOMPARE(FillColourMenu(), QStringList({u"Black"_s, u"Blue"_s, u"Cyan"_s, u"Green"_s,
                                            u"Magenta"_s, u"Red"_s, u"White"_s, u"Yellow"_s}));
}

QTEST_APPLESS_MAIN(tst_MenuLists)
#include "tst_MenuLists.moc"
