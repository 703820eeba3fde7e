#pragma once

#include <QStringList>

#include "platform/Files.h"

namespace mduUILib {

/// The captions of a menu of files: their base names, those used last first.
///
/// The order is by the text of the last access, "dd/mm/yyyy hh:mm:ss" on the machine's clock,
/// descending: a file of 31/01 stands before one of 02/02. Files of the same second stand in
/// directory order.
/// @param filter keeps the files whose name holds it, letter case told; empty keeps all
/// @param current stands first, also where there is no such file; empty puts none first
/// @param limit the most captions, @p current among them; 0 is without limit
QStringList FillFileMenu(const platform::Files& files, const QString& folder, const QString& filter,
                         const QString& current, int limit);

}  // namespace mduUILib
