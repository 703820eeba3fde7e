#pragma once

#include <QJsonArray>
#include <optional>

#include "editor/CellEditing.h"
#include "editor/GridLook.h"

namespace ctl {

/// A grid that is worked by the lines of a script, each an operation's name and its arguments.
///
///     ["Setup",3,2,1,0]        a grid of three rows and two columns, a heading among them
///     ["TextMatrix",1,1,"x"]   sets a cell
///     ["TextMatrix",1,1]       "x"
class GridScript {
public:
    explicit GridScript(platform::WallClock& clock) : Editing(Grid, Columns, clock) {}
    Q_DISABLE_COPY_MOVE(GridScript)

    /// Runs one line. @return its result, null where there is none; nothing where no operation of
    /// that name takes such arguments
    std::optional<QJsonValue> Run(const QJsonArray& line);

    editor::EditGridData Grid;
    editor::GridColumns Columns;
    editor::GridLook Look;
    editor::CellEditing Editing;
};

}  // namespace ctl
