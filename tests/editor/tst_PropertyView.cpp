#include "editor/PropertyView.h"

#include <QTest>

#include "foundation/PropertyLookup.h"
#include "support/FakeFiles.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;
using editor::PropertyView;
using Records = std::vector<int>;

namespace {

/// 1 to 3 and 5; the fourth row is a gap.
ClockProperties Five() {
    ClockProperties properties;
    mduLib::AppendProperty(u"Hands"_s, u"Hour Hand Colour"_s, u"Red,Red,Green"_s, properties);
    mduLib::AppendProperty(u"Clock"_s, u"Size"_s, u"9"_s, properties);
    mduLib::AppendProperty(u"Hands"_s, u"Minute Hand Colour"_s, u"Blue,Red,Green"_s, properties);
    properties.Resize(5);
    properties[5] = {u"Clock"_s, u"Alarm"_s, u"bells"_s};
    return properties;
}

}  // namespace

class tst_PropertyView : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Sorts_data();
    void Sorts();
    void ReadsTags_data();
    void ReadsTags();
    void Filters_data();
    void Filters();
    void FiltersWithTheHelp();
    void AFilterKeepsTheOrder();
    void HeadsCategories();
    void SortsByItsHeadings();
};

void tst_PropertyView::Sorts_data() {
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("order");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<Records>("records");
    QTest::newRow("as the file") << 2 << 0 << u"2,0"_s << Records{1, 2, 3, 5};
    QTest::newRow("category") << 1 << 1 << u"1,1"_s << Records{2, 5, 1, 3};
    QTest::newRow("category, down") << 1 << 2 << u"1,2"_s << Records{1, 3, 2, 5};
    QTest::newRow("key") << 2 << 1 << u"2,1"_s << Records{5, 1, 3, 2};
    QTest::newRow("key, down") << 2 << 2 << u"2,2"_s << Records{2, 3, 1, 5};
    QTest::newRow("value") << 3 << 1 << u"3,1"_s << Records{2, 3, 1, 5};
    QTest::newRow("value, down") << 3 << 2 << u"3,2"_s << Records{5, 1, 3, 2};
}

void tst_PropertyView::Sorts() {
    QFETCH(int, column);
    QFETCH(int, order);
    PropertyView view;
    QCOMPARE(view.Tag(), u"2,0"_s);
    view.Sort(column, order);
    QTEST(view.Tag(), "tag");
    QTEST(view.Records(Five(), {}), "records");
}

void tst_PropertyView::ReadsTags_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("tag");
    QTest::newRow("value") << u"3,1"_s << u"3,1"_s;
    QTest::newRow("none") << QString() << u"2,0"_s;
    QTest::newRow("one number") << u"3"_s << u"2,0"_s;
    QTest::newRow("three") << u"3,1,1"_s << u"2,0"_s;
    QTest::newRow("no order") << u"3,x"_s << u"2,0"_s;
    QTest::newRow("no column") << u"x,1"_s << u"2,0"_s;
}

void tst_PropertyView::ReadsTags() {
    QFETCH(QString, text);
    PropertyView view;
    view.Sort(1, 2);
    view.SortByTag(text);
    QTEST(view.Tag(), "tag");
}

void tst_PropertyView::Filters_data() {
    QTest::addColumn<QString>("words");
    QTest::addColumn<Records>("records");
    QTest::newRow("nothing") << QString() << Records{1, 2, 3, 5};
    QTest::newRow("blanks") << u"  "_s << Records{1, 2, 3, 5};
    QTest::newRow("two words") << u"hand colour"_s << Records{1, 3};
    QTest::newRow("in any order") << u"COLOUR  hour"_s << Records{1};
    QTest::newRow("a category") << u"clock"_s << Records{2, 5};
    QTest::newRow("a value") << u"bell"_s << Records{5};
    QTest::newRow("a choice") << u"green"_s << Records{1, 3};
    QTest::newRow("not all of them") << u"hand bells"_s << Records{};
    QTest::newRow("across fields") << u"hands blue"_s << Records{3};
}

void tst_PropertyView::Filters() {
    QFETCH(QString, words);
    PropertyView view;
    view.SetFilter(words);
    QCOMPARE(view.IsFiltered(), !words.trimmed().isEmpty());
    QTEST(view.Records(Five(), {}), "records");
}

void tst_PropertyView::FiltersWithTheHelp() {
    FakeServices machine;
    const QString path =
        machine.WriteFile(u"Help/keys.txt"_s, "Tempolark:Size=How wide the window stands.\n");
    PropertyView view;
    view.SetFilter(u"wide clock"_s);
    QCOMPARE(view.Records(Five(), editor::KeyNotes(machine.Files, path, u"Tempolark"_s)),
             Records{2});
}

void tst_PropertyView::AFilterKeepsTheOrder() {
    PropertyView view;
    view.Sort(2, 2);
    view.SetFilter(u"hand"_s);
    QCOMPARE(view.Records(Five(), {}), (Records{3, 1}));
}

void tst_PropertyView::HeadsCategories() {
    const ClockProperties properties = Five();
    PropertyView view;
    view.Sort(1, 1);
    const Records sorted = view.Records(properties, {});
    QCOMPARE(view.HeadingOver(sorted, 0, properties), u"Clock"_s);
    QCOMPARE(view.HeadingOver(sorted, 1, properties), QString());
    QCOMPARE(view.HeadingOver(sorted, 2, properties), u"Hands"_s);
    QCOMPARE(view.HeadingOver(sorted, 3, properties), QString());
    QCOMPARE(view.HeadingOver(sorted, 4, properties), QString());
    QCOMPARE(view.HeadingOver(sorted, -1, properties), QString());
    view.Sort(1, 2);
    QCOMPARE(view.HeadingOver({1, 2}, 1, properties), u"Clock"_s);
    for (const QString& tag : {u"1,0"_s, u"2,1"_s}) {
        view.SortByTag(tag);
        QCOMPARE(view.HeadingOver({1, 2}, 1, properties), QString());
    }
}

void tst_PropertyView::SortsByItsHeadings() {
    PropertyView view;
    QVERIFY(!view.Mark());
    QCOMPARE(view.TagOfClick(0), u"2,1"_s);
    QCOMPARE(view.TagOfClick(1), u"3,1"_s);
    view.SortByTag(u"2,1"_s);
    QCOMPARE(view.TagOfClick(0), u"2,2"_s);
    QCOMPARE(view.TagOfClick(1), u"3,1"_s);
    QCOMPARE(view.Mark()->Column, 0);
    QVERIFY(view.Mark()->IsAscending);
    view.SortByTag(u"3,2"_s);
    QCOMPARE(view.TagOfClick(1), u"3,1"_s);
    QCOMPARE(view.Mark()->Column, 1);
    QVERIFY(!view.Mark()->IsAscending);
    for (const QString& tag : {u"1,1"_s, u"1,2"_s, u"3,0"_s}) {
        view.SortByTag(tag);
        QVERIFY(!view.Mark());
    }
}

QTEST_GUILESS_MAIN(tst_PropertyView)
#include "tst_PropertyView.moc"
