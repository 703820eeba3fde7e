#pragma once

#include "clock/ClockData.h"
#include "clock/ClockWindow.h"
#include "drawing/AnalogueFace.h"
#include "drawing/Canvas.h"
#include "drawing/FaceComposer.h"
#include "foundation/Controls.h"
#include "platform/WallClock.h"

namespace clockcore {

/// The face of a clock: one repaint by clock kind, on a canvas.
///
/// It holds the parts together: it asks them to lay out their controls, aims the hands, and lets a
/// `drawing::FaceComposer` paint it all. The clock owns it; tick, look and canvas call it.
class Face final : public ClockFace {
public:
    /// What the face is made of. Each part lays out controls of its own; all outlive the face.
    struct Parts {
        drawing::Dial& Dial;
        drawing::DigitalClock& Digital;
        drawing::CalculatorClock& Calculator;
        drawing::Background& Background;
        drawing::Overlays& Overlays;
    };

    /// @param controls what the parts lay out and the composer paints
    /// @param canvas where it is painted; it also tells whether anybody can see it
    /// @param clock gives the machine's time, from which the zone's follows at each repaint
    /// @param random for hands and numbers that take a colour by chance
    Face(ClockData& data, mduUILib::ClockControls& controls, drawing::Canvas& canvas,
         const Parts& parts, const platform::WallClock& clock, platform::RandomNumbers& random);

    /// Turns transparency on or off, as the properties tell, and gives the frame's control the
    /// background colour. Paints nothing: the still layer is painted anew with the next pass.
    void ApplyWindowBackground() override;
    /// Into `ClockData::ClockFormat`, without the key's choices.
    void ReadDigitalFormat() override;
    /// Lays out what the present kind of clock has and hides what it has not: the dial, sun and
    /// moon, the label of the place, read-out and calculator lines. A calculator that is being
    /// typed into keeps its lines as they are.
    void PrepareClockFace() override;
    /// Moves the hands and the digits to the present time of the zone and shows the outcome. A kind
    /// without hands or digits (`None`, a calculator that is typed into) shows only what else has
    /// changed.
    void DrawClockFace() override;
    /// A face that nobody can see is not painted; the next one that is seen is then painted whole.
    void ShowChanges() override;
    void Invalidate() override { composer_.Invalidate(); }
    void StillChanged() override { composer_.StillChanged(); }

private:
    void PrepareReadOuts();
    /// Aims the hands, and writes the time as "14:05:09" into `HandText`, be the face seen or not.
    void MoveHands();
    /// Makes the hands for a time, and reads the properties' look first where it has changed.
    void AimHands(const drawing::HandTime& time);
    /// `lblClock`, which tells those who look from outside what the hands show.
    mduUILib::Control& HandText() { return controls_.lblClock(1); }
    /// At each repaint, where the properties want numbers whose colour changes by chance.
    void RecolourNumbers();

    ClockData& data_;
    mduUILib::ClockControls& controls_;
    drawing::Canvas& canvas_;
    Parts parts_;
    const platform::WallClock& clock_;
    platform::RandomNumbers& random_;
    drawing::FaceComposer composer_;
    /// Of the last repaint; nothing for a kind of clock without hands.
    std::optional<drawing::HandsFrame> hands_;
    /// The look of the hands, as it was in the properties at `revisionRead_`.
    drawing::AnalogueLook look_;
    /// `ClockData::Revision` at that time; -1 before the first repaint.
    int revisionRead_ = -1;
};

}  // namespace clockcore
