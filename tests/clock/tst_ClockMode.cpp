#include <QTest>

#include "clock/ClockData.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;
using clockcore::ClockKind;
using clockcore::ClockTag;

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
        QTest::newRow("blanks around") << u" Digital "_s << 2;
        QTest::newRow("other letters") << u"digital"_s << 0;
        QTest::newRow("unknown") << u"Sundial"_s << 0;
        QTest::newRow("empty") << QString() << 0;
    }

    void Types() {
        QFETCH(QString, value);
        ClockProperties properties;
        mduLib::PutPropertyRaw(u"Clocks"_s, value, properties);
        QTEST(static_cast<int>(clockcore::GetClockType(properties)), "type");
    }

    void MissingKeyIsNoType() {
        QCOMPARE(clockcore::GetClockType(ClockProperties()), ClockKind::None);
    }

    void Names() {
        QCOMPARE(clockcore::ClockKindName(ClockKind::Analogue), u"Analogue"_s);
        QCOMPARE(clockcore::ClockKindName(ClockKind::AnalogueAndDigital),
                 u"Analogue and Digital"_s);
        QCOMPARE(clockcore::ClockKindName(ClockKind::CalculatorInput), QString());
        QCOMPARE(clockcore::ClockKindName(ClockKind::CalculatorMessage), QString());
        QCOMPARE(clockcore::ClockKindName(ClockKind::None), QString());
        QCOMPARE(
            clockcore::ClockKindNames(),
            (QStringList{u"Analogue"_s, u"Digital"_s, u"Calculator"_s, u"Analogue and Digital"_s}));
    }

    void Numbers_data() {
        QTest::addColumn<int>("number");
        QTest::addColumn<ClockKind>("kind");
        QTest::newRow("below") << -1 << ClockKind::None;
        QTest::newRow("0") << 0 << ClockKind::None;
        QTest::newRow("1") << 1 << ClockKind::Analogue;
        QTest::newRow("2") << 2 << ClockKind::Digital;
        QTest::newRow("3") << 3 << ClockKind::Calculator;
        QTest::newRow("4") << 4 << ClockKind::AnalogueAndDigital;
        QTest::newRow("the input state is in no menu") << 5 << ClockKind::None;
        QTest::newRow("beyond") << 8 << ClockKind::None;
    }

    void Numbers() {
        QFETCH(int, number);
        QTEST(clockcore::NumberedClockKind(number), "kind");
    }

    void Tags_data() {
        QTest::addColumn<ClockKind>("kind");
        QTest::addColumn<bool>("isWrapper");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QList<int>>("kinds");  // those that answer true, of 0 to 8
        QTest::newRow("none") << ClockKind::None << false << u"0"_s << QList{0};
        QTest::newRow("analogue") << ClockKind::Analogue << false << u"1"_s << QList{1};
        QTest::newRow("digital") << ClockKind::Digital << false << u"2"_s << QList{2};
        QTest::newRow("calculator") << ClockKind::Calculator << false << u"3"_s << QList{3};
        QTest::newRow("both") << ClockKind::AnalogueAndDigital << false << u"4"_s << QList{4};
        QTest::newRow("input") << ClockKind::CalculatorInput << false << u"5"_s << QList{5};
        QTest::newRow("message") << ClockKind::CalculatorMessage << false << u"6"_s << QList{6};
        QTest::newRow("wrapper of none") << ClockKind::None << true << u"7"_s << QList{0};
        QTest::newRow("wrapped analogue") << ClockKind::Analogue << true << u"8"_s << QList{1};
        QTest::newRow("wrapped calculator") << ClockKind::Calculator << true << u"10"_s << QList{3};
        QTest::newRow("wrapped both")
            << ClockKind::AnalogueAndDigital << true << u"11"_s << QList{4};
    }

    void Tags() {
        QFETCH(ClockKind, kind);
        QFETCH(bool, isWrapper);
        QFETCH(QList<int>, kinds);
        clockcore::ClockData data;
        data.Tag = {kind, isWrapper};
        QTEST(data.Tag.Text(), "text");
        QList<int> found;
        for (int other = 0; other <= 8; ++other) {
            if (data.Is(static_cast<ClockKind>(other))) {
                found += other;
            }
        }
        QCOMPARE(found, kinds);
    }

    void ANewClockIsAnalogue() { QCOMPARE(clockcore::ClockData().Tag.Text(), u"1"_s); }

    void PartsOfAKind_data() {
        QTest::addColumn<ClockKind>("kind");
        QTest::addColumn<QString>("parts");
        QTest::newRow("none") << ClockKind::None << QString();
        QTest::newRow("analogue") << ClockKind::Analogue << u"dial "_s;
        QTest::newRow("digital") << ClockKind::Digital << u"digits "_s;
        QTest::newRow("calculator") << ClockKind::Calculator << u"lines "_s;
        QTest::newRow("both") << ClockKind::AnalogueAndDigital << u"dial digits "_s;
        QTest::newRow("input") << ClockKind::CalculatorInput << u"lines "_s;
        QTest::newRow("message") << ClockKind::CalculatorMessage << u"lines "_s;
    }

    void PartsOfAKind() {
        QFETCH(ClockKind, kind);
        for (const bool isWrapper : {false, true}) {
            clockcore::ClockData data;
            data.Tag = {kind, isWrapper};
            QTEST((data.IsAnalogue() ? u"dial "_s : QString()) +
                      (data.IsDigital() ? u"digits "_s : QString()) +
                      (data.IsCalculator() ? u"lines "_s : QString()),
                  "parts");
        }
    }
};

QTEST_APPLESS_MAIN(tst_ClockMode)
#include "tst_ClockMode.moc"
