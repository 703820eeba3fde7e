#include "editor/TypeAhead.h"

#include <QTest>

#include "support/FakeServices.h"

using namespace Qt::StringLiterals;

class tst_TypeAhead : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void FindsWhatBegins();
    void EndsAfterItsTime();
    void WaitsAnewAtEachKey();
    void WaitsAsLongAsItIsTold();
    void WaitsForEver();
    void EndsAtOnce();
};

namespace {

const QStringList Colours{u"Red"_s, u"Green"_s, u"Grey"_s};

}  // namespace

void tst_TypeAhead::FindsWhatBegins() {
    FakeServices machine;
    editor::TypeAhead burst(machine.Clock);
    QCOMPARE(burst.ListItem(), -1);
    QCOMPARE(burst.Typed(u"G"_s, u"G"_s, Colours), 1);
    QCOMPARE(burst.Typed(u"r"_s, u"Gr"_s, Colours), 1);
    QCOMPARE(burst.Typed(u"e"_s, u"Gre"_s, Colours), 1);
    QCOMPARE(burst.Typed(u"y"_s, u"Grey"_s, Colours), 2);
    QCOMPARE(burst.ListItem(), 2);
    QCOMPARE(burst.TypedText(), u"Grey"_s);
    QCOMPARE(burst.Typed(u"x"_s, u"Greyx"_s, Colours), -1);
    QCOMPARE(burst.ListItem(), -1);
}

void tst_TypeAhead::EndsAfterItsTime() {
    FakeServices machine;
    editor::TypeAhead burst(machine.Clock);
    burst.Typed(u"G"_s, u"G"_s, Colours);
    machine.Clock.Advance(799);
    QCOMPARE(burst.ListItem(), 1);
    machine.Clock.Advance(1);
    QCOMPARE(burst.ListItem(), -1);
    QCOMPARE(burst.TypedText(), QString());
}

void tst_TypeAhead::WaitsAnewAtEachKey() {
    FakeServices machine;
    editor::TypeAhead burst(machine.Clock);
    burst.Typed(u"G"_s, u"G"_s, Colours);
    machine.Clock.Advance(700);
    burst.Typed(u"r"_s, u"Gr"_s, Colours);
    machine.Clock.Advance(700);
    QCOMPARE(burst.TypedText(), u"Gr"_s);
    machine.Clock.Advance(100);
    QCOMPARE(burst.TypedText(), QString());
    burst.Typed(u"R"_s, u"R"_s, Colours);
    QCOMPARE(burst.TypedText(), u"R"_s);
}

void tst_TypeAhead::WaitsAsLongAsItIsTold() {
    FakeServices machine;
    editor::TypeAhead burst(machine.Clock);
    burst.SetTypeCheckingTime(300);
    burst.Typed(u"G"_s, u"G"_s, Colours);
    machine.Clock.Advance(299);
    QCOMPARE(burst.ListItem(), 1);
    machine.Clock.Advance(1);
    QCOMPARE(burst.ListItem(), -1);
}

void tst_TypeAhead::WaitsForEver() {
    FakeServices machine;
    editor::TypeAhead burst(machine.Clock);
    burst.SetTypeCheckingTime(-5);
    burst.Typed(u"G"_s, u"G"_s, Colours);
    machine.Clock.Advance(3'600'000);
    QCOMPARE(burst.ListItem(), 1);
}

void tst_TypeAhead::EndsAtOnce() {
    FakeServices machine;
    editor::TypeAhead burst(machine.Clock);
    burst.Typed(u"G"_s, u"G"_s, Colours);
    burst.End();
    QCOMPARE(burst.ListItem(), -1);
    machine.Clock.Advance(500);
    burst.Typed(u"R"_s, u"R"_s, Colours);
    machine.Clock.Advance(500);
    QCOMPARE(burst.ListItem(), 0);
}

QTEST_GUILESS_MAIN(tst_TypeAhead)
#include "tst_TypeAhead.moc"
