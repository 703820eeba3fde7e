#include <QTest>

#include "foundation/PropertyLookup.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;

namespace {

ClockProperties Rows(std::initializer_list<ClockProperty> rows) {
    ClockProperties array;
    array.Resize(static_cast<int>(rows.size()));
    int row = 0;
    for (const ClockProperty& property : rows) {
        array[++row] = property;
    }
    return array;
}

ClockProperties Sample() {
    return Rows({{u"Clock"_s, u"Clocks"_s, u"Digital,Analogue,Digital"_s},
                 {u"Window"_s, u" Window State "_s, u"Normal"_s},
                 {u" Hands "_s, u"Colour"_s, u"Red,Red,Blue"_s},
                 {u"Digital"_s, u"Colour"_s, u"Green"_s},
                 {QString(), u"Odd"_s, u",a,b"_s},
                 {QString(), u"Empty"_s, QString()}});
}

}  // namespace

class tst_PropertyLookup : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void findsRows_data();
    void findsRows();
    void getsValues_data();
    void getsValues();
    void getsChoices_data();
    void getsChoices();
    void getsRawValues();
    void putsOverARow_data();
    void putsOverARow();
    void putsANewKeyBehindAGap();
    void putsInACategory();
    void putsRaw();
    void putsRawInACategory();
    void putsAndKeepsChoices();
    void savesNow();
    void savingNowTellsOfFailure();
    void appends();
    void sortsRows_data();
    void sortsRows();
    void collectsTheNamesAskedFor();
};

void tst_PropertyLookup::findsRows_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("category");
    QTest::addColumn<int>("row");
    QTest::newRow("exact") << u"Clocks"_s << QString() << 1;
    QTest::newRow("letter case and stored blanks") << u"WINDOW STATE"_s << QString() << 2;
    QTest::newRow("the name asked for is not trimmed") << u" Window State"_s << QString() << 0;
    QTest::newRow("the first one wins") << u"Colour"_s << QString() << 3;
    QTest::newRow("category") << u"Colour"_s << u"DIGITAL"_s << 4;
    QTest::newRow("stored category is trimmed") << u"Colour"_s << u"hands"_s << 3;
    QTest::newRow("category asked for is not") << u"Colour"_s << u" hands"_s << 0;
    QTest::newRow("other category") << u"Clocks"_s << u"Window"_s << 0;
    QTest::newRow("missing") << u"Nothing"_s << QString() << 0;
}

void tst_PropertyLookup::findsRows() {
    QFETCH(QString, name);
    QFETCH(QString, category);
    QTEST(mduLib::FindPropertyRow(name, Sample(), category), "row");
}

void tst_PropertyLookup::getsValues_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::newRow("up to the comma") << u"clocks"_s << u"Digital"_s;
    QTest::newRow("no comma") << u"Window State"_s << u"Normal"_s;
    QTest::newRow("comma first") << u"Odd"_s << QString();
    QTest::newRow("empty") << u"Empty"_s << QString();
    QTest::newRow("missing") << u"Nothing"_s << u"0"_s;
}

void tst_PropertyLookup::getsValues() {
    QFETCH(QString, name);
    QTEST(mduLib::GetProperty(name, Sample()), "value");
}

void tst_PropertyLookup::getsChoices_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("choices");
    QTest::newRow("list") << u"Clocks"_s << u"Analogue,Digital"_s;
    QTest::newRow("no comma") << u"Window State"_s << u"Normal"_s;
    QTest::newRow("comma first") << u"Odd"_s << u"a,b"_s;
    QTest::newRow("missing") << u"Nothing"_s << QString();
}

void tst_PropertyLookup::getsChoices() {
    QFETCH(QString, name);
    QTEST(mduLib::GetPropertyChoices(name, Sample()), "choices");
}

void tst_PropertyLookup::getsRawValues() {
    const ClockProperties array = Sample();
    QCOMPARE(mduLib::GetPropertyRaw(u"CLOCKS"_s, array), u"Digital,Analogue,Digital"_s);
    QCOMPARE(mduLib::GetPropertyRaw(u"Nothing"_s, array), QString());
    QCOMPARE(mduLib::GetPropertyRaw(u"Colour"_s, array), u"Red,Red,Blue"_s);
    QCOMPARE(mduLib::GetPropertyRawIn(u"Colour"_s, array, u"Digital"_s), u"Green"_s);
    QCOMPARE(mduLib::GetPropertyRawIn(u"Colour"_s, array, u"Window"_s), QString());
    QCOMPARE(mduLib::GetProperty(u"Colour"_s, array, u"Digital"_s), u"Green"_s);
    QCOMPARE(mduLib::GetProperty(u"Colour"_s, array, u"Window"_s), u"0"_s);
}

void tst_PropertyLookup::putsOverARow_data() {
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("after");
    QTest::newRow("keeps the choices") << u"Red,Red,Blue"_s << u" Blue "_s << u"Blue,Red,Blue"_s;
    QTest::newRow("no comma") << u"Red"_s << u" Blue "_s << u"Blue"_s;
    QTest::newRow("comma first loses them") << u",a,b"_s << u"c"_s << u"c"_s;
    QTest::newRow("empty") << QString() << u"c"_s << u"c"_s;
    QTest::newRow("commas of the new value stay") << u"a,b"_s << u"x,y"_s << u"x,y,b"_s;
    QTest::newRow("to nothing") << u"a,b"_s << u"  "_s << u",b"_s;
    QTest::newRow("mark goes with the value") << u"^a,b"_s << u"c"_s << u"c,b"_s;
}

void tst_PropertyLookup::putsOverARow() {
    QFETCH(QString, before);
    QFETCH(QString, value);
    ClockProperties array = Rows({{u"C"_s, u"Name"_s, before}});
    mduLib::PutProperty(u"name"_s, value, array);
    QCOMPARE(array.UpperBound(), 1);
    QCOMPARE(array[1].Category, u"C"_s);
    QCOMPARE(array[1].Name, u"Name"_s);
    QTEST(array[1].Value, "after");
}

void tst_PropertyLookup::putsANewKeyBehindAGap() {
    ClockProperties array = Sample();
    mduLib::PutProperty(u" New Key "_s, u" 1,2 "_s, array, u"Cat"_s);
    QCOMPARE(array.UpperBound(), 8);
    QCOMPARE(array[7], ClockProperty());
    QCOMPARE(array[8], (ClockProperty{u"Cat"_s, u" New Key "_s, u"1,2"_s}));
    ClockProperties fresh;
    mduLib::PutProperty(u"N"_s, u"1"_s, fresh);
    QCOMPARE(fresh.UpperBound(), 3);
    QCOMPARE(fresh[3], (ClockProperty{QString(), u"N"_s, u"1"_s}));
}

void tst_PropertyLookup::putsInACategory() {
    ClockProperties array = Sample();
    mduLib::PutProperty(u"colour"_s, u"Blue"_s, array, u"digital"_s);
    QCOMPARE(array[3].Value, u"Red,Red,Blue"_s);
    QCOMPARE(array[4], (ClockProperty{u"Digital"_s, u"Colour"_s, u"Blue"_s}));
}

void tst_PropertyLookup::putsRaw() {
    ClockProperties array = Sample();
    mduLib::PutPropertyRaw(u"clocks"_s, u" Calculator,a "_s, array);
    QCOMPARE(array[1], (ClockProperty{u"Clock"_s, u"Clocks"_s, u"Calculator,a"_s}));
    mduLib::PutPropertyRaw(u" New Key "_s, u" 1,2 "_s, array);
    QCOMPARE(array.UpperBound(), 8);
    QCOMPARE(array[8], (ClockProperty{QString(), u"New Key"_s, u"1,2"_s}));
}

void tst_PropertyLookup::putsRawInACategory() {
    ClockProperties array = Sample();
    mduLib::PutPropertyRaw(u"colour"_s, u"Cyan"_s, array, u"HANDS"_s);
    QCOMPARE(array[3], (ClockProperty{u"HANDS"_s, u"Colour"_s, u"Cyan"_s}));
    mduLib::PutPropertyRaw(u"Colour"_s, u"Black"_s, array, u"Window"_s);
    QCOMPARE(array[8], (ClockProperty{u"Window"_s, u"Colour"_s, u"Black"_s}));
}

void tst_PropertyLookup::putsAndKeepsChoices() {
    ClockProperties array = Sample();
    mduLib::PutPropertyKeepChoices(u"Clocks"_s, u"Calculator"_s, array);
    QCOMPARE(array[1].Value, u"Calculator,Analogue,Digital"_s);
    mduLib::PutPropertyKeepChoices(u"Odd"_s, u"c"_s, array);
    QCOMPARE(array[5].Value, u"c,a,b"_s);
    mduLib::PutPropertyKeepChoices(u"Window State"_s, u"Maximized"_s, array);
    QCOMPARE(array[2].Value, u"Maximized,Normal"_s);
}

void tst_PropertyLookup::savesNow() {
    FakeServices machine;
    const QString path = machine.AppFolder() + u"/a.ini"_s;
    ClockProperties array = Rows({{u"W"_s, u"Window Top"_s, u"1,2,3"_s}});
    QVERIFY(mduLib::SavePropertyNow(machine.Files, u"window top"_s, u" 7 "_s, array, path));
    QCOMPARE(machine.ReadFile(u"a.ini"_s), "W:Window Top= 7 \r\n"_ba);
    QVERIFY(mduLib::SavePropertyNow(machine.Files, u"New"_s, u"a,b"_s, array, path));
    QCOMPARE(array.UpperBound(), 3);
    QCOMPARE(machine.ReadFile(u"a.ini"_s), "W:Window Top= 7 \r\nNew=a,b\r\n"_ba);
}

void tst_PropertyLookup::savingNowTellsOfFailure() {
    FakeServices machine;
    const QString path = machine.WriteFile(u"a.ini"_s, "old=1\r\n");
    machine.Files.Unwritable = {path};
    ClockProperties array = Rows({{QString(), u"old"_s, u"1"_s}});
    QVERIFY(!mduLib::SavePropertyNow(machine.Files, u"old"_s, u"2"_s, array, path));
    QCOMPARE(array[1].Value, u"2"_s);
    QCOMPARE(machine.ReadFile(u"a.ini"_s), "old=1\r\n"_ba);
}

void tst_PropertyLookup::appends() {
    ClockProperties array;
    mduLib::AppendProperty(u"C"_s, u"First"_s, u"1"_s, array);
    QCOMPARE(array.UpperBound(), 1);
    mduLib::AppendProperty(QString(), u"Second"_s, u"2"_s, array);
    QCOMPARE(array.UpperBound(), 2);
    array.Resize(3);
    mduLib::AppendProperty(u"C"_s, u"Third"_s, u"3"_s, array);
    QCOMPARE(array.UpperBound(), 3);
    QCOMPARE(array, Rows({{u"C"_s, u"First"_s, u"1"_s},
                          {QString(), u"Second"_s, u"2"_s},
                          {u"C"_s, u"Third"_s, u"3"_s}}));
    ClockProperties none;
    none.Resize(0);
    mduLib::AppendProperty(QString(), u"N"_s, QString(), none);
    QCOMPARE(none.UpperBound(), 1);
    QCOMPARE(none[0], ClockProperty());
}

void tst_PropertyLookup::sortsRows_data() {
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("direction");
    QTest::addColumn<std::vector<int>>("rows");
    QTest::newRow("file order") << 2 << 0 << std::vector{1, 2, 4, 5};
    QTest::newRow("any other direction") << 2 << -7 << std::vector{1, 2, 4, 5};
    QTest::newRow("category ascending") << 1 << 1 << std::vector{2, 5, 1, 4};
    QTest::newRow("category descending") << 1 << 2 << std::vector{1, 4, 2, 5};
    QTest::newRow("upper case first") << 2 << 1 << std::vector{2, 4, 1, 5};
    QTest::newRow("name descending") << 2 << 2 << std::vector{5, 1, 4, 2};
    QTest::newRow("value ascending") << 3 << 1 << std::vector{4, 1, 5, 2};
}

void tst_PropertyLookup::sortsRows() {
    QFETCH(int, column);
    QFETCH(int, direction);
    const ClockProperties array = Rows({{u"B"_s, u"a"_s, u"10"_s},
                                        {u"A"_s, u"A"_s, u"9"_s},
                                        {u"A"_s, QString(), u"gap"_s},
                                        {u"B"_s, u"Z"_s, u"1"_s},
                                        {u"A"_s, u"b"_s, u"10"_s}});
    QTEST(mduLib::SortPropertyRows(array, column, direction), "rows");
}

void tst_PropertyLookup::collectsTheNamesAskedFor() {
    ClockProperties array;
    const auto names = std::make_shared<AskedNames>();
    array.CollectAskedNames(names);
    mduLib::PutProperty(u"Written"_s, u"1"_s, array);
    const ClockProperties copy = array;
    QVERIFY(copy == array);
    mduLib::GetProperty(u"Current"_s, copy);
    mduLib::GetPropertyRaw(u"Raw"_s, copy);
    mduLib::GetPropertyRawIn(u"In A Category"_s, copy, u"Clock"_s);
    mduLib::GetPropertyChoices(u"Choices"_s, copy.EmptyOfItsKind());
    QCOMPARE(*names, AskedNames({u"Choices"_s, u"Current"_s, u"In A Category"_s, u"Raw"_s}));
    QCOMPARE(copy.EmptyOfItsKind().UpperBound(), 1);
    QVERIFY(ClockProperties() != array);
    names->clear();
    array = ClockProperties();
    mduLib::GetProperty(u"Given Other Rows"_s, array);
    QCOMPARE(*names, AskedNames({u"Given Other Rows"_s}));
    mduLib::GetProperty(u"Nobody Listens"_s, ClockProperties());
}

QTEST_GUILESS_MAIN(tst_PropertyLookup)
#include "tst_PropertyLookup.moc"
