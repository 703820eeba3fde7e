// The flag of the zone: on the dial, or in the window's icon.
#include "drawing/ClockOverlays.h"
#include "foundation/FileHelpers.h"
#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;

namespace drawing {

namespace {

constexpr double FlagHeight = 0.18;  // of the surface's height

}  // namespace

void ClockOverlays::LoadFlag() {
    const QString file = mduLib::GetProperty(u"Flag File"_s, face_.Properties).trimmed();
    flag_ = mduUILib::IsNoneValue(file)
                ? nullptr
                : face_.Pictures.Load(face_.FileSystem,
                                      mduLib::ResolveAppPath(file, face_.Paths.AppFolder));
    if (flag_ && flag_->isNull()) {
        flag_ = nullptr;
    }
    SetFlagPosition();
}

void ClockOverlays::SetFlagPosition() {
    const FlagPosition position =
        ReadFlagPosition(mduLib::GetProperty(u"Flag Position"_s, face_.Properties));
    face_.Controls.imgFlag(1).Visible = false;
    if (position == FlagPosition::Icon) {
        ShowFlagAsIcon();
        return;
    }
    ShowStoredIcon();
    PlaceFlag(position);
}

void ClockOverlays::ShowFlagAsIcon() {
    face_.Controls.imgFlag(1).Picture = flag_;
    if (icon_ != flag_) {
        icon_ = flag_;
        face_.Window.SetIcon(flag_ ? *flag_ : QImage());
    }
}

// A flag that goes to the dial leaves the window's icon.
void ClockOverlays::ShowStoredIcon() {
    if (icon_ && *icon_) {
        icon_ = nullptr;
        face_.Window.SetIcon({});
    }
}

void ClockOverlays::PlaceFlag(FlagPosition position) {
    mduUILib::Control& flag = face_.Controls.imgFlag(1);
    const double scaleWidth = face_.Window.Surface().ScaleWidth();
    const double scaleHeight = face_.Window.Surface().ScaleHeight();
    const double height = scaleHeight * FlagHeight;
    flag.Height = static_cast<float>(height);
    flag.Picture = flag_;
    flag.Visible = flag_ != nullptr;
    if (!flag_) {
        return;
    }
    const double width = height * flag_->width() / flag_->height();
    flag.Width = static_cast<float>(width);
    const bool bottom =
        position == FlagPosition::BottomLeft || position == FlagPosition::BottomRight;
    const bool left = position == FlagPosition::TopLeft || position == FlagPosition::BottomLeft;
    flag.Top = static_cast<float>(bottom ? scaleHeight - height : 0);
    flag.Left = static_cast<float>(left ? 0 : scaleWidth - width);
    KeepInside(flag);
    const QSize size(mduAPILib::RoundToInteger(width), mduAPILib::RoundToInteger(height));
    if (!size.isEmpty() && size.width() <= mduUILib::PictureStore::LargestSide) {
        flag.Picture = face_.Pictures.Scaled(flag_, size);
    }
}

}  // namespace drawing
