#include "ctl/GridOperations.h"

#include "ctl/GridScript.h"
#include "editor/ColChooser.h"
#include "editor/GridLines.h"
#include "editor/GridRows.h"
#include "editor/GridSort.h"
#include "editor/GridText.h"
#include "editor/RowOperation.h"

using namespace Qt::StringLiterals;

namespace ctl {

namespace {

using editor::EditGridData;
using editor::GridColumns;

/// A property of the grid, asked for and set.
template <auto Get>
QJsonValue Ask(GridScript& script, const GridArguments&) {
    return (script.Grid.*Get)();
}

template <auto Set>
QJsonValue Put(GridScript& script, const GridArguments& given) {
    (script.Grid.*Set)(given.Int(0));
    return {};
}

/// The same of a row, and of a column that can be edited.
template <auto Get>
QJsonValue AskOfRow(GridScript& script, const GridArguments& given) {
    const int row = given.Int(0);
    return script.Grid.HasRow(row) ? QJsonValue((script.Grid.*Get)(row)) : QJsonValue();
}

template <auto Set>
QJsonValue PutInRow(GridScript& script, const GridArguments& given) {
    (script.Grid.*Set)(given.Int(0), given.Int(1));
    return {};
}

/// An operation without a result: with nothing, with a number, with a text.
template <auto Work>
QJsonValue Do(GridScript& script, const GridArguments&) {
    Work(script.Grid);
    return {};
}

template <auto Work>
QJsonValue DoWithNumber(GridScript& script, const GridArguments& given) {
    Work(script.Grid, given.Int(0));
    return {};
}

template <auto Work>
QJsonValue DoWithText(GridScript& script, const GridArguments& given) {
    Work(script.Grid, given.Text(0));
    return {};
}

/// An operation whose result is a value.
template <auto Work>
QJsonValue Tell(GridScript& script, const GridArguments&) {
    return Work(script.Grid);
}

template <typename T>
QJsonValue OrNull(const std::optional<T>& result) {
    return result ? QJsonValue(*result) : QJsonValue();
}

QJsonValue Setup(GridScript& script, const GridArguments& given) {
    script.Grid = EditGridData({given.Int(0), given.Int(1), given.Int(2), given.Int(3)});
    script.Columns.Setup(script.Grid.Cols());
    return {};
}

QJsonValue CellText(GridScript& script, const GridArguments& given) {
    const bool isThere = script.Grid.HasRow(given.Int(0)) && script.Grid.HasCol(given.Int(1));
    return isThere ? QJsonValue(script.Grid.TextMatrix(given.Int(0), given.Int(1))) : QJsonValue();
}

QJsonValue SetMode(GridScript& script, const GridArguments& given) {
    if (given.Int(0) >= 0 && given.Int(0) <= 2) {
        script.Grid.Mode = static_cast<editor::SelectionMode>(given.Int(0));
    }
    return {};
}

QJsonValue RowText(GridScript& script, const GridArguments& given) {
    const int stopCol = given.Line.size() > 2 ? given.Int(1) : 0;
    return OrNull(editor::RowToStr(script.Grid, given.Int(0), stopCol));
}

QJsonValue Insert(GridScript& script, const GridArguments& given) {
    return OrNull(editor::InsertOneLine(script.Grid, given.Flag(0)));
}

QJsonValue Operate(GridScript& script, const GridArguments& given) {
    return OrNull(editor::RowOperation(script.Grid, given.Int(0)));
}

QJsonValue Add(GridScript& script, const GridArguments& given) {
    const bool hasPlace = given.Line.size() > 2;
    editor::AddItem(script.Grid, given.Text(0),
                    hasPlace ? std::optional(given.Int(1)) : std::nullopt);
    return {};
}

QJsonValue ChooserCaptions(GridScript&, const GridArguments& given) {
    QJsonArray captions;
    for (const editor::ColComboItem& item : editor::SetColComboOption(given.Text(0))) {
        captions += item.Caption;
    }
    return captions;
}

QJsonValue Total(GridScript& script, const GridArguments& given) {
    return editor::ColTotal(script.Grid, given.Int(0));
}

constexpr GridOperation Operations[] = {
    {"Setup", "iiii", Setup},
    {"Setup", "",
     [](GridScript& script, const GridArguments&) -> QJsonValue {
         script.Columns.Setup(script.Grid.Cols());
         return {};
     }},
    {"Rows", "", Ask<&EditGridData::Rows>},
    {"Rows", "i", Put<&EditGridData::SetRows>},
    {"Cols", "", Ask<&EditGridData::Cols>},
    {"Cols", "i", Put<&EditGridData::SetCols>},
    {"FixedRows", "", Ask<&EditGridData::FixedRows>},
    {"FixedRows", "i", Put<&EditGridData::SetFixedRows>},
    {"FixedCols", "", Ask<&EditGridData::FixedCols>},
    {"FixedCols", "i", Put<&EditGridData::SetFixedCols>},
    {"Row", "", Ask<&EditGridData::Row>},
    {"Row", "i", Put<&EditGridData::SetRow>},
    {"Col", "", Ask<&EditGridData::Col>},
    {"Col", "i", Put<&EditGridData::SetCol>},
    {"RowSel", "", Ask<&EditGridData::RowSel>},
    {"RowSel", "i", Put<&EditGridData::SetRowSel>},
    {"ColSel", "", Ask<&EditGridData::ColSel>},
    {"ColSel", "i", Put<&EditGridData::SetColSel>},
    {"SelectionMode", "",
     [](GridScript& script, const GridArguments&) -> QJsonValue {
         return static_cast<int>(script.Grid.Mode);
     }},
    {"SelectionMode", "i", SetMode},
    {"TextMatrix", "ii", CellText},
    {"TextMatrix", "iit",
     [](GridScript& script, const GridArguments& given) -> QJsonValue {
         script.Grid.SetTextMatrix(given.Int(0), given.Int(1), given.Text(2));
         return {};
     }},
    {"TextArray", "i",
     [](GridScript& script, const GridArguments& given) -> QJsonValue {
         return script.Grid.TextArray(given.Int(0));
     }},
    {"TextArray", "it",
     [](GridScript& script, const GridArguments& given) -> QJsonValue {
         script.Grid.SetTextArray(given.Int(0), given.Text(1));
         return {};
     }},
    {"RowData", "i", AskOfRow<&EditGridData::RowData>},
    {"RowData", "ii", PutInRow<&EditGridData::SetRowData>},
    {"RowHeight", "i", AskOfRow<&EditGridData::RowHeight>},
    {"RowHeight", "ii", PutInRow<&EditGridData::SetRowHeight>},
    {"SetRowHeight", "ii", PutInRow<&EditGridData::SetRowHeight>},
    {"RemoveItem", "i", Put<&EditGridData::RemoveItem>},
    {"GetGridClip", "", Ask<&EditGridData::Clip>},
    {"SetGridClip", "t",
     [](GridScript& script, const GridArguments& given) -> QJsonValue {
         script.Grid.SetClip(given.Text(0));
         return {};
     }},
    {"Grid2Str", "t",
     [](GridScript& script, const GridArguments& given) -> QJsonValue {
         return editor::Grid2Str(script.Grid, given.Text(0));
     }},
    {"Str2Gird", "t", DoWithText<editor::Str2Gird>},
    {"CurrentRowStr", "", Tell<editor::CurrentRowStr>},
    {"RowToStr", "i", RowText},
    {"RowToStr", "ii", RowText},
    {"StrToRow", "ti",
     [](GridScript& script, const GridArguments& given) -> QJsonValue {
         editor::StrToRow(script.Grid, given.Text(0), given.Int(1));
         return {};
     }},
    {"Clear", "", Do<editor::Clear>},
    {"GridClear", "", Do<editor::GridClear>},
    {"DeleteGridRows", "", Do<editor::DeleteGridRows>},
    {"Duplicate", "", Do<editor::Duplicate>},
    {"RefreshItemNumber", "", Do<editor::RefreshItemNumber>},
    {"ToggleRowStrikeThrough", "", Do<editor::ToggleRowStrikeThrough>},
    {"CompactColumn", "", Do<editor::CompactColumn>},
    {"SelectGridAll", "", Do<editor::SelectGridAll>},
    {"SelectGridNone", "", Do<editor::SelectGridNone>},
    {"ClearRow", "i", DoWithNumber<editor::ClearRow>},
    {"SelectOneRow", "i", DoWithNumber<editor::SelectOneRow>},
    {"Sort", "i", DoWithNumber<editor::Sort>},
    {"CopyRow", "ii",
     [](GridScript& script, const GridArguments& given) -> QJsonValue {
         editor::CopyRow(script.Grid, given.Int(0), given.Int(1));
         return {};
     }},
    {"InsertOneLine", "b", Insert},
    {"InsertOneLine", "bi", Insert},
    {"RowOperation", "i", Operate},
    {"RowOperation", "ib", Operate},
    {"AddItem", "t", Add},
    {"AddItem", "ti", Add},
    {"AddRowDetail", "t", DoWithText<editor::AddRowDetail>},
    {"RemoveItemByName", "t", DoWithText<editor::RemoveItemByName>},
    {"SetLastLineNumber", "t", DoWithText<editor::SetLastLineNumber>},
    {"SetLineNumber", "it",
     [](GridScript& script, const GridArguments& given) -> QJsonValue {
         editor::SetLineNumber(script.Grid, given.Int(0), given.Text(1));
         return {};
     }},
    {"SetRowStrikeThrough", "b",
     [](GridScript& script, const GridArguments& given) -> QJsonValue {
         editor::SetRowStrikeThrough(script.Grid, given.Flag(0));
         return {};
     }},
    {"IsRowStrikeThrough", "", Tell<editor::IsRowStrikeThrough>},
    {"GetHightLightValue", "", Tell<editor::GetHightLightValue>},
    {"GetSelRow", "", Ask<&EditGridData::RowSel>},
    {"LastEditRow", "",
     [](GridScript& script, const GridArguments&) -> QJsonValue {
         return script.Grid.LastEditRow;
     }},
    {"GetLastEditRow", "",
     [](GridScript& script, const GridArguments&) -> QJsonValue {
         return script.Grid.LastEditRow;
     }},
    {"LastEditRow", "i",
     [](GridScript& script, const GridArguments& given) -> QJsonValue {
         script.Grid.LastEditRow = given.Int(0);
         return {};
     }},
    {"SetLastEditRow", "i",
     [](GridScript& script, const GridArguments& given) -> QJsonValue {
         script.Grid.LastEditRow = given.Int(0);
         return {};
     }},
    {"LastLineNumber", "",
     [](GridScript& script, const GridArguments&) -> QJsonValue {
         return script.Grid.TextMatrix(script.Grid.LastEditRow, 0);
     }},
    {"ColTotal", "i", Total},
    {"SetColComboOption", "t", ChooserCaptions},
    {"SetCellCtl", "ii",
     [](GridScript& script, const GridArguments& given) -> QJsonValue {
         script.Columns.SetCellCtlID(given.Int(0), given.Int(1));
         return {};
     }},
    {"SetCellCtlID", "ii",
     [](GridScript& script, const GridArguments& given) -> QJsonValue {
         script.Columns.SetCellCtlID(given.Int(0), given.Int(1));
         return {};
     }},
    {"SetCellCtlVisible", "ib",
     [](GridScript& script, const GridArguments& given) -> QJsonValue {
         script.Columns.SetCellCtlVisible(given.Int(0), given.Flag(1));
         return {};
     }},
    {"SetColFormat", "t",
     [](GridScript& script, const GridArguments& given) -> QJsonValue {
         script.Columns.SetColFormat(given.Text(0));
         return {};
     }},
    {"MoveToNextCell", "",
     [](GridScript& script, const GridArguments&) -> QJsonValue {
         script.Editing.MoveToNextCell();
         return {};
     }},
};

}  // namespace

std::span<const GridOperation> GridOperations() {
    return Operations;
}

}  // namespace ctl
