#include <QTest>

#include "foundation/Controls.h"

using namespace Qt::StringLiterals;

class tst_Controls : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// Each as "name first..last".
    void Arrays() {
        mduUILib::ClockControls controls;
        QStringList found;
        for (const mduUILib::ControlArray* array : controls.All()) {
            found += u"%1 %2..%3"_s.arg(array->Name)
                         .arg(array->First)
                         .arg(array->First + array->Count() - 1);
        }
        QCOMPARE(found.join(u", "_s),
                 u"picFrame 1..1, txtMsg 1..100, imgSpeaker 1..1, shpArea 1..1, imgAction 1..1, "
                 "lblLocation 1..1, imgSunMoon 0..1, shpHourHand 1..2, shpMinuteHand 1..2, "
                 "shpSecondHand 1..2, lblDigitalNumber 1..6, imgTimer 1..100, "
                 "imgClockNumber 1..60, lblHour 1..60, lblMsg 1..1, lblActionMsg 1..1, "
                 "lblClock 1..1, lblTimeInput 1..1, lblTimeOutput 1..1, imgFlag 1..1, "
                 "imgClock 0..1, timClock 1..1, imgList 1..1, objDialog 1..1, MusicPlayer 1..1"_s);
    }

    void Members() {
        mduUILib::ClockControls controls;
        controls.imgSunMoon(1).Caption = u"moon"_s;
        QCOMPARE(controls.imgSunMoon.Members[1].Caption, u"moon"_s);
        controls.lblHour(60).Left = 2.5F;
        controls.lblHour(60).Height = 4;
        QCOMPARE(controls.lblHour.Members[59].Rect(), QRectF(2.5, 0, 0, 4));
        QVERIFY(!controls.lblHour(1).Visible);
        QVERIFY(controls.lblHour(1).Enabled);
    }
};

QTEST_GUILESS_MAIN(tst_Controls)
#include "tst_Controls.moc"
