#include <QTest>

#include "drawing/DialLook.h"
#include "support/FakeFace.h"

using namespace Qt::StringLiterals;
using drawing::DialLook;

class tst_DialLook : public QObject {
    Q_OBJECT

    static DialLook Read(FakeFace& face) {
        return drawing::ReadDialLook(face.Properties, face.Window, {});
    }

    static void Centre(FakeFace& face) {
        face.Set(u"Clock CentralX(%)"_s, u"-1"_s);
        face.Set(u"Clock CentralY(%)"_s, u"-1"_s);
    }

private Q_SLOTS:
    void ReadsTheProperties() {
        FakeFace face(500, 300);
        face.Set(u"Clock CentralX(%)"_s, u"25"_s);
        face.Set(u"Clock CentralY(%)"_s, u"-1"_s);
        face.Set(u"Hour Number Style"_s, u" 3D 12 "_s);
        face.Set(u"Hour Number Position(%)"_s, u"80"_s);
        face.Set(u"Hour Number Size"_s, u"12"_s);
        face.Set(u"Hour Number Font"_s, u" Arial "_s);
        face.Set(u"Hour Number Colour"_s, u"Random"_s);
        face.Set(u"Minute Spot Style"_s, u"Spot 8"_s);
        face.Set(u"Minute Spot Position(%)"_s, u"95"_s);
        face.Set(u"Minute Spot Size"_s, u"-1"_s);
        face.Set(u"Clock Special"_s, u" Analogue Hour Number Random Colour "_s);
        const DialLook look = Read(face);
        QCOMPARE(look.Centre, QPointF(125, 150));
        QVERIFY(look.Style.HasShadow());
        QCOMPARE(look.NumberRadius, 115);  // 0.48 of the shorter side is 144
        QCOMPARE(look.NumberSize, 12);
        QCOMPARE(look.NumberFont, u"Arial"_s);
        QVERIFY(look.IsRandomColour());
        QVERIFY(look.IsRecoloured());
        QVERIFY(!look.IsBackward());
        QVERIFY(look.Spots == drawing::SpotStyle(u"Spot 8"_s));
        QCOMPARE(look.SpotRadius, 137);
        QCOMPARE(look.SpotSize, 6);
        QCOMPARE(look.OuterHeight, 4500.0);
    }

    void MissingPropertiesReadAsZero() {
        FakeFace face;
        const DialLook look = Read(face);
        QCOMPARE(look.Centre, QPointF(0, 0));
        QCOMPARE(look.NumberRadius, 0);
        QCOMPARE(look.SpotSize, 0);
        QVERIFY(!look.Style.IsNumbered(15));
    }

    void ShadowFallsDownAndToTheLeft_data() {
        QTest::addColumn<int>("size");
        QTest::addColumn<double>("ratio");
        QTest::addColumn<QPointF>("point");
        QTest::newRow("small") << 150 << 1.0 << QPointF(74, 76);     // 75 -+ 0.75
        QTest::newRow("medium") << 500 << 1.0 << QPointF(248, 252);  // 250 - 2, 250 + 2.5
        QTest::newRow("large") << 1000 << 1.0 << QPointF(498, 503);
        QTest::newRow("large, fine screen") << 2000 << 2.0 << QPointF(996, 1006);
    }

    void ShadowFallsDownAndToTheLeft() {
        QFETCH(int, size);
        QFETCH(double, ratio);
        FakeFace face(size, size, ratio);
        Centre(face);
        QTEST(Read(face).NumberPoint(60, true), "point");
        QCOMPARE(Read(face).NumberPoint(60, false), QPointF(size / 2.0, size / 2.0));
    }

    void BackwardMovesNumbersAside() {
        FakeFace face(200, 200, 2);
        Centre(face);
        face.Set(u"Clock Special"_s, u"Analogue Backward"_s);
        QCOMPARE(Read(face).NumberPoint(60, false), QPointF(104, 100));
    }

    void SpotsHaveTheirPlace() {
        FakeFace face(200, 200);
        Centre(face);
        face.Set(u"Minute Spot Position(%)"_s, u"100"_s);
        face.Set(u"Minute Spot Size"_s, u"10"_s);
        QCOMPARE(Read(face).SpotPlace(15).center().toPoint(), QPoint(191, 95));
        QCOMPARE(Read(face).SpotPlace(30).topLeft().toPoint(), QPoint(90, 186));
    }
};

QTEST_MAIN(tst_DialLook)
#include "tst_DialLook.moc"
