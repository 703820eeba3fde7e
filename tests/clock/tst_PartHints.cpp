#include <QTest>

#include "clock/PartHints.h"

using namespace Qt::StringLiterals;
using clockcore::ClockPart;
using clockcore::PartHint;

class tst_PartHints : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EachPart_data() {
        QTest::addColumn<ClockPart>("part");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("text");
        QTest::newRow("hands") << ClockPart::Hands << u"Clock Hand Settings"_s
                               << u"Set clock hand length\r\nSet clock hand line width\r\n"
                                  "Set clock hand style\r\nSet clock hand colour"_s;
        QTest::newRow("digits") << ClockPart::Digits << u"Digital Number Settings"_s
                                << u"Digital clock format\r\nSet number colour"_s;
        QTest::newRow("hour number") << ClockPart::HourNumber << u"Clock Hour Number"_s
                                     << u"Set timer\r\nSet hour number colour"_s;
        QTest::newRow("local time")
            << ClockPart::Input << u"Local time settings"_s << u"Set local time font colour"_s;
        QTest::newRow("calculated time") << ClockPart::Output << u"Calculated Time Settings"_s
                                         << u"Set timer\r\nSet calculated time font colour"_s;
        QTest::newRow("face") << ClockPart::Face << QString() << QString();
        QTest::newRow("flag") << ClockPart::Flag << QString() << QString();
    }

    void EachPart() {
        QFETCH(ClockPart, part);
        const PartHint hint = clockcore::HintOf(part);
        QTEST(hint.Title, "title");
        QTEST(hint.Text, "text");
        QCOMPARE(hint.Colour, -1);
    }

    void Spots() {
        const PartHint hint = clockcore::HintOfSpot(u"12:48"_s);
        QCOMPARE(hint.Title, u"Time 12:48"_s);
        QCOMPARE(hint.Text, u"Set timer for 12:48 to 1:00"_s);
        QCOMPARE(hint.Colour, -1);
        QVERIFY(clockcore::HintOfSpot({}) == PartHint());
    }

    void AMarkInItsColour() {
        timers::ClockTimer timer;
        timer.Message = u"Tea"_s;
        timer.MessageColour = 0xFF0000;
        const PartHint hint = clockcore::HintOfMark(timer);
        QCOMPARE(hint.Title, u"Timer Message"_s);
        QVERIFY(hint.Text.startsWith(u"Tea\r\n"_s));
        QCOMPARE(hint.Colour, 0xFF0000);
    }
};

QTEST_GUILESS_MAIN(tst_PartHints)
#include "tst_PartHints.moc"
