#include "clock/ClockHit.h"

#include <QLineF>
#include <algorithm>
#include <cmath>
#include <optional>

#include "drawing/AnalogueFace.h"
#include "drawing/DialNumbers.h"

namespace clockcore {

namespace {

/// The arrays of each part, the upper ones first. Below them all lie the spots.
constexpr struct {
    mduUILib::ControlArray mduUILib::ClockControls::*Array;
    ClockPart Part;
} Layers[] = {
    {&mduUILib::ClockControls::imgSpeaker, ClockPart::Speaker},
    {&mduUILib::ClockControls::imgAction, ClockPart::Action},
    {&mduUILib::ClockControls::lblActionMsg, ClockPart::Action},
    {&mduUILib::ClockControls::lblMsg, ClockPart::Message},
    {&mduUILib::ClockControls::imgTimer, ClockPart::TimerMark},
    {&mduUILib::ClockControls::lblLocation, ClockPart::Location},
    {&mduUILib::ClockControls::imgFlag, ClockPart::Flag},
    {&mduUILib::ClockControls::lblTimeOutput, ClockPart::Output},
    {&mduUILib::ClockControls::lblTimeInput, ClockPart::Input},
    {&mduUILib::ClockControls::lblDigitalNumber, ClockPart::Digits},
    {&mduUILib::ClockControls::lblHour, ClockPart::HourNumber},
};

constexpr double HubReach = 20;  // device pixels

/// The label behind a painted number is smaller than the number.
QRectF ClickArea(const mduUILib::Control& control) {
    if (!drawing::IsBehindPaintedNumber(control)) {
        return control.Visible ? control.Rect() : QRectF();
    }
    const double around = static_cast<double>(control.Height) / 2;
    return control.Rect().adjusted(-around, -around, around, around);
}

/// The number of the first member that takes clicks at a point; nothing where there is none.
std::optional<int> MemberAt(const mduUILib::ControlArray& array, const QPointF& point) {
    int number = array.First;
    for (const mduUILib::Control& control : array.Members) {
        if (ClickArea(control).contains(point)) {
            return number;
        }
        ++number;
    }
    return std::nullopt;
}

/// A spot is small, and a hand trembles: what lies beside it as far as half its side, or this far,
/// is meant for it.
constexpr float LeastBeside = 4;  // device pixels

QRectF Reach(const mduUILib::Control& spot) {
    const qreal beside = std::max(LeastBeside, std::max(spot.Width, spot.Height) / 2);
    return spot.Rect().adjusted(-beside, -beside, beside, beside);
}

/// The visible spot that a point is meant for: the nearest that it reaches.
std::optional<int> SpotAt(const mduUILib::ControlArray& spots, const QPointF& point) {
    std::optional<int> found;
    qreal distance = 0;
    for (int index = spots.First; index < spots.First + spots.Count(); ++index) {
        const mduUILib::Control& spot = spots(index);
        const qreal away = QLineF(spot.Rect().center(), point).length();
        if (spot.Visible && Reach(spot).contains(point) && (!found || away < distance)) {
            found = index;
            distance = away;
        }
    }
    return found;
}

bool HasHands(const ClockData& data) {
    return data.IsAnalogue() && !data.Tag.IsWrapper;
}

/// Nothing for a number that no member has.
QRectF MemberPlace(const mduUILib::ControlArray& array, int index) {
    const bool isThere = index >= array.First && index < array.First + array.Count();
    return isThere ? ClickArea(array(index)) : QRectF();
}

QRectF ReadOutPlace(const mduUILib::ControlArray& labels) {
    QRectF place;
    for (const mduUILib::Control& label : labels.Members) {
        place |= ClickArea(label);
    }
    return place;
}

}  // namespace

ClockHit PartAt(const mduUILib::ClockControls& controls, const QPointF& point) {
    for (const auto& layer : Layers) {
        if (const auto number = MemberAt(controls.*layer.Array, point)) {
            return {layer.Part, *number};
        }
    }
    const std::optional<int> spot = SpotAt(controls.imgClockNumber, point);
    return spot ? ClockHit{ClockPart::Spot, *spot} : ClockHit{};
}

ClockHit HitAt(const ClockData& data, const mduUILib::ClockControls& controls, const QSize& scale,
               const QPointF& point) {
    const ClockHit hit = PartAt(controls, point);
    if (hit.Part != ClockPart::Face || !HasHands(data)) {
        return hit;
    }
    const QPointF away =
        point - drawing::ClockCentre(data.Properties(), scale.width(), scale.height());
    const bool meet = std::abs(away.x()) <= HubReach && std::abs(away.y()) <= HubReach;
    return meet ? ClockHit{ClockPart::Hands} : hit;
}

QRectF PlaceOfPart(const ClockData& data, const mduUILib::ClockControls& controls,
                   const QSize& scale, const ClockHit& hit) {
    if (hit.Part == ClockPart::Hands && HasHands(data)) {
        const QPointF reach(HubReach, HubReach);
        const QPointF hub = drawing::ClockCentre(data.Properties(), scale.width(), scale.height());
        return {hub - reach, hub + reach};
    }
    if (hit.Part == ClockPart::Digits) {
        return ReadOutPlace(controls.lblDigitalNumber);
    }
    if (hit.Part == ClockPart::Spot) {
        return MemberPlace(controls.imgClockNumber, hit.Index);
    }
    QRectF place;
    for (const auto& layer : Layers) {
        if (layer.Part == hit.Part) {
            place |= MemberPlace(controls.*layer.Array, hit.Index);
        }
    }
    return place;
}

const mduUILib::Control* ControlAt(const mduUILib::ControlArray& array, const QPointF& point) {
    for (const mduUILib::Control& control : array.Members) {
        if (control.Visible && control.Rect().contains(point)) {
            return &control;
        }
    }
    return nullptr;
}

}  // namespace clockcore
