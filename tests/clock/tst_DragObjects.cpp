#include <QTest>

#include "clock/DragObjects.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;
using clockcore::ClockData;
using clockcore::ClockKind;
using clockcore::DragGround;
using clockcore::DragObject;

namespace {

/// A dial of radius 100 around (150, 100) on a surface of 300 by 200. Each part stands on the disc
/// and has 10 by 10 pixels.
struct Parts {
    mduUILib::ClockControls Controls;
    DragGround Ground{true, true, true, {150, 100}, 100};

    Parts() {
        mduUILib::Control* parts[] = {&Controls.imgSpeaker(1),       &Controls.shpArea(1),
                                      &Controls.imgFlag(1),          &Controls.lblLocation(1),
                                      &Controls.lblDigitalNumber(3), &Controls.lblHour(15),
                                      &Controls.imgClockNumber(4),   &Controls.imgTimer(2),
                                      &Controls.imgAction(1),        &Controls.lblMsg(1)};
        float left = 100;
        for (mduUILib::Control* part : parts) {
            part->Left = left;
            part->Top = 100;
            part->Width = part->Height = 10;
            part->Visible = true;
            left += 10;
        }
    }
    DragObject At(double x, double y, bool withControl = false) const {
        return DragObjectAt(Controls, {x, y}, Ground, withControl);
    }
};

ClockData Clock(const QString& titleBar, const QString& shape) {
    ClockData data;
    data.Tag = {ClockKind::Analogue, false};
    mduLib::PutProperty(u"Window Title Bar"_s, titleBar, data.EditProperties());
    mduLib::PutProperty(u"Window Shape"_s, shape, data.EditProperties());
    mduLib::PutProperty(u"Clock CentralX(%)"_s, u"25"_s, data.EditProperties());
    mduLib::PutProperty(u"Clock CentralY(%)"_s, u"-1"_s, data.EditProperties());
    return data;
}

}  // namespace

class tst_DragObjects : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EachPart_data() {
        QTest::addColumn<double>("x");
        QTest::addColumn<DragObject>("titled");
        QTest::addColumn<DragObject>("bare");
        QTest::addColumn<DragObject>("withControl");
        const auto row = [](const char* name, double x, DragObject titled, DragObject bare,
                            DragObject withControl) {
            QTest::newRow(name) << x << titled << bare << withControl;
        };
        row("speaker", 105, DragObject::None, DragObject::None, DragObject::Speaker);
        row("handle", 115, DragObject::Handle, DragObject::Window, DragObject::Handle);
        row("flag", 125, DragObject::Flag, DragObject::Flag, DragObject::Flag);
        row("name", 135, DragObject::Location, DragObject::Location, DragObject::Location);
        row("digits", 145, DragObject::Digits, DragObject::Digits, DragObject::Digits);
        row("number", 155, DragObject::None, DragObject::None, DragObject::None);
        row("spot", 165, DragObject::None, DragObject::None, DragObject::None);
        row("mark", 175, DragObject::None, DragObject::None, DragObject::None);
        row("action", 185, DragObject::None, DragObject::None, DragObject::None);
        row("message", 195, DragObject::Dial, DragObject::Window, DragObject::Dial);
        row("disc", 205, DragObject::Dial, DragObject::Window, DragObject::Dial);
        row("its edge", 249, DragObject::Dial, DragObject::Window, DragObject::Dial);
        row("beside it", 252, DragObject::None, DragObject::Window, DragObject::Dial);
    }

    void EachPart() {
        QFETCH(double, x);
        Parts parts;
        QTEST(parts.At(x, 102), "titled");
        QTEST(parts.At(x, 102, true), "withControl");
        parts.Ground.HasTitleBar = false;
        QTEST(parts.At(x, 102), "bare");
        QTEST(parts.At(x, 102, true), "withControl");
    }

    void TheEdgeBelongsToTheDisc() {
        const Parts parts;
        QCOMPARE(parts.At(250, 100), DragObject::Dial);
        QCOMPARE(parts.At(250.5, 100), DragObject::None);
    }

    /// The handle over one part after the other, each of 10 pixels.
    void TheHandleOverAPart_data() {
        QTest::addColumn<double>("left");
        QTest::addColumn<DragObject>("object");
        QTest::newRow("flag") << 120.0 << DragObject::Handle;
        QTest::newRow("number") << 150.0 << DragObject::Handle;
        QTest::newRow("spot") << 160.0 << DragObject::Handle;
        QTest::newRow("mark") << 170.0 << DragObject::None;
        QTest::newRow("action") << 180.0 << DragObject::None;
        QTest::newRow("message") << 190.0 << DragObject::Handle;
        QTest::newRow("disc") << 200.0 << DragObject::Handle;
    }

    void TheHandleOverAPart() {
        QFETCH(double, left);
        Parts parts;
        parts.Controls.shpArea(1).Left = static_cast<float>(left);
        QTEST(parts.At(left + 5, 102), "object");
        parts.Ground.HasTitleBar = false;
        QTEST(parts.At(left + 5, 102, true), "object");
    }

    void WithoutADialThereIsNoDisc() {
        Parts parts;
        parts.Ground.HasDial = false;
        QCOMPARE(parts.At(205, 102), DragObject::None);
        QCOMPARE(parts.At(205, 102, true), DragObject::None);
        parts.Ground.HasTitleBar = false;
        QCOMPARE(parts.At(205, 102, true), DragObject::Window);
    }

    void DigitsInAColumnStayWhereTheyAre() {
        Parts parts;
        parts.Ground.HasFreeDigits = false;
        QCOMPARE(parts.At(145, 105), DragObject::Dial);
    }

    void HiddenPartsAreNotThere() {
        Parts parts;
        parts.Controls.imgFlag(1).Visible = false;
        parts.Controls.shpArea(1).Visible = false;
        QCOMPARE(parts.At(125, 105), DragObject::Dial);
        QCOMPARE(parts.At(115, 105), DragObject::Dial);
    }

    void TitleBar_data() {
        QTest::addColumn<QString>("titleBar");
        QTest::addColumn<QString>("shape");
        QTest::addColumn<bool>("wrapper");
        QTest::addColumn<bool>("has");
        QTest::newRow("yes") << u"Yes"_s << u"Normal"_s << false << true;
        QTest::newRow("no") << u"No"_s << u"Normal"_s << false << false;
        QTest::newRow("a figure") << u"Yes"_s << u"Circle"_s << false << false;
        QTest::newRow("an unknown shape") << u"Yes"_s << u"Cloud"_s << false << true;
        QTest::newRow("a wrapper") << u"Yes"_s << u"Normal"_s << true << false;
    }

    void TitleBar() {
        QFETCH(QString, titleBar);
        QFETCH(QString, shape);
        QFETCH(bool, wrapper);
        ClockData data = Clock(titleBar, shape);
        data.Tag.IsWrapper = wrapper;
        QTEST(ReadDragGround(data, {300, 200}).HasTitleBar, "has");
    }

    void TheGroundOfAClock() {
        ClockData data = Clock(u"Yes"_s, u"Normal"_s);
        DragGround ground = ReadDragGround(data, {300, 200});
        QVERIFY(ground.HasDial);
        QVERIFY(ground.HasFreeDigits);
        QCOMPARE(ground.Centre, QPointF(75, 100));
        QCOMPARE(ground.Radius, 100.0);
        data.Tag = {ClockKind::Digital, false};
        mduLib::PutProperty(u"Clock Special"_s, u"Digital Vertical"_s, data.EditProperties());
        ground = ReadDragGround(data, {300, 200});
        QVERIFY(!ground.HasDial);
        QVERIFY(!ground.HasFreeDigits);
    }

    void ControlsAndObjects() {
        mduUILib::ClockControls controls;
        QCOMPARE(ControlOf(DragObject::Dial, controls), &controls.imgClock(1));
        QCOMPARE(ControlOf(DragObject::Digits, controls), &controls.lblClock(1));
        QCOMPARE(ControlOf(DragObject::Handle, controls), &controls.shpArea(1));
        QCOMPARE(ControlOf(DragObject::Window, controls), nullptr);
        QCOMPARE(clockcore::ObjectOf(controls.imgSpeaker(1), controls), DragObject::Speaker);
        QCOMPARE(clockcore::ObjectOf(controls.imgClock(1), controls), DragObject::Dial);
        QCOMPARE(clockcore::ObjectOf(controls.imgClock(0), controls), DragObject::None);
        QCOMPARE(clockcore::ObjectOf(controls.lblHour(5), controls), DragObject::None);
    }
};

QTEST_GUILESS_MAIN(tst_DragObjects)
#include "tst_DragObjects.moc"
