#pragma once

#include <QWidget>
#include <memory>

#include "editor/CellEditing.h"
#include "editor/GridLook.h"
#include "editor/ui/CellLook.h"
#include "editor/ui/EditGridHost.h"

class QComboBox;
class QLineEdit;
class QTableView;
class GridPlaces;

/// The grid that the windows of properties and shortcuts edit with. It shows an `EditGridData`,
/// opens an editor over the current cell and tells its host what happens.
///
///     ctlEditGrid grid(services.Clock, host, this);
///     grid.Data() = editor::EditGridData({4, 2, 1, 0});   // a heading, three rows
///     grid.Setup();
///     grid.SetCellCtl(1, 3);                              // the second column is typed
///     grid.Data().SetTextMatrix(1, 1, u"Red"_s);
///     grid.Refresh();                                     // shows it
///
/// Operations on rows, sorts and texts are the free functions of `editor/` on `Data()`; what they
/// change is shown by `Refresh`. Rows and columns are those of the data throughout: row 0 is the
/// heading where one row or more are fixed. A row of height 0 is hidden.
class ctlEditGrid final : public QWidget {
public:
    /// Both must outlive the grid.
    ctlEditGrid(platform::WallClock& clock, EditGridHost& host, QWidget* parent);
    ~ctlEditGrid() override;

    editor::EditGridData& Data() { return data_; }
    const editor::EditGridData& Data() const { return data_; }
    editor::GridColumns& Columns() { return columns_; }
    const editor::GridColumns& Columns() const { return columns_; }
    editor::CellEditing& Editing() { return editing_; }
    const editor::CellEditing& Editing() const { return editing_; }
    /// How the grid looks; a change shows with `Refresh`. Columns that the user makes wider change
    /// it.
    editor::GridLook& Look() { return look_; }
    const editor::GridLook& Look() const { return look_; }

    /// How cells and entries of lists are decorated. Either may be empty.
    void SetLooks(std::function<CellLook(int row, int col)> ofCell,
                  std::function<CellLook(int row, int col, const QString& item)> ofItem);

    /// Shows what data and look hold now. An edit that is open ends first: its value is written
    /// where its row still holds what it held when the edit began, else it is dropped.
    void Refresh();
    /// Shows one row anew: its texts and its looks, not its height.
    void RefreshRow(int row);

    /// Makes room for the editors of all columns.
    void Setup() { columns_.Setup(data_.Cols()); }
    /// Gives a column its editor, by its id from 0 to 4. @return false for what there is not
    bool SetCellCtl(int col, int id);
    /// How long a burst of typing in a line with a list lasts, in milliseconds.
    void SetTypeCheckingTime(int milliseconds) { editing_.SetTypeCheckingTime(milliseconds); }

    /// Opens the editor of the current cell as a key does: below 32 with the cell's text, else with
    /// that character. @return whether it is open
    bool OnCellKeyPress(int keyAscii);
    /// Writes the open editor's value into its cell and closes it.
    void EndCellEdit();
    /// Closes the open editor without a trace.
    void CancelCellEdit();

    /// The line, or the list, of the open editor; null where there is none.
    QLineEdit* GetCellTextBox() const;
    QComboBox* GetCellCombo() const;
    QComboBox* GetCellComboEdit() const;  ///< where it is a line with a list
    /// The same where the open editor is that of a column, and of that kind.
    QComboBox* GetComboCtl(int col) const;
    QComboBox* GetComboEditCtl(int col) const;
    /// The text of the open editor; empty, and nothing happens, where none is open.
    QString GetComboEditText() const;
    void SetComboEditText(const QString& text);

    /// Which entries the chooser over the headings offers, see `editor::SetColComboOption`.
    void SetColComboOption(const QString& options);
    QString ColComboOption() const;  ///< as it was given
    /// Opens it over a column, as a click on the heading and Alt+Down do.
    void ShowColChooser(int col);

    /// Sorts by a code of `editor::Sort`, or with 9 by the host's `Compare`, and shows it.
    bool Sort(int code);

    /// Design-time state, see `editor::GridState`; loading it shows it.
    QVariantMap SaveState();
    void LoadState(const QVariantMap& bag);

    /// Fits the columns that have a format to their texts.
    void AutoColFit();
    /// Makes the grid as wide as its columns and as high as its rows, but not larger than this, in
    /// pixels.
    void SetGridSize(const QSize& most);
    /// The width alone, not above @p most pixels.
    void SetGridWidthByCaller(int most);

    /// The tip of cells that have none of their own, shown at once.
    void SetToolTipText(const QString& text);

    /// A line of information that floats at the lower edge of the grid.
    void ShowInfo(const QString& text);
    void HideInfo();

    /// The grid as it is seen.
    QPixmap Picture();
    /// The clip text of the selection, put on the clipboard of the desktop.
    void CopySelection() const;

    /// What a screen reader calls the grid.
    void SetName(const QString& name);

    /// Where rows and columns are on the screen.
    GridPlaces& Places();
    /// The cell under the pointer, as the last event of the mouse told; -1 for none.
    int MouseRow() const;
    int MouseCol() const;
    /// The table itself.
    QTableView& View();

    QString Tag;  ///< the host's own
    /// A press closes the gaps of its column, `CompactColumn`: rows move and what stands beside a
    /// gap is lost. Only a host whose rows are a plain list asks for that.
    bool CompactOnPress = false;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Inside;

    void MakeInfo();
    void PlaceInfo();
    void ShowCursor();
    void Compact();
    void FocusWent(Qt::FocusReason reason);

    editor::EditGridData data_;
    editor::GridColumns columns_;
    editor::CellEditing editing_;
    editor::GridLook look_;
    EditGridHost& host_;
    CellLooks looks_;
    std::unique_ptr<Inside> inside_;
    bool applies_ = false;  ///< widths are being set by the look
};
