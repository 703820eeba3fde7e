#pragma once

#include "drawing/FaceContext.h"
#include "drawing/FaceParts.h"

namespace drawing {

/// The dial of a clock: sixty minute spots on one ring and the hour numbers on another, laid out as
/// the properties tell. Numbers are caption labels (`lblHour`) or text painted on the surface.
class ClockDial final : public Dial {
public:
    explicit ClockDial(const FaceContext& face) : face_(face) {}

    void SetClockDial(bool show, const QString& style, bool shadow, bool numbersOnly) override;
    void DrawDialNumbers(bool show, const QString& style, bool numbersOnly) override;
    void ShowMinuteSpots(int hour) override;
    void ApplyClockSpecial() override;
    void RecolourNumbers() override;
    bool NumbersArePainted() const override;
    bool NumbersAreRandom() const override;
    void PaintStill(Surface& surface) const override;
    void PaintNumbersOver(Surface& surface) const override;

private:
    FaceContext face_;
};

}  // namespace drawing
