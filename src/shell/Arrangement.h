#pragma once

#include <QRect>
#include <vector>

namespace shell {

/// The codes of the child-window arrangement.
enum class Arrangement { Cascade = 0, TileRows = 1, TileColumns = 2, Icons = 3 };

/// The places of @p count windows that share an area without gaps: as near to a square number of
/// rows and columns as they allow. By rows, the windows become rather wide; by columns, rather
/// tall.
std::vector<QRect> TilePlaces(int count, const QSize& area, bool byColumns);

/// The places of minimised windows of one size, in rows from the bottom left.
std::vector<QRect> IconPlaces(int count, const QSize& area, const QSize& icon);

}  // namespace shell
