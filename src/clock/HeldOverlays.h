#pragma once

#include "drawing/FaceParts.h"
#include "foundation/Controls.h"

namespace clockcore {

/// The overlays of a clock, of which one may be on its way somewhere else. Whoever lays them out
/// meanwhile, for a redraw, another look or another size, leaves that one where it is; all else of
/// it, such as its picture and size, is brought up to date.
class HeldOverlays final : public drawing::Overlays {
public:
    /// @param overlays those that lay out; they outlive this
    explicit HeldOverlays(drawing::Overlays& overlays) : overlays_(overlays) {}

    /// From now on the control stays where it is, and where its holder brings it. One at a time:
    /// another that was held is let go. Null lets go, too.
    void Hold(mduUILib::Control* control) { held_ = control; }

    void LayOutOverlays() override { Do(&Overlays::LayOutOverlays); }
    void LoadFlag() override { Do(&Overlays::LoadFlag); }
    void SetFlagPosition() override { Do(&Overlays::SetFlagPosition); }
    void SetSunMoon() override { Do(&Overlays::SetSunMoon); }
    void SetSpeakerPosition() override { Do(&Overlays::SetSpeakerPosition); }
    void SetTransparentIconPosition() override { Do(&Overlays::SetTransparentIconPosition); }
    void SetLocationLabel() override { Do(&Overlays::SetLocationLabel); }
    void HideSunMoon() override { Do(&Overlays::HideSunMoon); }
    void HideLocationLabel() override { Do(&Overlays::HideLocationLabel); }

private:
    void Do(void (Overlays::*layOut)());

    drawing::Overlays& overlays_;
    mduUILib::Control* held_ = nullptr;
};

}  // namespace clockcore
