#include "shell/Arrangement.h"

#include <algorithm>
#include <cmath>

namespace shell {

namespace {

/// The edge number @p index of @p parts equal parts.
int Edge(int extent, int index, int parts) {
    return extent * index / parts;
}

}  // namespace

std::vector<QRect> TilePlaces(int count, const QSize& area, bool byColumns) {
    std::vector<QRect> places;
    const int side = static_cast<int>(std::sqrt(count));
    // Along the one direction there are as many bands as the square root allows; the last bands
    // hold one window more where the windows don't come out even.
    const QSize size = byColumns ? area.transposed() : area;
    for (int band = 0; band < side; ++band) {
        const int longer = count % side;
        const int members = count / side + (band >= side - longer ? 1 : 0);
        for (int member = 0; member < members; ++member) {
            const QPoint from(Edge(size.width(), band, side), Edge(size.height(), member, members));
            const QPoint to(Edge(size.width(), band + 1, side) - 1,
                            Edge(size.height(), member + 1, members) - 1);
            places.push_back(byColumns ? QRect(from.transposed(), to.transposed())
                                       : QRect(from, to));
        }
    }
    return places;
}

std::vector<QRect> IconPlaces(int count, const QSize& area, const QSize& icon) {
    std::vector<QRect> places;
    const int across = icon.width() > 0 ? std::max(1, area.width() / icon.width()) : 1;
    for (int i = 0; i < count; ++i) {
        const QPoint corner(i % across * icon.width(),
                            area.height() - (i / across + 1) * icon.height());
        places.emplace_back(corner, icon);
    }
    return places;
}

}  // namespace shell
