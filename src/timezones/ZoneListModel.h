#pragma once

#include <QAbstractTableModel>
#include <functional>

#include "timezones/ZoneList.h"

namespace mduTimeZones {

/// The listed rows as a table of two columns, the first with check boxes. The list is changed
/// through `Change`, so that views follow; the list is not owned and must outlive the model.
///
///     model.Change([&] { list.SetSearch(u"norway"_s); });
class ZoneListModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit ZoneListModel(ZoneList& list) : list_(list) {}

    /// Called when the user has checked or unchecked the row at a position.
    std::function<void(int)> OnChecked;

    /// Runs something that changes which rows there are, or their order. Views forget what was
    /// selected; whoever wants it back has to find the row again.
    template <typename Action>
    void Change(Action&& action) {
        beginResetModel();
        action();
        endResetModel();
    }
    void ChecksChanged();  ///< of any rows, by the program

    /// As many as are listed.
    int rowCount(const QModelIndex& parent = {}) const override;
    /// Two: name, and offset from GMT.
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// Takes checks only. @return false for anything else
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

private:
    ZoneList& list_;
};

}  // namespace mduTimeZones
