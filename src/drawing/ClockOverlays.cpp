#include "drawing/ClockOverlays.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "drawing/AnalogueFace.h"
#include "drawing/Angles.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"
#include "timezones/ZoneArithmetic.h"

using namespace Qt::StringLiterals;

namespace drawing {

using mduUILib::Control;

namespace {

// Logical pixels.
constexpr double SpeakerMargin = 4;
constexpr double LeastSpeaker = 14, LargestSpeaker = 32;
constexpr double SpeakerGrowth = 0.07;  // of the surface's height
constexpr double HandleSide = 16;

float Whole(double value) {
    return static_cast<float>(mduAPILib::RoundToInteger(value));
}

void SetSquare(Control& control, double left, double top, int side) {
    control.Left = Whole(left);
    control.Top = Whole(top);
    control.Width = control.Height = static_cast<float>(side);
}

}  // namespace

void ClockOverlays::LayOutOverlays() {
    ReadProperties();
    SetFlagPosition();
    SetTransparentIconPosition();
    SetSpeakerPosition();
    // Those that the mode does not show stay hidden.
    if (face_.Controls.lblLocation(1).Visible) {
        SetLocationLabel();
    }
    if (face_.Controls.imgSunMoon(0).Visible || face_.Controls.imgSunMoon(1).Visible) {
        SetSunMoon();
    }
}

void ClockOverlays::ReadProperties() {
    sunMoonSize_ = mduAPILib::Val(mduLib::GetProperty(u"Sun Moon Size"_s, face_.Properties));
    locationLook_ = ReadLocationLook(face_.Properties, face_.Random);
    locationShown_.reset();
    windowShape_ = ReadShape(mduLib::GetProperty(u"Window Shape"_s, face_.Properties));
    measured_.reset();
    seen_ = {};
}

double ClockOverlays::Pixels(const QString& key) const {
    return mduAPILib::Val(mduLib::GetProperty(key, face_.Properties));
}

std::shared_ptr<const QImage> ClockOverlays::Stock(StockPicture picture, int side) const {
    return face_.Pictures.Scaled(GetStockPicture(picture), {side, side});
}

void ClockOverlays::SetSunMoon() {
    if (!sunMoonSize_) {
        ReadProperties();
    }
    const Surface& surface = face_.Window.Surface();
    const int wanted = mduAPILib::RoundToInteger(*sunMoonSize_ * surface.DevicePixelRatio());
    const int side = std::min({wanted, surface.ScaleWidth(), surface.ScaleHeight()});
    if (side <= 0) {
        HideSunMoon();
        return;
    }
    const QTime time = mduTimeZones::GetClockTime(face_.Zone, face_.Clock.Now()).time();
    float t = static_cast<float>(time.hour() + time.minute() / 60.0 + time.second() / 3600.0);
    const int index = t >= 12 ? 1 : 0;
    if (index == 1) {
        t -= 12;
    }
    const double a = static_cast<double>(t) * Pi / 12;
    const double halfWidth = (surface.ScaleWidth() - side) / 2.0;
    const double halfHeight = (surface.ScaleHeight() - side) / 2.0;
    const double left =
        t < 6 ? halfWidth - halfWidth * std::cos(a) : halfWidth + halfWidth * std::cos(Pi - a);
    const double top = halfHeight - halfHeight * std::sin(t < 6 ? a : Pi - a);
    Control& mark = face_.Controls.imgSunMoon(index);
    SetSquare(mark, left, top, side);
    KeepInside(mark);
    ShowOneOf(index, side);
}

void ClockOverlays::ShowOneOf(int index, int side) {
    std::shared_ptr<const QImage>& picture = sunMoon_[index];
    if (!picture || picture->width() != side) {
        picture = Stock(index == 0 ? StockPicture::Sun : StockPicture::Moon, side);
    }
    face_.Controls.imgSunMoon(index).Picture = picture;
    face_.Controls.imgSunMoon(index).Visible = true;
    face_.Controls.imgSunMoon(1 - index).Visible = false;
}

void ClockOverlays::HideSunMoon() {
    face_.Controls.imgSunMoon(0).Visible = false;
    face_.Controls.imgSunMoon(1).Visible = false;
}

void ClockOverlays::SetSpeakerPosition() {
    const Surface& surface = face_.Window.Surface();
    const double ratio = surface.DevicePixelRatio();
    const double size =
        std::clamp(surface.LogicalHeight() * SpeakerGrowth, LeastSpeaker, LargestSpeaker);
    const int side = mduAPILib::RoundToInteger(size * ratio);
    const double left = Pixels(u"Speaker Image Left"_s);
    const double top = Pixels(u"Speaker Image Top"_s);
    const double margin = SpeakerMargin * ratio;
    Control& speaker = face_.Controls.imgSpeaker(1);
    SetSquare(speaker, left == AutomaticPlace ? margin : left * ratio,
              top == AutomaticPlace ? surface.ScaleHeight() - margin - side : top * ratio, side);
    if (IsAutomaticPlace(left, top)) {
        KeepInside(speaker);
    }
    if (!speaker.Picture || speaker.Picture == speakerIdle_) {
        speaker.Picture = speakerIdle_ = Stock(StockPicture::SpeakerIdle, side);
    }
}

void ClockOverlays::SetTransparentIconPosition() {
    const double ratio = face_.Window.Surface().DevicePixelRatio();
    const int side = mduAPILib::RoundToInteger(HandleSide * ratio);
    const double left = Pixels(u"Transparent Icon Left"_s);
    const double top = Pixels(u"Transparent Icon Top"_s);
    Control& handle = face_.Controls.shpArea(1);
    SetSquare(handle, left == AutomaticPlace ? 0 : left * ratio,
              top == AutomaticPlace ? 0 : top * ratio, side);
    if (IsAutomaticPlace(left, top)) {
        KeepInside(handle);
    }
    handle.Visible = face_.Window.IsTransparent();
    if (handle.Visible) {
        handle.Picture = Stock(StockPicture::Handle, side);
    }
}

void ClockOverlays::SetLocationLabel() {
    if (!sunMoonSize_) {
        ReadProperties();
    }
    Control& label = face_.Controls.lblLocation(1);
    const Surface& surface = face_.Window.Surface();
    LocationKey key{label.Caption, surface.ScaleWidth(), surface.ScaleHeight()};
    if (locationShown_ == key) {
        return;
    }
    locationShown_ = std::move(key);
    const QPointF centre =
        ClockCentre(face_.Properties, surface.ScaleWidth(), surface.ScaleHeight());
    PlaceLocationLabel(label, locationLook_, surface, centre, Seen());
    if (label.Visible && locationLook_.IsAutomatic()) {
        KeepInside(label);
    }
}

void ClockOverlays::HideLocationLabel() {
    face_.Controls.lblLocation(1).Visible = false;
    locationShown_.reset();
}

}  // namespace drawing
