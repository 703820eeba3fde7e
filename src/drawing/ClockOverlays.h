#pragma once

#include "drawing/FaceContext.h"
#include "drawing/FaceParts.h"

namespace drawing {

/// What lies over the dial: the flag, the sun or the moon, the speaker, the zone's name.
class ClockOverlays final : public Overlays {
public:
    explicit ClockOverlays(const FaceContext& face) : face_(face) {}

    void LayOutOverlays() override;
    void LoadFlag() override;
    void SetFlagPosition() override;
    void SetSunMoon() override;
    void SetSpeakerPosition() override;
    void SetTransparentIconPosition() override;
    void SetLocationLabel() override;
    void HideSunMoon() override;
    void HideLocationLabel() override;

private:
    FaceContext face_;
};

}  // namespace drawing
