#pragma once

#include <vector>

#include "drawing/DialLook.h"
#include "drawing/FaceContext.h"
#include "drawing/FaceParts.h"

namespace drawing {

/// The dial of a clock: sixty minute spots (`imgClockNumber`) on one ring and the hour numbers on
/// another, laid out as the properties tell. Numbers are captions (`lblHour`) or text painted on
/// the surface, which then hides the captions. The layout stands until it is made anew: when a
/// property or the surface's size has changed.
///
/// The labels and spots are click targets, too. A visible label without a caption is a mere target;
/// its picture is the mouse cursor over it. Behind painted numbers the labels are hidden, save that
/// of twelve o'clock; their captions are two blanks.
class ClockDial final : public Dial {
public:
    explicit ClockDial(const FaceContext& face) : face_(face) {}

    /// A shadow is dark, and down to the left of its number.
    void SetClockDial(const DialOrder& order) override;
    void DrawDialNumbers(DialParts parts) override;
    /// Shows the spots whose `Tag` is "True"; the hour makes no difference.
    void ShowMinuteSpots(int hour) override;
    /// Lays the dial out anew, unless it is hidden.
    void ApplyClockSpecial() override;
    void RecolourNumbers() override;
    bool NumbersArePainted() const override { return isPainted_; }
    bool NumbersAreRandom() const override { return isRandom_; }
    void PaintStill(Surface& surface) const override;
    void PaintNumbersOver(Surface& surface) const override;

    /// What is painted as text, in this order: shadows first.
    const std::vector<PaintedNumber>& Shadows() const { return shadows_; }
    const std::vector<PaintedNumber>& Numbers() const { return numbers_; }

    /// Larger spots than this, in device pixels, are laid out but not painted.
    static constexpr int LargestSpot = 2000;

private:
    using PaintedNumbers = std::vector<PaintedNumber>;

    void HideNumbers();
    void HideSpots();
    void LayOutNumbers(const DialLook& look, bool shadow);
    PaintedNumbers DrawHourNumberTexts(const DialLook& look, bool shadow);
    void SetClickLabel(int hour, const QRectF& area);
    void SetCaptions(const DialLook& look, bool shadow);
    void SetHourNumber(int index, QPointF at, const DialLook& look);
    void SetSpots(const DialLook& look);
    void SetSpot(int index, const DialLook& look);
    std::shared_ptr<const QImage> SpotPicture(const QString& path) const;
    void RecolourCaptions();
    int PickNumberColour(const QString& name) const;

    FaceContext face_;
    PaintedNumbers shadows_, numbers_;
    PaintedNumbers over_;  ///< the numbers once more, recoloured, above the hands
    std::shared_ptr<const QImage> spotPicture_;  ///< of a file, kept from being read again
    bool isShown_ = true;
    bool isPainted_ = false;
    bool isRandom_ = false;
};

}  // namespace drawing
