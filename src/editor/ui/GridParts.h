#pragma once

#include "editor/CellEditing.h"
#include "editor/GridLook.h"
#include "editor/ui/CellLook.h"
#include "editor/ui/EditGridHost.h"

/// What the parts of `ctlEditGrid` work on. The grid owns it all and outlives its parts.
struct GridParts {
    editor::EditGridData& Data;
    editor::GridColumns& Columns;
    editor::CellEditing& Editing;
    editor::GridLook& Look;
    EditGridHost& Host;
    CellLooks& Looks;

    CellLook LookOf(int row, int col) const {
        return Looks.OfCell ? Looks.OfCell(row, col) : CellLook();
    }
    /// Whether a cell is a heading at the top or at the left.
    bool IsFixed(int row, int col) const {
        return row < Data.FixedRows() || col < Data.FixedCols();
    }
};
