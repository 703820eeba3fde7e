#include "shell/ShortcutRows.h"

#include "editor/GridRows.h"
#include "foundation/Shortcuts.h"
#include "foundation/TextHelpers.h"

using namespace Qt::StringLiterals;

namespace shell {

namespace {

constexpr int FirstCode = 32;
constexpr int LastCode = 126;
constexpr int F2 = 113;
constexpr int F12 = 123;

/// Whether the text of a key, once it stands in the list, finds that key.
bool BringsBack(const QString& keyText, int code, int shift) {
    ClockProperties alone;
    alone[1] = {{}, u"command"_s, keyText};
    return !mduUILib::MatchShortcut(alone, code, shift).isEmpty();
}

}  // namespace

void FillShortcutGrid(const ClockProperties& shortcuts, editor::EditGridData& grid) {
    editor::Clear(grid);
    grid.SetTextMatrix(0, 0, u"Shortcut"_s);
    grid.SetTextMatrix(0, 1, u"Value"_s);
    int last = 0;
    for (int record = 1; record <= shortcuts.UpperBound(); ++record) {
        if (shortcuts[record].Name.isEmpty()) {
            continue;
        }
        grid.SetRows(std::max(grid.Rows(), ++last + 1));
        grid.SetTextMatrix(last, 0, shortcuts[record].Name);
        grid.SetTextMatrix(last, 1, mduLib::RowFirstField(record, shortcuts));
        grid.SetRowData(last, record);
    }
    grid.SetRows(std::max(last, 1) + 1);
}

int FindKeyRow(const editor::EditGridData& grid, const QString& keyText) {
    for (int row = 1; row < grid.Rows() && !grid.TextMatrix(row, 0).isEmpty(); ++row) {
        if (grid.TextMatrix(row, 1) == keyText) {
            return row;
        }
    }
    return 0;
}

bool IsReservedKey(const QString& /*keyText*/) {
    return false;
}

QString RecordedKey(const editor::EditGridData& grid, int row, int code, int shift) {
    if (code < FirstCode || code > LastCode) {
        return {};
    }
    const bool mayBeAlone = code >= F2 && code <= F12;
    const QString text = mduUILib::KeyText(code, shift);
    if ((!mayBeAlone && shift == 0) || !BringsBack(text, code, shift)) {
        return InvalidKey;
    }
    const int holder = FindKeyRow(grid, text);
    const bool isTaken = holder != 0 && holder != row;
    return isTaken || IsReservedKey(text) ? UsedKey : text;
}

}  // namespace shell
