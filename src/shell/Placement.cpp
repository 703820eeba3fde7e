#include "shell/Placement.h"

#include <algorithm>

#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/Twips.h"

using namespace Qt::StringLiterals;

namespace shell {

int StoredWindowState(const ShellSettings& settings) {
    return mduUILib::WindowStateValue(settings.Setting(u"Window State"_s));
}

QSize StoredSize(const ShellSettings& settings, const QSize& screen) {
    const auto extent = [&settings](const QString& key, int present) {
        const double twips = settings.Number(key);
        return twips > 0 ? mduAPILib::RoundToInteger(twips / TwipsPerPixel) : present / 4;
    };
    const QSize size(extent(u"Window Width"_s, screen.width()),
                     extent(u"Window Height"_s, screen.height()));
    return size.boundedTo(screen).expandedTo({200, 150});
}

QPoint StoredCorner(const ShellSettings& settings, const QRect& screen, const QSize& window) {
    const auto place = [&settings](const QString& key, int from, int room) {
        constexpr int farthest = 100'000;  // pixels: no screen reaches there
        const double twips = settings.Number(key);
        return twips == -1 ? from + room / 2
                           : std::clamp(mduAPILib::RoundToInteger(twips / TwipsPerPixel), -farthest,
                                        farthest);
    };
    return {place(u"Window Left"_s, screen.left(), screen.width() - window.width()),
            place(u"Window Top"_s, screen.top(), screen.height() - window.height())};
}

QRect WithinReach(QRect place, const std::vector<QRect>& screens, const QRect& primary) {
    constexpr int grip = 60;  // pixels
    for (const QRect& screen : screens) {
        const QRect seen = place & screen;
        if (seen.width() >= grip && seen.height() >= grip && place.top() >= screen.top()) {
            return place;
        }
    }
    const auto bring = [](int from, int extent, int least, int room) {
        return std::clamp(from, least, std::max(least, least + room - extent));
    };
    place.moveTo(bring(place.x(), place.width(), primary.left(), primary.width()),
                 bring(place.y(), place.height(), primary.top(), primary.height()));
    return place;
}

/// A window beside a clock covers it sooner than it becomes narrower than this, in pixels.
constexpr int LeastBeside = 420;

QRect PlaceBeside(const QRect& clock, const QSize& window, const QSize& room) {
    const int behind = clock.x() + clock.width();
    const int beside = std::max(room.width() - behind, clock.x());
    const int width = std::min(window.width(), std::max(beside, LeastBeside));
    const QSize size = QSize(width, window.height()).boundedTo(room);
    const int before = clock.x() - size.width();
    const bool fitsBehind = behind + size.width() <= room.width();
    const bool isMoreBehind = room.width() - behind >= clock.x();
    const int x = fitsBehind || (before < 0 && isMoreBehind) ? behind : before;
    return {QPoint(std::clamp(x, 0, room.width() - size.width()),
                   std::clamp(clock.y(), 0, room.height() - size.height())),
            size};
}

void PutPlace(ShellSettings& settings, const QRect& place, const QRect& applied) {
    const bool known = !applied.isNull();
    const auto put = [&](const QString& key, int pixels, int before) {
        if (!known || pixels != before || settings.Number(key) == -1) {
            settings.Put(key, mduAPILib::SingleText(static_cast<float>(pixels * TwipsPerPixel)));
        }
    };
    put(u"Window Top"_s, place.y(), applied.y());
    put(u"Window Left"_s, place.x(), applied.x());
    put(u"Window Width"_s, place.width(), applied.width());
    put(u"Window Height"_s, place.height(), applied.height());
}

}  // namespace shell
