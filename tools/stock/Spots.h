#pragma once

#include <QImage>
#include <QStringList>

/// Small marks with a transparent ground, to be set round a dial in place of the plain spots.
namespace stock {

/// The names of all marks, such as "Ruby".
QStringList SpotNames();

/// The mark of that name, 96 pixels square; a null image if there is none.
QImage Spot(const QString& name);

}  // namespace stock
