#include <QTest>

#include "clock/DroppedParts.h"

using namespace Qt::StringLiterals;
using clockcore::DragObject;
using clockcore::DropWindow;
using clockcore::KeyValues;

namespace {

/// 200 by 100 logical pixels inside, 208 by 125 outside; the second on a screen of twice the
/// pixels.
const DropWindow Plain{{200, 100}, {3120, 1875}, 1};
const DropWindow Fine{{400, 200}, {3120, 1875}, 2};

QString Texts(const KeyValues& values) {
    QStringList texts;
    for (const auto& [key, value] : values) {
        texts += key + u'=' + value;
    }
    return texts.join(u'|');
}

QString DialAt(const QPointF& pointer, const DropWindow& window) {
    return Texts(DroppedPercent(DragObject::Dial, pointer, {}, window));
}

QString DigitsAt(const QPointF& pointer, const QSizeF& size, const DropWindow& window) {
    return Texts(DroppedPercent(DragObject::Digits, pointer, size, window));
}

}  // namespace

class tst_DroppedParts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// (94 + 10) / 208 and (30 + 20) / 125. A pixel of the finer screen is half of that, so there
    /// (99 + 5) / 208 and (40 + 10) / 125.
    void ADialByItsGrip() {
        const QString expected = u"Clock CentralX(%)=50|Clock CentralY(%)=40"_s;
        QCOMPARE(DialAt({94, 30}, Plain), expected);
        QCOMPARE(DialAt({99, 40}, Fine), expected);
    }

    /// Its centre goes to the edge: 0 and 100.
    void ADialComesBackIntoSight() {
        QCOMPARE(DialAt({-500, 30}, Plain), u"Clock CentralX(%)=0|Clock CentralY(%)=40"_s);
        QCOMPARE(DialAt({94, 900}, Plain), u"Clock CentralX(%)=50|Clock CentralY(%)=100"_s);
        QCOMPARE(DialAt({900, -500}, Plain), u"Clock CentralX(%)=100|Clock CentralY(%)=0"_s);
    }

    /// (47 + 5) / 208 and (80 - 30) / 125; (49.5 + 2.5) / 208 and (65 - 15) / 125.
    void DigitsByTheirGrip() {
        const QString expected = u"Digital Clock CentralX(%)=25|Digital Clock CentralY(%)=40"_s;
        QCOMPARE(DigitsAt({47, 80}, {80, 20}, Plain), expected);
        QCOMPARE(DigitsAt({49.5, 65}, {160, 40}, Fine), expected);
    }

    /// Half of them may hang over an edge: 40 of 200 and 10 of 100.
    void DigitsComeBackIntoSight() {
        QCOMPARE(DigitsAt({-500, -500}, {80, 20}, Plain),
                 u"Digital Clock CentralX(%)=-20|Digital Clock CentralY(%)=-10"_s);
        QCOMPARE(DigitsAt({900, 900}, {160, 40}, Fine),
                 u"Digital Clock CentralX(%)=80|Digital Clock CentralY(%)=90"_s);
    }

    /// (28.75 - 30) / 125 is -1, which would be a place that the clock finds by itself.
    void APlaceThatHasAMeaning() {
        QCOMPARE(DigitsAt({47, 28.75}, {80, 20}, Plain),
                 u"Digital Clock CentralX(%)=25|Digital Clock CentralY(%)=0"_s);
    }

    void PushedByPercents() {
        QCOMPARE(Texts(PushedPercent(DragObject::Dial, {100, 50}, {1, 0}, {}, Plain)),
                 u"Clock CentralX(%)=51|Clock CentralY(%)=50"_s);
        QCOMPARE(Texts(PushedPercent(DragObject::Dial, {199, 1}, {1, -2}, {}, Plain)),
                 u"Clock CentralX(%)=100|Clock CentralY(%)=0"_s);
        QCOMPARE(Texts(PushedPercent(DragObject::Digits, {100, 25}, {-1, 1}, {80, 20}, Fine)),
                 u"Digital Clock CentralX(%)=24|Digital Clock CentralY(%)=13.5"_s);
    }

    void AFlagInItsCorner_data() {
        QTest::addColumn<QPointF>("at");
        QTest::addColumn<QString>("words");
        QTest::newRow("top right") << QPointF(150, 5) << u"Top right"_s;
        QTest::newRow("top left") << QPointF(20, 5) << u"Top left"_s;
        QTest::newRow("bottom right") << QPointF(100, 60) << u"Bottom right"_s;
        QTest::newRow("bottom left") << QPointF(0, 90) << u"Bottom left"_s;
        QTest::newRow("its middle counts") << QPointF(84, 41) << u"Top left"_s;
        QTest::newRow("a little further") << QPointF(86, 41) << u"Top right"_s;
        QTest::newRow("and down") << QPointF(86, 43) << u"Bottom right"_s;
        QTest::newRow("between") << QPointF(85, 42) << u"Top right"_s;
    }

    /// The flag has 30 by 16 pixels.
    void AFlagInItsCorner() {
        QFETCH(QPointF, at);
        QFETCH(QString, words);
        QCOMPARE(Texts(clockcore::DroppedCorner({at, QSizeF(30, 16)}, {200, 100})),
                 u"Flag Position="_s + words);
    }

    void OthersInLogicalPixels() {
        QCOMPARE(Texts(DroppedPixels(DragObject::Location, {30.4, 60, 50, 10}, Plain)),
                 u"Time Zone Name Left=30|Time Zone Name Top=60"_s);
        QCOMPARE(Texts(DroppedPixels(DragObject::Speaker, {61, 120, 100, 20}, Fine)),
                 u"Speaker Image Left=30|Speaker Image Top=60"_s);  // 30.5 goes to the even one
        QCOMPARE(Texts(DroppedPixels(DragObject::Handle, {-7, 99, 16, 16}, Plain)),
                 u"Transparent Icon Left=0|Transparent Icon Top=84"_s);
    }

    void BackIntoSight() {
        QCOMPARE(clockcore::InSight({10, 10, 50, 20}, {200, 100}), QRectF(10, 10, 50, 20));
        QCOMPARE(clockcore::InSight({190, -4, 50, 20}, {200, 100}), QRectF(150, 0, 50, 20));
        QCOMPARE(clockcore::InSight({-90, 40, 300, 20}, {200, 100}), QRectF(0, 40, 300, 20));
    }

    void KeysOfEach() {
        using clockcore::KeysOf;
        QCOMPARE(KeysOf(DragObject::Flag), std::vector<QString>{u"Flag Position"_s});
        QCOMPARE(KeysOf(DragObject::Handle),
                 (std::vector<QString>{u"Transparent Icon Left"_s, u"Transparent Icon Top"_s}));
        QVERIFY(KeysOf(DragObject::Window).empty());
        QVERIFY(KeysOf(DragObject::None).empty());
    }
};

QTEST_GUILESS_MAIN(tst_DroppedParts)
#include "tst_DroppedParts.moc"
