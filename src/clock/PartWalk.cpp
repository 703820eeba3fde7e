#include "clock/PartWalk.h"

#include <algorithm>
#include <set>

#include "timers/DialSpot.h"
#include "timers/TimerFile.h"

using namespace Qt::StringLiterals;

namespace clockcore {

namespace {

constexpr int Spots = 60;
constexpr int AnyYear = 2000;  // a time alone has none
constexpr int SpotsOfHour = 5;

/// The numbers of the spots where timers of the dial stand.
std::set<int> TimerSpots(const timers::ClockTimers& timers) {
    std::set<int> spots;
    for (int slot = 1; slot <= timers.SlotCount(); ++slot) {
        const timers::ClockTimer& timer = timers.Timer(slot);
        const auto time = timers::TimeOfText(timer.TimerTime, AnyYear);
        if (timer.OnDial && time) {
            const int spot = timers::SpotOfTime(*time).Spot % Spots;
            spots.insert(spot == 0 ? Spots : spot);
        }
    }
    return spots;
}

/// Members of the part up to one, each so many steps behind the one before, seen or not.
std::vector<ClockHit> Members(ClockPart part, int last, int step = 1) {
    std::vector<ClockHit> hits;
    for (int index = step; index <= last; index += step) {
        hits.push_back({part, index});
    }
    return hits;
}

}  // namespace

std::vector<ClockHit> PartsInOrder(const ClockData& data, const mduUILib::ClockControls& controls,
                                   const QSize& scale, const timers::ClockTimers& timers) {
    std::vector<ClockHit> parts = {{ClockPart::Hands}};
    const auto add = [&parts](const std::vector<ClockHit>& hits) {
        parts.insert(parts.end(), hits.begin(), hits.end());
    };
    add(Members(ClockPart::HourNumber, controls.lblHour.Count(), SpotsOfHour));
    for (const int spot : TimerSpots(timers)) {
        parts.push_back({ClockPart::Spot, spot});
    }
    add(Members(ClockPart::TimerMark, std::min(controls.imgTimer.Count(), timers.SlotCount())));
    add({{ClockPart::Action},
         {ClockPart::Message},
         {ClockPart::Speaker},
         {ClockPart::Flag},
         {ClockPart::Digits},
         {ClockPart::Location}});
    const QRectF surface(QPointF(0, 0), QSizeF(scale));
    std::erase_if(parts, [&](const ClockHit& hit) {
        return !PlaceOfPart(data, controls, scale, hit).intersects(surface);
    });
    return parts;
}

DragObject PushedWith(ClockPart part, const DragGround& ground) {
    switch (part) {
        case ClockPart::Hands:
            return DragObject::Dial;
        case ClockPart::Digits:
            return ground.HasFreeDigits ? DragObject::Digits : DragObject::None;
        case ClockPart::Flag:
            return DragObject::Flag;
        case ClockPart::Location:
            return DragObject::Location;
        case ClockPart::Speaker:
            return DragObject::Speaker;
        default:
            return DragObject::None;
    }
}

QString PartName(const mduUILib::ClockControls& controls, const ClockHit& hit) {
    switch (hit.Part) {
        case ClockPart::Hands:
            return u"Hands"_s;
        case ClockPart::HourNumber:
            return u"Hour number %1"_s.arg(hit.Index / SpotsOfHour);
        case ClockPart::Spot:
            return u"Timer spot "_s + controls.imgClockNumber(hit.Index).ToolTipText;
        case ClockPart::TimerMark:
            return u"Timer %1"_s.arg(hit.Index);
        case ClockPart::Action:
            return u"Action"_s;
        case ClockPart::Message:
            return u"Message"_s;
        case ClockPart::Speaker:
            return u"Speaker"_s;
        case ClockPart::Flag:
            return u"Flag"_s;
        case ClockPart::Digits:
            return u"Digits"_s;
        case ClockPart::Location:
            return u"Name of the zone"_s;
        default:
            return {};
    }
}

bool PartWalk::Step(const std::vector<ClockHit>& parts, bool forward) {
    const auto at = focus_ ? std::find(parts.begin(), parts.end(), *focus_) : parts.end();
    const auto count = static_cast<std::ptrdiff_t>(parts.size());
    const bool outside = at == parts.end();
    const std::ptrdiff_t next =
        outside ? (forward ? 0 : count - 1) : at - parts.begin() + (forward ? 1 : -1);
    if (next < 0 || next >= count) {
        Leave();
        return false;
    }
    focus_ = parts[static_cast<std::size_t>(next)];
    return true;
}

}  // namespace clockcore
