#include "editor/GridSort.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <span>

#include "editor/GridRows.h"
#include "foundation/Numbers.h"

namespace editor {

namespace {

struct SortKey {
    QString Text;
    bool IsNumber = false;
    double Number = 0;
};

struct SortedRow {
    int Row = 0;
    std::vector<SortKey> Keys;  ///< one for each key column
};

int Sign(double first, double second) {
    return first < second ? -1 : first > second ? 1 : 0;
}

int CompareNumbers(const SortKey& first, const SortKey& second) {
    return Sign(first.Number, second.Number);
}

int CompareNoCase(const SortKey& first, const SortKey& second) {
    return first.Text.compare(second.Text, Qt::CaseInsensitive);
}

int CompareTexts(const SortKey& first, const SortKey& second) {
    return first.Text.compare(second.Text);
}

int CompareGeneric(const SortKey& first, const SortKey& second) {
    return first.IsNumber && second.IsNumber ? CompareNumbers(first, second)
                                             : CompareNoCase(first, second);
}

using Compare = int (*)(const SortKey&, const SortKey&);
constexpr Compare Comparers[] = {CompareGeneric, CompareNumbers, CompareNoCase, CompareTexts};
constexpr int LastCode = 8;

SortedRow KeysOf(const EditGridData& grid, int row, const CellBlock& block) {
    SortedRow sorted{row, {}};
    for (int col = block.Left; col <= block.Right; ++col) {
        const QString text = grid.TextMatrix(row, col);
        sorted.Keys.push_back({text, mduAPILib::IsNumeric(text), mduAPILib::Val(text)});
    }
    return sorted;
}

/// Whether @p second comes strictly before @p first.
bool IsOutOfOrder(const SortedRow& first, const SortedRow& second, int code) {
    const Compare compare = Comparers[(code - 1) / 2];
    for (std::size_t key = 0; key < first.Keys.size(); ++key) {
        const int order = compare(first.Keys[key], second.Keys[key]);
        if (order != 0) {
            return code % 2 == 1 ? order > 0 : order < 0;
        }
    }
    return false;
}

/// Tells whether the second of two places comes strictly before the first.
using OutOfOrder = std::function<bool(int first, int second)>;

/// Sorts places by merging. An order may run in a circle ("9", "10", "1a" in the generic one),
/// which the library's sorts don't allow.
void MergeSort(std::span<int> places, const OutOfOrder& isOutOfOrder) {
    if (places.size() < 2) {
        return;
    }
    const std::size_t middle = places.size() / 2;
    MergeSort(places.first(middle), isOutOfOrder);
    MergeSort(places.subspan(middle), isOutOfOrder);
    const std::vector<int> halves(places.begin(), places.end());
    std::size_t left = 0;
    std::size_t right = middle;
    for (int& place : places) {
        const bool takesRight =
            left == middle || (right < halves.size() && isOutOfOrder(halves[left], halves[right]));
        place = halves[takesRight ? right++ : left++];
    }
}

/// Rows with text, and those without, which stay behind them.
struct RowsToSort {
    std::vector<int> Used, Empty;
    int First = 0;

    void PutInto(EditGridData& grid) {
        Used.insert(Used.end(), Empty.begin(), Empty.end());
        grid.Reorder(First, Used);
    }
};

/// The rows of a selection of several, else all that are not headings.
RowsToSort RowsOf(const EditGridData& grid) {
    const CellBlock block = grid.Selection();
    const bool isBlock = grid.Row() != grid.RowSel();
    RowsToSort rows;
    rows.First = std::max(isBlock ? block.Top : 0, grid.FixedRows());
    const int last = isBlock ? block.Bottom : grid.Rows() - 1;
    for (int row = rows.First; row <= last; ++row) {
        (RowHasText(grid, row) ? rows.Used : rows.Empty).push_back(row);
    }
    return rows;
}

}  // namespace

bool Sort(EditGridData& grid, int code) {
    if (code < 0 || code > LastCode) {
        return false;
    }
    RowsToSort rows = RowsOf(grid);
    if (code == 0 || rows.Used.empty()) {
        return true;
    }
    std::vector<SortedRow> keys;
    for (const int row : rows.Used) {
        keys.push_back(KeysOf(grid, row, grid.Selection()));
    }
    std::vector<int> places(keys.size());
    std::iota(places.begin(), places.end(), 0);
    const auto key = [&keys](int place) -> const SortedRow& {
        return keys[static_cast<std::size_t>(place)];
    };
    MergeSort(places,
              [&](int first, int second) { return IsOutOfOrder(key(first), key(second), code); });
    for (int& place : places) {
        place = key(place).Row;
    }
    rows.Used = places;
    rows.PutInto(grid);
    return true;
}

void SortBy(EditGridData& grid, const std::function<int(int, int)>& compare) {
    RowsToSort rows = RowsOf(grid);
    MergeSort(rows.Used, [&compare](int first, int second) { return compare(first, second) > 0; });
    rows.PutInto(grid);
}

}  // namespace editor
