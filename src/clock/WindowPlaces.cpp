#include "clock/WindowPlaces.h"

#include <algorithm>
#include <tuple>

#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;

namespace clockcore {

namespace {

constexpr double Automatic = -1;
constexpr double LeastExtent = 150;  // twips: less is no window
constexpr int Grip = 40;             // pixels of a window that one can see and take hold of

std::optional<double> Stored(const QString& key, const ClockProperties& properties) {
    const double value = mduAPILib::Val(mduLib::GetProperty(key, properties));
    return value == Automatic ? std::nullopt : std::optional(value);
}

std::optional<double> StoredExtent(const QString& key, const ClockProperties& properties) {
    const std::optional<double> value = Stored(key, properties);
    return value.value_or(0) < LeastExtent ? std::nullopt : value;
}

/// Where a window may begin so that it ends within the view; its corner where it is too large.
QRect Corners(const QSize& size, const QRect& view) {
    const QSize left = (view.size() - size).expandedTo({0, 0});
    return {view.topLeft(), left + QSize(1, 1)};
}

/// Whether a window with that corner would hide the title bar of another, or be hidden by it.
bool Covers(const QPoint& corner, const Room& room) {
    return std::any_of(room.Others.begin(), room.Others.end(), [&](const QRect& other) {
        const QPoint apart = other.topLeft() - corner;
        return 2 * std::abs(apart.x()) < room.Step && 2 * std::abs(apart.y()) < room.Step;
    });
}

QRect WithinView(QRect place, const QRect& view) {
    const QRect corners = Corners(place.size(), view);
    place.moveTo(std::clamp(place.x(), corners.left(), corners.right()),
                 std::clamp(place.y(), corners.top(), corners.bottom()));
    return place;
}

/// Down and to the right until no other is covered; from the far corners on at the near ones.
QRect SteppedOver(const QRect& corners, QRect place, const Room& room) {
    constexpr int mostSteps = 1000;
    const QPoint first = place.topLeft() - corners.topLeft();
    for (int i = 0; i < mostSteps && Covers(place.topLeft(), room); ++i) {
        const QPoint next = first + (i + 1) * QPoint(room.Step, room.Step);
        place.moveTopLeft(corners.topLeft() +
                          QPoint(next.x() % corners.width(), next.y() % corners.height()));
    }
    return place;
}

/// Within the view if that is possible; a window as large as the view leaves it for a part.
QRect Stepped(const QRect& place, const Room& room) {
    const QRect inside = SteppedOver(Corners(place.size(), room.View), place, room);
    return Covers(inside.topLeft(), room)
               ? SteppedOver(Corners({Grip, Grip}, room.View), place, room)
               : inside;
}

bool IsFree(const QRect& place, const Room& room) {
    return std::none_of(room.Others.begin(), room.Others.end(),
                        [&](const QRect& other) { return other.intersects(place); });
}

/// Steps to all sides, the shortest first; of these the ones to the side, to the right, down.
std::vector<QPoint> StepsFrom(int across, int down) {
    std::vector<QPoint> steps;
    for (int y = -down; y <= down; ++y) {
        for (int x = -across; x <= across; ++x) {
            steps.emplace_back(x, y);
        }
    }
    const auto rank = [](const QPoint& step) {
        return std::tuple(step.manhattanLength(), std::abs(step.y()), step.y() < 0, step.x() < 0);
    };
    std::sort(steps.begin(), steps.end(),
              [&](const QPoint& a, const QPoint& b) { return rank(a) < rank(b); });
    return steps;
}

}  // namespace

StoredPlace ReadStoredPlace(const ClockProperties& properties) {
    return {Stored(u"Window Top"_s, properties), Stored(u"Window Left"_s, properties),
            StoredExtent(u"Window Width"_s, properties),
            StoredExtent(u"Window Height"_s, properties)};
}

bool CanBeReached(const QRect& place, const QRect& view) {
    const QRect seen = place & view;
    return seen.width() >= std::min(Grip, place.width()) &&
           seen.height() >= std::min(Grip, place.height()) && place.top() >= view.top();
}

QRect InView(QRect place, const Room& room) {
    place.setSize(place.size().boundedTo(room.Most));
    if (CanBeReached(place, room.View)) {
        return place;
    }
    return Stepped(WithinView(place, room.View), room);
}

QRect FreePlace(const QRect& wanted, const Room& room) {
    const QRect place = WithinView(wanted, room.View);
    if (IsFree(place, room)) {
        return place;
    }
    // By halves of the window, so that gaps beside windows that were moved are found, too.
    const QSize pitch = (place.size() / 2).expandedTo({1, 1});
    const QSize reach = room.View.size() + place.size();
    for (const QPoint& step :
         StepsFrom(reach.width() / pitch.width(), reach.height() / pitch.height())) {
        const QRect next = place.translated(step.x() * pitch.width(), step.y() * pitch.height());
        if (room.View.contains(next) && IsFree(next, room)) {
            return next;
        }
    }
    return Stepped(place, room);
}

}  // namespace clockcore
