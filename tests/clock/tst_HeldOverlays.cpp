#include <QTest>
#include <functional>

#include "clock/HeldOverlays.h"

using clockcore::HeldOverlays;
using mduUILib::ClockControls;

namespace {

/// Overlays each of whose operations brings flag and speaker to the places that they find, and
/// gives the flag a width.
struct Placing final : drawing::Overlays {
    ClockControls Controls;

    void Place() {
        Controls.imgFlag(1).Left = 200;
        Controls.imgFlag(1).Top = 10;
        Controls.imgFlag(1).Width = 40;
        Controls.imgSpeaker(1).Left = 4;
        Controls.imgSpeaker(1).Top = 180;
    }
    void LayOutOverlays() override { Place(); }
    void LoadFlag() override { Place(); }
    void SetFlagPosition() override { Place(); }
    void SetSunMoon() override { Place(); }
    void SetSpeakerPosition() override { Place(); }
    void SetTransparentIconPosition() override { Place(); }
    void SetLocationLabel() override { Place(); }
    void HideSunMoon() override { Place(); }
    void HideLocationLabel() override { Place(); }
};

QPointF At(const mduUILib::Control& control) {
    return control.Rect().topLeft();
}

}  // namespace

class tst_HeldOverlays : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TheHeldOneStays_data() {
        using Act = std::function<void(drawing::Overlays&)>;
        QTest::addColumn<Act>("layOut");
        const auto row = [](const char* name, void (drawing::Overlays::*operation)()) {
            QTest::newRow(name) << Act(operation);
        };
        row("all", &drawing::Overlays::LayOutOverlays);
        row("load flag", &drawing::Overlays::LoadFlag);
        row("flag", &drawing::Overlays::SetFlagPosition);
        row("sun", &drawing::Overlays::SetSunMoon);
        row("speaker", &drawing::Overlays::SetSpeakerPosition);
        row("handle", &drawing::Overlays::SetTransparentIconPosition);
        row("name", &drawing::Overlays::SetLocationLabel);
        row("no sun", &drawing::Overlays::HideSunMoon);
        row("no name", &drawing::Overlays::HideLocationLabel);
    }

    void TheHeldOneStays() {
        QFETCH(std::function<void(drawing::Overlays&)>, layOut);
        Placing placing;
        HeldOverlays overlays(placing);
        mduUILib::Control& flag = placing.Controls.imgFlag(1);
        flag.Left = 33;
        flag.Top = 44;
        overlays.Hold(&flag);
        layOut(overlays);
        QCOMPARE(At(flag), QPointF(33, 44));
        QCOMPARE(flag.Width, 40.0F);
        QCOMPARE(At(placing.Controls.imgSpeaker(1)), QPointF(4, 180));
        overlays.Hold(nullptr);
        layOut(overlays);
        QCOMPARE(At(flag), QPointF(200, 10));
    }

    void OneAtATime() {
        Placing placing;
        HeldOverlays overlays(placing);
        overlays.Hold(&placing.Controls.imgFlag(1));
        overlays.Hold(&placing.Controls.imgSpeaker(1));
        overlays.LayOutOverlays();
        QCOMPARE(At(placing.Controls.imgFlag(1)), QPointF(200, 10));
        QCOMPARE(At(placing.Controls.imgSpeaker(1)), QPointF(0, 0));
    }
};

QTEST_GUILESS_MAIN(tst_HeldOverlays)
#include "tst_HeldOverlays.moc"
