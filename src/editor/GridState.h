#pragma once

#include <QVariantMap>

#include "editor/CellEditing.h"
#include "editor/GridLook.h"

namespace editor {

/// A grid as it was designed: its size, what its columns are edited with, its switches and its
/// looks, but neither texts nor rows. It goes into a property bag and comes back.
struct GridState {
    EditGridData& Data;
    GridColumns& Columns;
    CellEditing& Editing;
    GridLook& Look;

    QVariantMap Save() const;
    /// What the bag doesn't hold stays as it is; a size that is not possible is refused.
    void Load(const QVariantMap& bag);
};

}  // namespace editor
