#pragma once

#include <QTime>

#include "drawing/ClockSpecial.h"
#include "drawing/FaceContext.h"
#include "drawing/FaceParts.h"
#include "drawing/LabelMotion.h"
#include "foundation/OncePerSecond.h"

namespace drawing {

/// A time in the form of `lblClock`: "hh", "mm" and "ss" are two digits each, the hour from 00 to
/// 23, and "ampm" is "AM" or "PM". A quarter past three in "hh:mm ampm" is "15:15 PM".
QString DigitalCaption(const QString& format, const QTime& time);

/// The digital read-out: six labels that are placed and moved each for itself. `lblClock`, which
/// is never seen, gives them their text, font and place.
///
/// The labels, `lblDigitalNumber` 1 to 6, are hours, colon, minutes, colon, seconds, and the mark
/// "AM" or "PM". Without "hh" in the format the hours and their colon are hidden, and without "ss"
/// the seconds and theirs; the minutes always show. Each is as wide as the widest text that it may
/// hold, so that nothing moves as the digits change.
class DigitalReadOut final : public DigitalClock {
public:
    explicit DigitalReadOut(const FaceContext& face);

    /// The motion begins with the first pass of a second; later ones in the same second leave it
    /// alone.
    void DrawDigitalClock(const QString& format) override;

    /// Fills the digits with the present time and lays them out by the properties. "Clock Special"
    /// is read here, not at each second.
    void SetDigitalLayout() override;

    void HideDigitalClock() override;
    void FinishMotion() override;

    /// The font size of the properties, in points: at least 4; -1 is worked out from the width of
    /// the window.
    int GetDigitalFontSize() const;

    /// How far the labels bounce, in device pixels: the height of the surface less half a label's.
    int GetDigitalTravel() const;

private:
    ClockSpecial Special() const { return ReadClockSpecial(face_.Properties); }
    QString Value(const QString& key) const;
    /// Writes the present time into the labels, and the whole caption into `lblClock`.
    void Fill(const QString& format);
    void Show(int label, bool visible, const QString& caption);
    void SetFonts();
    void SetSizes();
    /// Places `lblClock` by "Digital Clock CentralX(%)" and "...CentralY(%)", its left top in
    /// percent of the surface; -1 means near the dial's centre, 10 logical pixels from its left and
    /// top edge at least.
    void PlaceModel();
    void LineUp(bool backward);
    /// One below the other, from 10 logical pixels below the top on.
    void Stack();
    void Animate();
    LabelSteps Steps(double amplitude, int pause, Motion motion) const;

    mduUILib::Control& Model() const { return face_.Controls.lblClock(1); }
    mduUILib::ControlArray& Labels() const { return face_.Controls.lblDigitalNumber; }

    FaceContext face_;
    LabelMotion motion_;
    OncePerSecond turn_;  ///< the beginning of a motion
};

}  // namespace drawing
