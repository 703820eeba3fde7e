#include "ctl/GridOperations.h"

#include <functional>
#include <utility>

#include "ctl/GridScript.h"
#include "editor/ColChooser.h"
#include "editor/GridFormat.h"
#include "editor/GridLines.h"
#include "editor/GridRows.h"
#include "editor/GridSort.h"
#include "editor/GridText.h"
#include "editor/RowOperation.h"

using namespace Qt::StringLiterals;

namespace ctl {

namespace {

using editor::CellEditing;
using editor::EditGridData;
using editor::GridColumns;

// What an operation works on.
template <typename T>
auto& Part(GridScript& script) {
    if constexpr (std::is_same_v<T, EditGridData>) {
        return script.Grid;
    } else if constexpr (std::is_same_v<T, GridColumns>) {
        return script.Columns;
    } else {
        return script.Editing;
    }
}

// An argument by its place, from 0; the one that a shorter line leaves out is 0 or nothing.
template <typename T>
T Argument(const GridArguments& given, std::size_t place) {
    const int index = static_cast<int>(place);
    if constexpr (std::is_same_v<T, std::optional<int>>) {
        return index + 1 < given.Line.size() ? T(given.Int(index)) : T();
    } else if constexpr (std::is_same_v<T, int>) {
        return given.Int(index);
    } else if constexpr (std::is_same_v<T, bool>) {
        return given.Flag(index);
    } else {
        return given.Text(index);
    }
}

template <typename Result, typename Owner, typename... Given>
struct Call {
    template <auto Work>
    static Result Run(GridScript& script, const GridArguments& given) {
        return [&]<std::size_t... Place>(std::index_sequence<Place...>) {
            return std::invoke(Work, Part<std::remove_const_t<Owner>>(script),
                               Argument<std::remove_cvref_t<Given>>(given, Place)...);
        }
        (std::index_sequence_for<Given...>());
    }
};

// The part and the arguments of a function, by its type.
template <typename R, typename Owner, typename... Given>
Call<R, Owner, Given...> CallOf(R (*)(Owner&, Given...));
template <typename R, typename Owner, typename... Given>
Call<R, Owner, Given...> CallOf(R (Owner::*)(Given...));
template <typename R, typename Owner, typename... Given>
Call<R, Owner, Given...> CallOf(R (Owner::*)(Given...) const);

template <typename T>
QJsonValue OrNull(const std::optional<T>& result) {
    return result ? QJsonValue(*result) : QJsonValue();
}
QJsonValue OrNull(const QJsonValue& result) {
    return result;
}

/// Runs a function of the grid, and has no result.
template <auto Work>
QJsonValue Do(GridScript& script, const GridArguments& given) {
    decltype(CallOf(Work))::template Run<Work>(script, given);
    return {};
}

/// Runs it, and tells its result.
template <auto Work>
QJsonValue Tell(GridScript& script, const GridArguments& given) {
    return OrNull(decltype(CallOf(Work))::template Run<Work>(script, given));
}

QJsonValue SetUp(GridScript& script, const GridArguments& given) {
    if (given.Line.size() > 1) {
        script.Grid = EditGridData({given.Int(0), given.Int(1), given.Int(2), given.Int(3)});
        script.Look = {};
    }
    script.Columns.Setup(script.Grid.Cols());
    return {};
}

std::optional<QString> CellText(EditGridData& grid, int row, int col) {
    const bool isThere = grid.HasRow(row) && grid.HasCol(col);
    return isThere ? std::optional(grid.TextMatrix(row, col)) : std::nullopt;
}

std::optional<int> RowData(EditGridData& grid, int row) {
    return grid.HasRow(row) ? std::optional(grid.RowData(row)) : std::nullopt;
}

std::optional<int> RowHeight(EditGridData& grid, int row) {
    return grid.HasRow(row) ? std::optional(grid.RowHeight(row)) : std::nullopt;
}

int Mode(EditGridData& grid) {
    return static_cast<int>(grid.Mode);
}

void SetMode(EditGridData& grid, int mode) {
    if (mode >= 0 && mode <= static_cast<int>(editor::SelectionMode::ByColumn)) {
        grid.Mode = static_cast<editor::SelectionMode>(mode);
    }
}

int LastEditRow(EditGridData& grid) {
    return grid.LastEditRow;
}

void SetLastEditRow(EditGridData& grid, int row) {
    grid.LastEditRow = row;
}

QJsonValue ChooserCaptions(GridScript&, const GridArguments& given) {
    QJsonArray captions;
    for (const editor::ColComboItem& item : editor::SetColComboOption(given.Text(0))) {
        captions += item.Caption;
    }
    return captions;
}

std::optional<int> CellForeColor(EditGridData& grid, int row, int col) {
    const bool isThere = grid.HasRow(row) && grid.HasCol(col);
    return isThere ? std::optional(grid.CellForeColor(row, col)) : std::nullopt;
}

// What concerns a column's look is kept for columns that there are.
template <int editor::ColumnLook::*Value>
QJsonValue TellOfColumn(GridScript& script, const GridArguments& given) {
    const int col = given.Int(0);
    return script.Grid.HasCol(col) ? QJsonValue(script.Look.ColumnAt(col).*Value) : QJsonValue();
}

template <int editor::ColumnLook::*Value>
QJsonValue SetOfColumn(GridScript& script, const GridArguments& given) {
    if (script.Grid.HasCol(given.Int(0))) {
        script.Look.Column(given.Int(0)).*Value = given.Int(1);
    }
    return {};
}

template <bool CellEditing::*Value>
QJsonValue TellSwitch(GridScript& script, const GridArguments&) {
    return script.Editing.*Value;
}

template <bool CellEditing::*Value>
QJsonValue SetSwitch(GridScript& script, const GridArguments& given) {
    script.Editing.*Value = given.Flag(0);
    return {};
}

QJsonValue SetFormat(GridScript& script, const GridArguments& given) {
    script.Look.FormatString = given.Text(0);
    editor::SetupColHeaders(script.Grid, script.Look);
    return {};
}

QJsonValue MoveColumn(GridScript& script, const GridArguments& given) {
    editor::SetColPosition(script.Grid, script.Look, given.Int(0), given.Int(1));
    return {};
}

constexpr GridOperation Operations[] = {
    {"Setup", "iiii", SetUp},
    {"Setup", "", SetUp},
    {"Rows", "", Tell<&EditGridData::Rows>},
    {"Rows", "i", Do<&EditGridData::SetRows>},
    {"Cols", "", Tell<&EditGridData::Cols>},
    {"Cols", "i", Do<&EditGridData::SetCols>},
    {"FixedRows", "", Tell<&EditGridData::FixedRows>},
    {"FixedRows", "i", Do<&EditGridData::SetFixedRows>},
    {"FixedCols", "", Tell<&EditGridData::FixedCols>},
    {"FixedCols", "i", Do<&EditGridData::SetFixedCols>},
    {"Row", "", Tell<&EditGridData::Row>},
    {"Row", "i", Do<&EditGridData::SetRow>},
    {"Col", "", Tell<&EditGridData::Col>},
    {"Col", "i", Do<&EditGridData::SetCol>},
    {"RowSel", "", Tell<&EditGridData::RowSel>},
    {"RowSel", "i", Do<&EditGridData::SetRowSel>},
    {"ColSel", "", Tell<&EditGridData::ColSel>},
    {"ColSel", "i", Do<&EditGridData::SetColSel>},
    {"SelectionMode", "", Tell<Mode>},
    {"SelectionMode", "i", Do<SetMode>},
    {"TextMatrix", "ii", Tell<CellText>},
    {"TextMatrix", "iit", Do<&EditGridData::SetTextMatrix>},
    {"TextArray", "i", Tell<&EditGridData::TextArray>},
    {"TextArray", "it", Do<&EditGridData::SetTextArray>},
    {"RowData", "i", Tell<RowData>},
    {"RowData", "ii", Do<&EditGridData::SetRowData>},
    {"RowHeight", "i", Tell<RowHeight>},
    {"RowHeight", "ii", Do<&EditGridData::SetRowHeight>},
    {"SetRowHeight", "ii", Do<&EditGridData::SetRowHeight>},
    {"RemoveItem", "i", Do<&EditGridData::RemoveItem>},
    {"GetGridClip", "", Tell<&EditGridData::Clip>},
    {"SetGridClip", "t", Do<&EditGridData::SetClip>},
    {"GetSelRow", "", Tell<&EditGridData::RowSel>},
    {"Grid2Str", "t", Tell<editor::Grid2Str>},
    {"CurrentRowStr", "", Tell<editor::CurrentRowStr>},
    {"RowToStr", "i", Tell<editor::RowToStr>},
    {"RowToStr", "ii", Tell<editor::RowToStr>},
    {"InsertOneLine", "b", Tell<editor::InsertOneLine>},
    {"InsertOneLine", "bi", Tell<editor::InsertOneLine>},
    {"RowOperation", "i", Tell<editor::RowOperation>},
    {"RowOperation", "ib", Tell<editor::RowOperation>},
    {"IsRowStrikeThrough", "", Tell<editor::IsRowStrikeThrough>},
    {"GetHightLightValue", "", Tell<editor::GetHightLightValue>},
    {"ColTotal", "i", Tell<editor::ColTotal>},
    {"Str2Gird", "t", Do<editor::Str2Gird>},
    {"StrToRow", "ti", Do<editor::StrToRow>},
    {"Clear", "", Do<editor::Clear>},
    {"GridClear", "", Do<editor::GridClear>},
    {"ClearRow", "i", Do<editor::ClearRow>},
    {"CopyRow", "ii", Do<editor::CopyRow>},
    {"Duplicate", "", Do<editor::Duplicate>},
    {"AddItem", "t", Do<editor::AddItem>},
    {"AddItem", "ti", Do<editor::AddItem>},
    {"AddRowDetail", "t", Do<editor::AddRowDetail>},
    {"RemoveItemByName", "t", Do<editor::RemoveItemByName>},
    {"DeleteGridRows", "", Do<editor::DeleteGridRows>},
    {"RefreshItemNumber", "", Do<editor::RefreshItemNumber>},
    {"SetLineNumber", "it", Do<editor::SetLineNumber>},
    {"SetLastLineNumber", "t", Do<editor::SetLastLineNumber>},
    {"SetRowStrikeThrough", "b", Do<editor::SetRowStrikeThrough>},
    {"ToggleRowStrikeThrough", "", Do<editor::ToggleRowStrikeThrough>},
    {"CompactColumn", "", Do<editor::CompactColumn>},
    {"SelectOneRow", "i", Do<editor::SelectOneRow>},
    {"SelectGridAll", "", Do<editor::SelectGridAll>},
    {"SelectGridNone", "", Do<editor::SelectGridNone>},
    {"Sort", "i", Do<editor::Sort>},
    {"LastEditRow", "", Tell<LastEditRow>},
    {"GetLastEditRow", "", Tell<LastEditRow>},
    {"LastEditRow", "i", Do<SetLastEditRow>},
    {"SetLastEditRow", "i", Do<SetLastEditRow>},
    {"LastLineNumber", "", Tell<editor::LastLineNumber>},
    {"SetColComboOption", "t", ChooserCaptions},
    {"SetCellCtl", "ii", Do<&GridColumns::SetCellCtlID>},
    {"SetCellCtlID", "ii", Do<&GridColumns::SetCellCtlID>},
    {"SetCellCtlVisible", "ib", Do<&GridColumns::SetCellCtlVisible>},
    {"SetColFormat", "t", Do<&GridColumns::SetColFormat>},
    {"AddCellComboItem", "it", Do<&GridColumns::AddCellComboItem>},
    {"AddCellComboEditItem", "it", Do<&GridColumns::AddCellComboEditItem>},
    {"AddComboEditItem", "it", Do<&GridColumns::AddComboEditItem>},
    {"RemoveComboEditItem", "it", Do<&GridColumns::RemoveComboEditItem>},
    {"ClearCellCombo", "i", Do<&GridColumns::ClearCellCombo>},
    {"ClearCellComboEdit", "i", Do<&GridColumns::ClearCellComboEdit>},
    {"CellForeColor", "ii", Tell<CellForeColor>},
    {"SetCellForeColor", "iii", Do<&EditGridData::SetCellForeColor>},
    {"SetRowForeColor", "ii", Do<editor::SetRowForeColor>},
    {"SetCellDefault", "", Do<editor::SetCellDefault>},
    {"SetEditableRow", "ib", Do<&EditGridData::SetEditableRow>},
    {"ColWidth", "i", TellOfColumn<&editor::ColumnLook::Width>},
    {"ColWidth", "ii", SetOfColumn<&editor::ColumnLook::Width>},
    {"ColData", "i", TellOfColumn<&editor::ColumnLook::Data>},
    {"ColData", "ii", SetOfColumn<&editor::ColumnLook::Data>},
    {"FormatString", "t", SetFormat},
    {"RowPosition", "ii", Do<editor::SetRowPosition>},
    {"ColPosition", "ii", MoveColumn},
    {"Editable", "", TellSwitch<&CellEditing::Editable>},
    {"Editable", "b", SetSwitch<&CellEditing::Editable>},
    {"MoveToNextOnEnter", "", TellSwitch<&CellEditing::MoveToNextOnEnter>},
    {"MoveToNextOnEnter", "b", SetSwitch<&CellEditing::MoveToNextOnEnter>},
    {"RowChanges", "", TellSwitch<&CellEditing::RowChanges>},
    {"RowChanges", "b", SetSwitch<&CellEditing::RowChanges>},
    {"MoveToNextCell", "", Do<&CellEditing::MoveToNextCell>},
};

}  // namespace

std::span<const GridOperation> GridOperations() {
    return Operations;
}

}  // namespace ctl
