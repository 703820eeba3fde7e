#include "timers/TimerHints.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace timers;

class tst_TimerHints : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void OfASpot_data() {
        QTest::addColumn<QString>("time");
        QTest::addColumn<QString>("text");
        QTest::newRow("over one o'clock") << u"12:48"_s << u"Set timer for 12:48 to 1:00"_s;
        QTest::newRow("behind midnight") << u"0:12"_s << u"Set timer for 0:12 to 0:24"_s;
        QTest::newRow("within an hour") << u"3:12"_s << u"Set timer for 3:12 to 3:24"_s;
        QTest::newRow("to twelve") << u"11:48"_s << u"Set timer for 11:48 to 12:00"_s;
        QTest::newRow("two digits") << u"9:00"_s << u"Set timer for 9:00 to 9:12"_s;
    }

    void OfASpot() {
        QFETCH(QString, time);
        QFETCH(QString, text);
        QCOMPARE(SpotHint(time), (TimerHint{u"Time "_s + time, text, 0}));
    }

    void NoTimeHasNoHint() {
        QCOMPARE(SpotHint({}), TimerHint());
        QCOMPARE(SpotHint(u"noon"_s), TimerHint());
    }

    void OfAMarkThatMeansItsHalf() {
        ClockTimer timer{u"15:10"_s, {}, true, u"5"_s, u"Tea"_s, 0, {}, {}, {}};
        QVERIFY(!MarkHint(timer).Text.contains(u"Comes at"_s));
        timer.Due.WholeDay = true;
        QVERIFY(MarkHint(timer).Text.startsWith(u"Tea\r\nComes at 15:10\r\nSet timer action"_s));
    }

    void OfAMark() {
        const ClockTimer timer{u"15:30"_s,
                               u"P"_s,
                               true,
                               u"5"_s,
                               u"Tea is ready"_s,
                               0xFF0000,
                               u".\\SoundFiles\\Bell.wav"_s,
                               u"/usr/bin/xterm"_s,
                               u"40"_s};
        const TimerHint hint = MarkHint(timer);
        QCOMPARE(hint.Title, u"Timer Message"_s);
        QCOMPARE(hint.Text,
                 u"Tea is ready\r\nSet timer action: xterm\r\nPlay Music: 40\r\n"
                 "Set timer sound: Bell.wav\r\nSet message display time: 5\r\n"
                 "Set message colour: Blue\r\nEdit message\r\nRemove timer permanent\r\n"
                 "Remove timer: 15:30\r\nChange timer: 15:30"_s);
        QCOMPARE(hint.Colour, 0xFF0000);
    }

    void ALongMessageIsShortened() {
        ClockTimer timer;
        timer.Message = QString(200, u'x');
        QVERIFY(MarkHint(timer).Text.startsWith(timer.Message + u"\r\n"_s));
        timer.Message += u'y';
        QVERIFY(MarkHint(timer).Text.startsWith(QString(200, u'x') + u"\u2026\r\n"_s));
    }

    void OfAMarkWithoutAMessage() {
        const ClockTimer timer{u"03:05"_s, {}, true, u"0"_s, {}, 255, {}, u"Log Off"_s, {}};
        const TimerHint hint = MarkHint(timer);
        QCOMPARE(hint.Title, u"Timer"_s);
        QCOMPARE(hint.Text,
                 u"Set timer action: Log Off\r\nPlay Music: None\r\nSet timer sound: None\r\n"
                 "Set message display time: 0\r\nSet message colour: Red\r\nEdit message\r\n"
                 "Set timer permanent\r\nRemove timer: 03:05\r\nChange timer: 03:05"_s);
    }
};

QTEST_GUILESS_MAIN(tst_TimerHints)
#include "tst_TimerHints.moc"
