#include <QTest>

#include "clock/ClockMode.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;

class tst_ClockMode : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Types_data() {
        QTest::addColumn<QString>("value");
        QTest::addColumn<int>("type");
        QTest::newRow("analogue") << u"Analogue"_s << 1;
        QTest::newRow("digital with choices") << u"Digital,Analogue,Digital"_s << 2;
        QTest::newRow("calculator") << u"Calculator"_s << 3;
        QTest::newRow("both") << u"Analogue and Digital"_s << 4;
        QTest::newRow("unknown") << u"Sundial"_s << 0;
        QTest::newRow("empty") << QString() << 0;
    }

    void Types() {
        QFETCH(QString, value);
        ClockProperties properties;
        mduLib::PutPropertyRaw(u"Clocks"_s, value, properties);
        QTEST(clockcore::GetClockType(properties), "type");
    }

    void MissingKeyIsNoType() { QCOMPARE(clockcore::GetClockType(ClockProperties()), 0); }

    void Names() {
        QCOMPARE(clockcore::ClockModeName(1), u"Analogue"_s);
        QCOMPARE(clockcore::ClockModeName(4), u"Analogue and Digital"_s);
        QCOMPARE(clockcore::ClockModeName(5), QString());
        QCOMPARE(clockcore::ClockModeName(0), QString());
    }

    void Modes_data() {
        QTest::addColumn<QString>("tag");
        QTest::addColumn<QList<int>>("kinds");  // those that answer true, of 1 to 8
        QTest::newRow("analogue") << u"1"_s << QList{1};
        QTest::newRow("digital") << u"2"_s << QList{2};
        QTest::newRow("both") << u"4"_s << QList{4};
        QTest::newRow("input") << u"5"_s << QList{5};
        QTest::newRow("message typing") << u"6"_s << QList{6};
        QTest::newRow("wrapper of none") << u"7"_s << QList{7};
        QTest::newRow("wrapped analogue") << u"8"_s << QList{1, 7};
        QTest::newRow("wrapped calculator") << u"10"_s << QList{3, 7};
        QTest::newRow("wrapped both") << u"11"_s << QList{4, 7};
        QTest::newRow("no number") << u"clock"_s << QList<int>{};
        QTest::newRow("empty") << QString() << QList<int>{};
    }

    void Modes() {
        QFETCH(QString, tag);
        QFETCH(QList<int>, kinds);
        QList<int> found;
        for (int kind = 1; kind <= 8; ++kind) {
            if (clockcore::IsClockMode(tag, kind)) {
                found += kind;
            }
        }
        QCOMPARE(found, kinds);
    }
};

QTEST_APPLESS_MAIN(tst_ClockMode)
#include "tst_ClockMode.moc"
