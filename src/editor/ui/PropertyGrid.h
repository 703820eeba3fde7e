#pragma once

#include <QObject>
#include <functional>
#include <set>

#include "editor/PropertyClip.h"
#include "editor/PropertyOwner.h"
#include "editor/PropertyPreview.h"
#include "editor/ValueForm.h"
#include "editor/ui/ValueLooks.h"
#include "editor/ui/ctlEditGrid.h"

/// The grid of a window of properties: the records of its sheet, row by row, and what editing them
/// does to the sheet. A cell's text goes to its record when its edit ends; the sheet then tells the
/// grid what to show, as it does behind undo and redo.
class PropertyGrid final : public QObject, private EditGridHost {
    Q_OBJECT

public:
    /// What the grid tells its window. None may be empty.
    struct Events {
        std::function<void()> RowChanged;      ///< another record is the current one, or it changed
        std::function<void()> RecordsChanged;  ///< a record has another value
        std::function<bool(int code, int shift)> Key;  ///< @return whether the key has been used
        std::function<void()> IsHidden;  ///< a record is to be seen that the search leaves out
        std::function<void()> GotFocus;
        std::function<void(const QPoint& at)> MenuAsked;  ///< in global pixels
        /// Runs what shows a picker, while which the window stays open.
        std::function<void(const std::function<void()>& box)> RunBox;
        std::function<void()> HasComma;  ///< a value was cut off at its comma
        std::function<void(int col)> HeaderClicked;
    };

    /// All outlive this but @p parent, which owns the control.
    PropertyGrid(const Program& program, editor::PropertySheet& sheet,
                 const editor::PropertyOwner& owner, Events events, QWidget* parent);
    ~PropertyGrid() override;

    ctlEditGrid& Control() { return *grdProperty_; }

    /// Lists the records as the sheet shows them now. The current record stays current where it is
    /// still listed; else the first row is.
    void Fill();
    /// The widths of the columns in a window of that width, in pixels.
    void FitColumns(int windowWidth);
    /// Whether anything can be edited.
    void SetEditable(bool editable);

    /// The record of the current row; 0 where that has none, as in an empty list.
    int CurrentRecord() const;
    /// The current text of that record's cell.
    QString CurrentCell() const;
    /// The records of the selected rows, from the top.
    std::vector<int> SelectedRecords() const;
    /// How many records are listed.
    int Count() const { return static_cast<int>(records_.size()); }
    /// Makes a record's row the current one and brings it into view. @return whether it is listed
    bool GoTo(int record);

    /// Ends the edit that is open, if any, and commits the current row.
    void EndEdit();
    /// Asks for the current record's file or colour, turns its switch over, or opens its list.
    void PickValue();
    /// Selects all rows.
    void SelectAll();
    /// Puts values into their records in one step that can be undone.
    /// @return the keys that don't take theirs
    QStringList PutCells(const std::vector<editor::PastedValue>& cells, const QString& commandText);
    /// Undoes or redoes one step, and goes to the first record that it has changed, unless all
    /// have.
    void Undo();
    void Redo();

    /// Runs what changes records; what is shown of them follows at its end.
    void InOneStep(const std::function<void()>& change);
    /// The picture on the owner's clock.
    editor::PropertyPreview& Preview() { return preview_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // EditGridHost
    void DblClick() override;
    void KeyDown(int& code, int shift) override;
    void MouseDown(int button, int shift, double x, double y) override;
    void MouseUp(int button, int shift, double x, double y) override;
    void RowColChange() override;
    void GotFocus() override;
    void CellChanged(int row, int col) override;
    void ItemHighlighted(int row, int col, int item) override;
    void ButtonClicked(int row, int col) override;

    void SetupPropertyGrid();
    void SetupPropertyHeaders();
    void ShowSortMark();
    void FillPropertyGrid();
    void FillRow(int row, int record);
    void SetupRowEditor();
    void FillValueChoices(const editor::ValueForm& form, QStringList choices);
    void ClearRowEditor();
    void CommitRow(int row);
    /// Commits a text up to its comma, if it has one.
    editor::RowCommit Take(int record, const QString& text);
    /// Puts a text into a record, as the end of an edit does.
    void PutCell(int record, const QString& text);
    /// Opens the editor of the current value with its text.
    void OpenEditor();
    void Commit(const std::vector<editor::PastedValue>& cells, const QString& commandText);
    void Step(void (QUndoStack::*step)());
    void PickColour(int record);
    /// Shows a picker, and puts into the record what it answers.
    void Pick(int record, const std::function<std::optional<QString>(platform::Dialogs&)>& picker);
    void PickFile(int record);
    void TurnOver(int record);

    void RecordChanged(int record);
    void ShowChanges(const std::set<int>& records);
    int RowOf(int record) const;
    CellLook LookOf(int row, int col) const;
    CellLook LookOfItem(int row, const QString& item) const;

    Program program_;
    editor::PropertySheet& sheet_;
    const editor::PropertyOwner& owner_;
    Events events_;
    editor::PropertyPreview preview_;
    ValueLooks looks_;
    ctlEditGrid* grdProperty_;
    std::vector<int> records_;  ///< that are listed, by row; the first stands in row 1
    int lastRow_ = 0;           ///< the row that was current before, to be committed; 0 for none
    bool filling_ = false;
    bool onButton_ = false;  ///< the last press was one of a button or a check box
    int steps_ = 0;          ///< how deep in `InOneStep`
    std::set<int> changed_;
};
