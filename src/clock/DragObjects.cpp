#include "clock/DragObjects.h"

#include <QLineF>
#include <algorithm>

#include "clock/ClockHit.h"
#include "drawing/AnalogueFace.h"
#include "drawing/ClockSpecial.h"
#include "drawing/Shapes.h"
#include "foundation/NamedValues.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;

namespace clockcore {

namespace {

using mduUILib::ClockControls;

constexpr struct {
    DragObject Object;
    mduUILib::ControlArray ClockControls::*Array;
} Stands[] = {
    {DragObject::Dial, &ClockControls::imgClock},
    {DragObject::Digits, &ClockControls::lblClock},
    {DragObject::Flag, &ClockControls::imgFlag},
    {DragObject::Location, &ClockControls::lblLocation},
    {DragObject::Speaker, &ClockControls::imgSpeaker},
    {DragObject::Handle, &ClockControls::shpArea},
};

bool HasTitleBar(const ClockData& data) {
    const auto value = [&data](const QString& key) {
        return mduLib::GetProperty(key, data.Properties()).trimmed();
    };
    return !data.Tag.IsWrapper &&
           !drawing::IsFigure(drawing::ReadShape(value(u"Window Shape"_s))) &&
           mduUILib::YesNoToBool(value(u"Window Title Bar"_s));
}

DragObject GroundAt(const QPointF& point, const DragGround& ground, bool withControl) {
    const bool onDisc = QLineF(ground.Centre, point).length() <= ground.Radius;
    if (ground.HasDial && (withControl || (ground.HasTitleBar && onDisc))) {
        return DragObject::Dial;
    }
    return ground.HasTitleBar ? DragObject::None : DragObject::Window;
}

}  // namespace

DragGround ReadDragGround(const ClockData& data, const QSizeF& surface) {
    DragGround ground;
    ground.HasTitleBar = HasTitleBar(data);
    ground.HasDial = data.IsAnalogue();
    ground.HasFreeDigits =
        drawing::ReadClockSpecial(data.Properties()) != drawing::ClockSpecial::DigitalVertical;
    ground.Centre = drawing::ClockCentre(data.Properties(), static_cast<int>(surface.width()),
                                         static_cast<int>(surface.height()));
    ground.Radius = std::min(surface.width(), surface.height()) / 2;
    return ground;
}

DragObject DragObjectAt(const ClockControls& controls, const QPointF& point,
                        const DragGround& ground, bool withControl) {
    if (ControlAt(controls.imgSpeaker, point) != nullptr) {
        return withControl ? DragObject::Speaker : DragObject::None;
    }
    const ClockPart part = PartAt(controls, point).Part;
    const bool takesPress = part == ClockPart::TimerMark || part == ClockPart::Action;
    if (!takesPress && ControlAt(controls.shpArea, point) != nullptr) {
        return ground.HasTitleBar || withControl ? DragObject::Handle : DragObject::Window;
    }
    switch (part) {
        case ClockPart::Flag:
            return DragObject::Flag;
        case ClockPart::Location:
            return DragObject::Location;
        case ClockPart::Digits:
            return ground.HasFreeDigits ? DragObject::Digits : GroundAt(point, ground, withControl);
        case ClockPart::Face:
        case ClockPart::Message:
        case ClockPart::Input:
        case ClockPart::Output:
            return GroundAt(point, ground, withControl);
        default:
            return DragObject::None;
    }
}

mduUILib::Control* ControlOf(DragObject object, ClockControls& controls) {
    for (const auto& stand : Stands) {
        if (stand.Object == object) {
            return &(controls.*stand.Array)(1);
        }
    }
    return nullptr;
}

DragObject ObjectOf(const mduUILib::Control& control, const ClockControls& controls) {
    for (const auto& stand : Stands) {
        if (&(controls.*stand.Array)(1) == &control) {
            return stand.Object;
        }
    }
    return DragObject::None;
}

}  // namespace clockcore
