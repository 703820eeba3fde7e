#pragma once

#include <optional>

#include "editor/CellEditor.h"
#include "editor/EditGridData.h"
#include "editor/GridColumns.h"
#include "editor/TypeAhead.h"

namespace editor {

/// Editing the cells of a grid: how a cell is entered, what the keys do, how the value returns to
/// the cell. At most one editor is open, over the current cell.
///
///     editing.OnCellKeyPress('7');                 // the editor opens and holds "7"
///     editing.OnKeyFromEditor({KeyCode::Enter});   // the cell holds "7"
class CellEditing {
public:
    /// All three outlive this.
    CellEditing(EditGridData& grid, GridColumns& columns, platform::WallClock& clock);

    bool Editable = true;            ///< whether anything may be edited at all
    bool MoveToNextOnEnter = false;  ///< Enter goes on to the next cell
    bool RowChanges = false;         ///< an edit has changed a cell; the host takes it back
    int PageRows = 10;               ///< rows that a page key moves by; the window knows them

    /// The gate: a key that types @p keyAscii, a code point, is pressed on the grid. Below 32 the
    /// editor opens with the cell's text, else with the character. In a heading, in a row that is
    /// struck through and in a column without an editor nothing opens, nor does a list to pick
    /// from that is empty. Escape opens nothing.
    /// @return whether an editor has been opened
    bool OnCellKeyPress(int keyAscii);

    /// A key while no editor is open: what types and Backspace go to the gate, Tab moves on, Enter
    /// as well or else it opens the editor. @return false for a key that keeps its own meaning
    bool OnGridKey(const EditKey& key);

    /// A key while an editor is open. Nothing happens when none is.
    void OnKeyFromEditor(const EditKey& key);

    bool IsEditing() const { return editor_.has_value(); }
    /// The open editor; null when there is none.
    CellEditor* Editor() { return editor_ ? &*editor_ : nullptr; }
    const CellEditor* Editor() const { return editor_ ? &*editor_ : nullptr; }
    int EditColumn() const { return editColumn_; }  ///< of the open editor, or of the last one
    /// A character has been typed at the end of an open line with a list, which a window keeps
    /// itself and which holds @p text now.
    /// @return the entry that begins with it, which is the editor's text then; -1 where there is
    /// none
    int TakeTyped(const QString& character, const QString& text);
    /// The editor of the column that is being edited.
    EditorKind EditColumnId() const { return editor_ ? editor_->Kind() : EditorKind::None; }

    /// A press on a spin button of the open editor.
    void Spin(int step);
    /// Writes the editor's value into its cell and closes it; a number where the column's format
    /// is one of numbers. It is also what the loss of the focus does.
    void EndCellEdit();
    /// Closes the editor without a trace.
    void CancelCellEdit();

    /// To the right; behind the last column to the first that can be edited of the next row, or
    /// the first of all where none can. In the last row it stays in that row. Hidden rows are
    /// passed over.
    void MoveToNextCell();

    void SetTypeCheckingTime(int milliseconds) { typeAhead_.SetTypeCheckingTime(milliseconds); }
    const TypeAhead& Burst() const { return typeAhead_; }

private:
    bool EnterCell(const QString& typed);
    bool BeginCellEdit(const QString& typed);
    void MoveByPage(int code);
    /// The next row from @p row that is seen, in steps of 1 or -1; @p row where there is none.
    int NextRow(int row, int step) const;
    void WriteValue(const QString& text);
    int PresentYear() const;

    EditGridData& grid_;
    GridColumns& columns_;
    platform::WallClock& clock_;
    TypeAhead typeAhead_;
    std::optional<CellEditor> editor_;
    int editColumn_ = 0;
    int earlierEditRow_ = 0;  ///< `LastEditRow` as it was before the open edit
};

}  // namespace editor
