#pragma once

#include <optional>
#include <vector>

#include "drawing/FaceContext.h"
#include "drawing/FaceParts.h"
#include "drawing/FlagPosition.h"
#include "drawing/LocationLabel.h"
#include "drawing/SeenArea.h"
#include "drawing/StockPictures.h"

namespace drawing {

/// What lies over the dial: the flag, the sun or the moon, the speaker, the handle of a transparent
/// window, the zone's name. They stand on whole pixels, in pictures of their final size.
///
/// Where the window has an outline ("Window Shape"), whatever stands at a place of its own choice
/// moves inward until it is seen whole, clear of the read-out and of what was placed before it: the
/// flag, the handle, the speaker, and last the sun and the name. What has a place of the user's
/// stays there.
///
/// The sun and the name are shown once a second, so the properties they go by are read by
/// `LayOutOverlays` only: it is called whenever the properties or the surface have changed.
class ClockOverlays final : public Overlays {
public:
    explicit ClockOverlays(const FaceContext& face) : face_(face) {}

    void LayOutOverlays() override;
    /// Loads "Flag File" and places the flag. What can't be loaded is no flag.
    void LoadFlag() override;
    /// 0.18 of the surface's height, in the corner that "Flag Position" names; or in the window's
    /// icon.
    void SetFlagPosition() override;
    /// The sun before noon, the moon after it. Both rise from the left edge (at 0 and 12 o'clock),
    /// stand on top in the middle of their half day, and set at the right edge.
    void SetSunMoon() override;
    /// Place and size. Whether it shows is the voice's business.
    void SetSpeakerPosition() override;
    /// The handle, `shpArea`, shows exactly while the window is transparent.
    void SetTransparentIconPosition() override;
    void SetLocationLabel() override;
    void HideSunMoon() override;
    void HideLocationLabel() override;

private:
    /// What the place of the name depends on, beside the properties.
    struct LocationKey {
        QString Caption;
        int ScaleWidth = 0, ScaleHeight = 0;
        bool operator==(const LocationKey&) const = default;
    };

    void ReadProperties();
    const SeenArea& Seen();
    std::vector<QRectF> Taken(const mduUILib::Control& before) const;
    void KeepInside(mduUILib::Control& control);
    void ShowFlagAsIcon();
    void ShowStoredIcon();
    void PlaceFlag(FlagPosition position);
    void ShowOneOf(int index, int side);
    std::shared_ptr<const QImage> Stock(StockPicture picture, int side) const;
    double Pixels(const QString& key) const;

    FaceContext face_;
    std::shared_ptr<const QImage> flag_;         ///< at the size of its file
    std::shared_ptr<const QImage> speakerIdle_;  ///< as it was scaled last
    std::shared_ptr<const QImage> sunMoon_[2];
    std::optional<std::shared_ptr<const QImage>> icon_;  ///< the flag in the window's icon
    std::optional<double> sunMoonSize_;                  ///< logical pixels, once it has been read
    Shape windowShape_ = Shape::Unknown;
    std::optional<WindowMeasures> measured_;  ///< what `seen_` has been worked out for
    SeenArea seen_;
    LocationLook locationLook_;
    std::optional<LocationKey> locationShown_;
};

}  // namespace drawing
