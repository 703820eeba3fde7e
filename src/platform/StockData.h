#pragma once

#include <QString>
#include <QStringList>

namespace platform {

/// The folders that come with the program. Beside an executable stand other things as well, the
/// user's own among them.
QStringList StockFolders();

/// Copies the files of the stock folders that are missing in @p folder, or older there (profiles of
/// cities only while they are missing); a copy keeps its source's time. @return the file that could
/// not be written: what this run has copied anew is gone again then. Empty when all is there.
QString CopyStockData(const QString& source, const QString& folder);

}  // namespace platform
