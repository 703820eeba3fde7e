#include "drawing/FaceComposer.h"

#include <QPainter>
#include <algorithm>

#include "drawing/LabelText.h"

namespace drawing {

namespace {

using mduUILib::Control;
using mduUILib::ControlArray;
using mduUILib::ControlKind;

bool IsImage(const ControlArray& array) {
    return array.Kind == ControlKind::Image || array.Kind == ControlKind::Shape;
}

bool ShowsSomething(const Control& control, bool isImage) {
    return control.Visible &&
           (isImage ? control.Picture && !control.Picture->isNull() : !control.Caption.isEmpty());
}

/// The rectangle of a control and, around a label, what its letters may reach beyond it.
QRect PaintedRect(const Control& control, bool isImage) {
    const QRect rect = control.Rect().toAlignedRect();
    const int beyond = isImage ? 1 : 2 + rect.height() / 4;
    return rect.adjusted(-beyond, -beyond, beyond, beyond);
}

}  // namespace

FaceComposer::FaceComposer(Canvas& canvas, const mduUILib::ClockControls& controls,
                           const Dial& dial, const Background& background)
    : canvas_(canvas),
      dial_(dial),
      background_(background),
      arrays_{&controls.imgSunMoon,    &controls.lblDigitalNumber, &controls.lblTimeInput,
              &controls.lblTimeOutput, &controls.lblClock,         &controls.imgFlag,
              &controls.lblLocation,   &controls.imgTimer,         &controls.lblMsg,
              &controls.lblActionMsg,  &controls.imgAction,        &controls.shpArea,
              &controls.imgSpeaker} {}

QRegion FaceComposer::Compose(const std::optional<HandsFrame>& hands) {
    Surface& surface = canvas_.Surface();
    const QRect whole(0, 0, surface.ScaleWidth(), surface.ScaleHeight());
    std::vector<Overlay> overlays = VisibleOverlays();
    QRegion changed;
    if (!stillIsGood_ || still_.size() != whole.size()) {
        PaintStillLayer(surface);
        changed = whole;
    } else if (!surfaceIsGood_ || hands.has_value() != hands_.has_value()) {
        changed = whole;
    } else {
        changed = Changes(hands, overlays, surface) & whole;
    }
    hands_ = hands;
    overlays_ = std::move(overlays);
    for (const QRect& part : changed) {
        PaintPart(surface, part);
    }
    surface.SetClip({});
    surfaceIsGood_ = true;
    return changed;
}

void FaceComposer::PaintStillLayer(Surface& surface) {
    surface.SetClip({});
    background_.DrawBackgroundPicture(surface);
    dial_.PaintStill(surface);
    surface.CopyTo(still_);
    stillIsGood_ = true;
}

std::vector<FaceComposer::Overlay> FaceComposer::VisibleOverlays() const {
    std::vector<Overlay> visible;
    for (const ControlArray* array : arrays_) {
        const bool isImage = IsImage(*array);
        for (const Control& control : array->Members) {
            if (ShowsSomething(control, isImage)) {
                visible.push_back({&control, isImage, PaintedRect(control, isImage),
                                   control.Caption, control.ForeColor, control.Font,
                                   control.Picture});
            }
        }
    }
    return visible;
}

QRegion FaceComposer::Changes(const std::optional<HandsFrame>& hands,
                              const std::vector<Overlay>& overlays, const Surface& surface) const {
    QRegion changed;
    if (hands) {
        changed += HandsDifference(*hands_, *hands, surface.DevicePixelRatio());
    }
    // Both are in the same order: each is mostly found where the search for the last one ended.
    const auto addUnlessIn = [&changed](const std::vector<Overlay>& some,
                                        const std::vector<Overlay>& others) {
        auto next = others.begin();
        for (const Overlay& overlay : some) {
            if (next == others.end() || *next != overlay) {
                const auto found = std::find(others.begin(), others.end(), overlay);
                if (found == others.end()) {
                    changed += overlay.Rect;
                    continue;
                }
                next = found;
            }
            ++next;
        }
    };
    addUnlessIn(overlays, overlays_);
    addUnlessIn(overlays_, overlays);
    return changed;
}

void FaceComposer::PaintPart(Surface& surface, const QRect& part) {
    surface.SetClip(part);
    surface.CopyFrom(still_);
    if (hands_) {
        PaintHands(surface, *hands_);
        dial_.PaintNumbersOver(surface);
    }
    PaintOverlays(surface, part);
}

void FaceComposer::PaintOverlays(Surface& surface, const QRect& part) const {
    const auto touches = [&part](const Overlay& overlay) { return overlay.Rect.intersects(part); };
    if (std::none_of(overlays_.begin(), overlays_.end(), touches)) {
        return;
    }
    surface.Paint([&](QPainter& painter) {
        for (const Overlay& overlay : overlays_) {
            if (touches(overlay)) {
                overlay.IsImage ? PaintImage(painter, *overlay.Source)
                                : PaintLabel(painter, *overlay.Source, surface.DevicePixelRatio());
            }
        }
    });
}

}  // namespace drawing
