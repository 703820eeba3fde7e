#include "timezones/ZoneListModel.h"

using namespace Qt::StringLiterals;

namespace mduTimeZones {

void ZoneListModel::ChecksChanged() {
    if (list_.Count() > 0) {
        Q_EMIT dataChanged(index(0, 0), index(list_.Count() - 1, 0), {Qt::CheckStateRole});
    }
}

int ZoneListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : list_.Count();
}

int ZoneListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : 2;
}

QVariant ZoneListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= list_.Count()) {
        return {};
    }
    const ZoneRow& row = std::as_const(list_)[index.row()];
    switch (role) {
        case Qt::DisplayRole:
            return index.column() == 0 ? row.Name : row.DisplayName;
        case Qt::CheckStateRole:
            return index.column() == 0 ? QVariant(row.Checked ? Qt::Checked : Qt::Unchecked)
                                       : QVariant();
        case Qt::ToolTipRole:
            return row.ToolTipText;
        default:
            return {};
    }
}

QVariant ZoneListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    return section == 0 ? u"Time Zone Name"_s : u"GMT Time Zone"_s;
}

Qt::ItemFlags ZoneListModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags plain = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    return index.column() == 0 ? plain | Qt::ItemIsUserCheckable : plain;
}

bool ZoneListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole || !index.isValid() || index.column() != 0) {
        return false;
    }
    list_[index.row()].Checked = value.toInt() == Qt::Checked;
    Q_EMIT dataChanged(index, index, {Qt::CheckStateRole});
    if (OnChecked) {
        OnChecked(index.row());
    }
    return true;
}

}  // namespace mduTimeZones
