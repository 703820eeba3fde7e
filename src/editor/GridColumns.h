#pragma once

#include <QStringList>
#include <vector>

namespace editor {

/// What a cell is edited with.
enum class EditorKind {
    None = 0,      ///< the column can't be edited
    Combo = 1,     ///< a list to pick from
    UpDown = 2,    ///< a line with spin buttons
    Text = 3,      ///< a line
    ComboEdit = 4  ///< a line with a list
};

/// The editor of a column, and whether it may be shown.
struct CellCtl {
    EditorKind Id = EditorKind::None;
    bool Visible = false;
    bool operator==(const CellCtl&) const = default;
};

/// What the columns of a grid are edited with: their editors, formats and lists. Columns count from
/// 0 to the number of columns, one more than the grid has; setters refuse any other column.
///
///     GridColumns columns;
///     columns.Setup(2);
///     columns.SetCellCtlID(1, 1);     // picked from a list
///     columns.AddCellComboItem(1, "Red");
///     columns.SetColFormat(",0.00");  // column 1 holds numbers
class GridColumns {
public:
    /// Makes room for a grid of so many columns; what the first ones have stays.
    void Setup(int cols);
    int Count() const { return static_cast<int>(columns_.size()); }

    /// No editor where there is no such column.
    CellCtl Ctl(int col) const { return At(col).Ctl; }
    /// Gives a column its editor, shown; an id from 0 to 4. Its lists stay.
    bool SetCellCtlID(int col, int id);
    bool SetCellCtlVisible(int col, bool state);
    /// Whether a cell of the column takes an editor at present.
    bool IsEditable(int col) const;

    /// The formats by column, parted by commas; columns behind the last one have none.
    void SetColFormat(const QString& formats);
    QString ColFormat(int col) const { return At(col).Format; }
    /// Whether the format is one of numbers, such as "0", "0.00" or "#".
    bool HasNumberFormat(int col) const;

    /// The entries of a column's list, be it one to pick from or one behind a line.
    QStringList Items(int col) const;
    bool AddCellComboItem(int col, const QString& text);
    bool AddCellComboEditItem(int col, const QString& text);
    bool AddComboEditItem(int col, const QString& text) { return AddCellComboEditItem(col, text); }
    /// False when there is no such entry.
    bool RemoveComboEditItem(int col, const QString& text);
    bool ClearCellCombo(int col);
    bool ClearCellComboEdit(int col);

private:
    struct Column {
        CellCtl Ctl;
        QString Format;
        QStringList ComboItems;
        QStringList ComboEditItems;
    };

    const Column& At(int col) const;
    Column* Find(int col);

    std::vector<Column> columns_;
};

}  // namespace editor
