#pragma once

#include <QAbstractTableModel>
#include <QHash>
#include <vector>

#include "editor/ui/GridParts.h"

/// The data of a grid for its view. The first fixed row is the header of the table; the rows that
/// are seen are the model's rows, so that hidden ones cost nothing. "Row" is a row of the data, and
/// "line" one of the model.
class GridModel final : public QAbstractTableModel {
public:
    GridModel(const GridParts& parts, QObject* parent);

    /// Takes up what the data and the looks hold now.
    void Rebuild();
    /// Tells that the texts of a row have changed.
    void RowChanged(int row);

    /// How many rows the header takes: 0 or 1.
    int HeaderRows() const { return parts_.Data.FixedRows() > 0 ? 1 : 0; }
    int RowOf(int line) const;  ///< -1 where there is no such line
    int LineOf(int row) const;  ///< -1 for a row that is hidden or in the header
    /// The quiet caption above a line; empty for none.
    QString HeadingOf(int line) const { return headings_.value(line); }
    const QHash<int, QString>& Headings() const { return headings_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    QString AccessibleText(int row, int col) const;

    const GridParts& parts_;
    std::vector<int> rows_;  ///< by line
    int cols_ = 0;
    QHash<int, QString> headings_;  ///< by line
};

/// A text in one line and at most @p most characters: what breaks lines becomes a blank.
QString OneLine(const QString& text, int most);
