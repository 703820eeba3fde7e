#include <QTest>

#include "foundation/PropertyLookup.h"
#include "shell/CentralSettings.h"
#include "shell/Eye.h"
#include "shell/StartMessage.h"

using namespace Qt::StringLiterals;

class tst_Panels : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TheEyeMovesAtMostOnceIn150Milliseconds() {
        shell::Eye eye;
        QCOMPARE(eye.EyeFrame(), 0);
        QVERIFY(eye.AnimateEye(1000));
        QCOMPARE(eye.EyeFrame(), 1);
        QVERIFY(!eye.AnimateEye(1014));
        QVERIFY(eye.AnimateEye(1015));
        QCOMPARE(eye.EyeFrame(), 2);
    }

    void AfterTheTenthPictureComesTheFirst() {
        shell::Eye eye;
        for (int i = 1; i <= 10; ++i) {
            QVERIFY(eye.AnimateEye(i * 40));
            QCOMPARE(eye.EyeFrame(), i);
        }
        QVERIFY(eye.AnimateEye(440));
        QCOMPARE(eye.EyeFrame(), 1);
    }

    void TheEyeGoesOnAfterMidnight() {
        shell::Eye eye;
        QVERIFY(eye.AnimateEye(8639990));
        QVERIFY(eye.AnimateEye(30));
        QCOMPARE(eye.EyeFrame(), 2);
    }

    void Greeting_data() {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QDateTime>("now");
        QTest::addColumn<QString>("text");
        const auto at = [](int hour, int minute) {
            return QDateTime(QDate(2008, 2, 3), QTime(hour, minute), Qt::UTC);
        };
        const QString both = u"Good <Morning/Afternoon/Evening>, it is <date>, <date>"_s;
        QTest::newRow("evening") << both << at(19, 5)
                                 << u"Good Evening, it is 02/03/2008, 02/03/2008"_s;
        QTest::newRow("18:59") << both << at(18, 59)
                               << u"Good Afternoon, it is 02/03/2008, 02/03/2008"_s;
        QTest::newRow("noon") << u"<Morning/Afternoon/Evening>"_s << at(12, 0) << u"Afternoon"_s;
        QTest::newRow("11:59") << u"<Morning/Afternoon/Evening>"_s << at(11, 59) << u"Morning"_s;
        QTest::newRow("midnight") << u"<Morning/Afternoon/Evening>"_s << at(0, 0) << u"Morning"_s;
        QTest::newRow("plain") << u"Hello"_s << at(9, 0) << u"Hello"_s;
        QTest::newRow("off") << u"0"_s << at(9, 0) << QString();
        QTest::newRow("empty") << QString() << at(9, 0) << QString();
    }

    void Greeting() {
        QFETCH(QString, pattern);
        QFETCH(QDateTime, now);
        QTEST(shell::StartMessage(pattern, now), "text");
    }

    void TheLookIsStored_data() {
        QTest::addColumn<int>("colour");
        QTest::addColumn<QString>("name");
        QTest::newRow("magenta") << 0xFF00FF << u"Magenta"_s;
        QTest::newRow("yellow") << 0xFFFF << u"Yellow"_s;
        QTest::newRow("blue") << 0xFF0000 << u"Blue"_s;
        QTest::newRow("green") << 0xFF00 << u"Green"_s;
        QTest::newRow("black") << 0 << u"Black"_s;
        QTest::newRow("red") << 0xFF << u"Red"_s;
        QTest::newRow("cyan") << 0xFFFF00 << u"Cyan"_s;
        QTest::newRow("white") << 0xFFFFFF << u"White"_s;
        QTest::newRow("the other white") << 0xFFFFFD << u"White"_s;
        QTest::newRow("transparent") << 0x1000002 << u"Transparent"_s;
        QTest::newRow("no name") << 8411709 << u"8411709"_s;
    }

    void TheLookIsStored() {
        QFETCH(int, colour);
        ClockProperties properties;
        shell::SaveCentralLook({colour, 3, false, u"Small Size"_s, false, 2}, properties);
        const auto value = [&properties](const QString& key) {
            return mduLib::GetProperty(key, properties);
        };
        QTEST(value(u"Window Background Colour"_s), "name");
        QCOMPARE(value(u"Tool Bar"_s), u"Left:Hide"_s);
        QCOMPARE(value(u"Toolbar Size"_s), u"Small Size"_s);
        QCOMPARE(value(u"Status Bar"_s), u"No"_s);
        QCOMPARE(value(u"Window State"_s), u"Maximized"_s);
    }
};

QTEST_GUILESS_MAIN(tst_Panels)
#include "tst_Panels.moc"
