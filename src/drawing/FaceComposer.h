#pragma once

#include <QImage>
#include <QRegion>
#include <optional>
#include <vector>

#include "drawing/AnalogueFace.h"
#include "drawing/Canvas.h"
#include "drawing/FaceParts.h"
#include "foundation/Controls.h"

namespace drawing {

/// Paints a clock's face out of its layers, from below: the still layer (background, numbers,
/// spots, captions), the hands and their hub, numbers that lie above the hands, and the controls
/// that lie over the dial. The still layer is kept as a bitmap, so that a pass copies it and paints
/// what moves; where little has changed, only the pixels concerned. Every pass leaves the surface
/// as if it had been painted whole.
class FaceComposer {
public:
    /// All that it is given outlives it.
    FaceComposer(Canvas& canvas, const mduUILib::ClockControls& controls, const Dial& dial,
                 const Background& background);

    /// The still layer is to be painted anew.
    void StillChanged() { stillIsGood_ = false; }

    /// The surface has been touched by others: the next pass paints all of it.
    void Invalidate() { surfaceIsGood_ = false; }

    /// One pass; without @p hands the face has none.
    /// @return the part of the surface that may have changed
    QRegion Compose(const std::optional<HandsFrame>& hands);

private:
    /// A control as it was painted.
    /// Two equal ones paint the same pixels.
    struct Overlay {
        const mduUILib::Control* Source;
        bool IsImage;
        QRect Rect;  ///< whatever the control paints lies within
        QString Caption;
        int ForeColor;
        QFont Font;
        std::shared_ptr<const QImage> Picture;
        bool operator==(const Overlay&) const = default;
    };

    void PaintStillLayer(Surface& surface);
    std::vector<Overlay> VisibleOverlays() const;
    QRegion Changes(const std::optional<HandsFrame>& hands, const std::vector<Overlay>& overlays,
                    const Surface& surface) const;
    void PaintPart(Surface& surface, const QRect& part);
    void PaintOverlays(Surface& surface, const QRect& part) const;

    Canvas& canvas_;
    const Dial& dial_;
    const Background& background_;
    /// What lies over the dial, from below.
    std::vector<const mduUILib::ControlArray*> arrays_;
    QImage still_;
    bool stillIsGood_ = false;
    bool surfaceIsGood_ = false;
    std::optional<HandsFrame> hands_;  ///< as they were painted last
    std::vector<Overlay> overlays_;    ///< as they were painted last
};

}  // namespace drawing
