#pragma once

#include "drawing/FaceContext.h"
#include "drawing/FaceParts.h"

namespace drawing {

/// The digital read-out: six labels that are placed and moved each for itself.
class DigitalReadOut final : public DigitalClock {
public:
    explicit DigitalReadOut(const FaceContext& face) : face_(face) {}

    void DrawDigitalClock(const QString& format) override;
    void SetDigitalLayout() override;
    void HideDigitalClock() override;
    void FinishMotion() override;

private:
    FaceContext face_;
};

}  // namespace drawing
