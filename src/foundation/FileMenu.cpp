#include "foundation/FileMenu.h"

#include "foundation/FileHelpers.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;

namespace mduUILib {

namespace {

constexpr int CategoryColumn = 1;
constexpr int Descending = 2;

QString AccessText(const platform::Files& files, const QString& path) {
    return QDateTime::fromSecsSinceEpoch(files.AccessedSeconds(path).value_or(0))
        .toString(u"dd/MM/yyyy hh:mm:ss"_s);
}

/// A row for each file: when it was used, its name, its path.
ClockProperties RowsOf(const platform::Files& files, const QString& folder, const QString& filter) {
    ClockProperties rows;
    for (const QString& name : files.FileNames(folder)) {
        if (filter.isEmpty() || name.contains(filter)) {
            const QString path = folder + u'/' + name;
            mduLib::AppendProperty(AccessText(files, path), name, path, rows);
        }
    }
    return rows;
}

}  // namespace

QStringList FillFileMenu(const platform::Files& files, const QString& folder, const QString& filter,
                         const QString& current, int limit) {
    const ClockProperties rows = RowsOf(files, folder, filter);
    QStringList captions;
    for (const int row : mduLib::SortPropertyRows(rows, CategoryColumn, Descending)) {
        captions += mduLib::FileBaseName(rows[row].Name, false);
    }
    if (!current.isEmpty()) {
        captions.removeOne(current);
        captions.prepend(current);
    }
    return limit > 0 ? captions.mid(0, limit) : captions;
}

}  // namespace mduUILib
