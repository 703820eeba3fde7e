#include "editor/GridSort.h"

#include <algorithm>
#include <numeric>

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

/// Sorts the places in @p rows by merging. The generic order may run in a circle ("9", "10", "1a"),
/// which the library's sorts don't allow.
void MergeSort(std::span<int> places, const std::vector<SortedRow>& rows, int code) {
    if (places.size() < 2) {
        return;
    }
    const std::size_t middle = places.size() / 2;
    MergeSort(places.first(middle), rows, code);
    MergeSort(places.subspan(middle), rows, code);
    const std::vector<int> halves(places.begin(), places.end());
    std::size_t left = 0;
    std::size_t right = middle;
    const auto row = [&](std::size_t half) -> const SortedRow& {
        return rows[static_cast<std::size_t>(halves[half])];
    };
    for (int& place : places) {
        const bool takesRight =
            left == middle || (right < halves.size() && IsOutOfOrder(row(left), row(right), code));
        place = halves[takesRight ? right++ : left++];
    }
}

/// The rows from @p first to @p last as they come to lie.
std::vector<int> SortedOrder(const EditGridData& grid, int first, int last, int code) {
    std::vector<SortedRow> used;
    std::vector<int> empty;
    for (int row = first; row <= last; ++row) {
        if (RowHasText(grid, row)) {
            used.push_back(KeysOf(grid, row, grid.Selection()));
        } else {
            empty.push_back(row);
        }
    }
    std::vector<int> order(used.size());
    std::iota(order.begin(), order.end(), 0);
    MergeSort(order, used, code);
    for (int& place : order) {
        place = used[static_cast<std::size_t>(place)].Row;
    }
    order.insert(order.end(), empty.begin(), empty.end());
    return order;
}

}  // namespace

bool Sort(EditGridData& grid, int code) {
    if (code < 0 || code > LastCode) {
        return false;
    }
    const CellBlock block = grid.Selection();
    const bool isBlock = grid.Row() != grid.RowSel();
    const int first = std::max(isBlock ? block.Top : 0, grid.FixedRows());
    const int last = isBlock ? block.Bottom : grid.Rows() - 1;
    if (code == 0 || first > last) {
        return true;
    }
    grid.Reorder(first, SortedOrder(grid, first, last, code));
    return true;
}

}  // namespace editor
