#pragma once

namespace stock {

/// Whether a place is on land, judged by a simplified shoreline. Degrees: longitude -180 to 180
/// east, latitude -90 to 90 north.
bool IsLand(double longitude, double latitude);

}  // namespace stock
