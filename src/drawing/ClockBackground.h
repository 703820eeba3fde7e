#pragma once

#include "drawing/FaceContext.h"
#include "drawing/FaceParts.h"

namespace drawing {

/// What lies under and around the hands: colour, pictures, shapes, transparency, and the pictures
/// that change by themselves.
class ClockBackground final : public Background {
public:
    explicit ClockBackground(const FaceContext& face) : face_(face) {}

    void LoadClockPicture() override;
    void LoadWindowPicture(bool force) override;
    bool HasClockPicture() const override;
    void DrawBackgroundPicture(Surface& surface) const override;
    void ApplyTransparency() override;
    void SetWindowShape() override;
    void SetClockShape() override;
    void ApplySurface() override;
    void ShowAutoBackground() override;
    void FinishWipe() override;

private:
    FaceContext face_;
};

}  // namespace drawing
