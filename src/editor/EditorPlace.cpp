#include "editor/EditorPlace.h"

#include <algorithm>

namespace editor {

namespace {

constexpr double Inset = 10;

}  // namespace

QRectF PlaceCellEditor(EditorKind kind, const QRectF& cell) {
    if (kind == EditorKind::Combo || kind == EditorKind::ComboEdit) {
        return {cell.left() - Inset, cell.top(), cell.width(), ListHeight};
    }
    return {cell.left() + Inset, cell.top() + Inset, std::max(cell.width() - Inset, 0.0),
            std::max(cell.height(), LeastEditorHeight)};
}

QRectF PlaceColChooser(const QRectF& heading) {
    return {heading.topLeft(),
            QSizeF(heading.width(), std::max(heading.height(), LeastEditorHeight))};
}

}  // namespace editor
