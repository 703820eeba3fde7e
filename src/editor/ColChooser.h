#pragma once

#include <QString>
#include <vector>

#include "editor/EditGridData.h"

namespace editor {

/// One entry of the sort chooser over a column's header.
struct ColComboItem {
    int Number = 0;
    QString Caption;
    bool operator==(const ColComboItem&) const = default;
};

/// What a chosen entry asks of the window; what the data can do has been done.
enum class ColChoice { Nothing, FitColumns, Find };
/// Numbers of the two entries that don't sort. Those from 0 to 8 are the codes of `Sort`.
inline constexpr int FitColumnsOption = 9;
inline constexpr int FindOption = 10;

/// The entries whose numbers occur anywhere in @p options, in their order. "10" holds 0 and 1, too:
///
///     SetColComboOption("10")  // "Sort None", "Generic Ascending", "Find"
///     SetColComboOption("")    // none: a click on a header opens no chooser
std::vector<ColComboItem> SetColComboOption(const QString& options);

/// Runs an entry on the selection: sorts, or tells what is to be done. Other numbers do nothing.
ColChoice ChooseColOption(EditGridData& grid, int number);

}  // namespace editor
