#pragma once

#include <functional>

#include "editor/ui/GridView.h"

/// Keeps the current cell and the selection of the data and of the view the same, and tells the
/// host of changes.
class GridCursor final {
public:
    /// @param endEdit is called before the current cell changes by the view
    GridCursor(const GridParts& parts, GridModel& model, std::function<void()> endEdit)
        : parts_(parts), model_(model), endEdit_(std::move(endEdit)) {}

    /// The view has moved: the data follow.
    void TakeFrom(GridView& view);
    /// The data may have moved: the view follows, scrolled to the current cell if that has moved.
    void ShowIn(GridView& view);

private:
    /// The current cell and the other end of the selection.
    struct Place {
        int Row = -1, Col = -1, RowSel = -1, ColSel = -1;
        bool IsSameCell(const Place& other) const { return Row == other.Row && Col == other.Col; }
        bool operator==(const Place&) const = default;
    };

    Place InData() const;
    Place InView(GridView& view) const;
    void Put(const Place& place);
    void Tell(const Place& before);

    const GridParts& parts_;
    GridModel& model_;
    std::function<void()> endEdit_;
    Place told_;
    bool moves_ = false;  ///< the view is being moved to where the data are
};
