#pragma once

#include <QStringList>
#include <optional>
#include <vector>

#include "editor/KeyNotes.h"
#include "foundation/ClockProperty.h"

namespace editor {

/// Which records a window of properties shows, and in what order.
class PropertyView {
public:
    /// @p column 1 category, 2 key, 3 value; @p order 0 of the file, 1 ascending, 2 descending
    void Sort(int column, int order);
    /// The same from the text of `Tag`; any other text than two numbers is "2,0".
    void SortByTag(const QString& tag);
    /// "2,0" for key and order of the file.
    QString Tag() const;

    /// The `Tag` that a click on the heading of a column of the grid asks for (0 key, 1 value):
    /// ascending, then descending, then ascending again.
    QString TagOfClick(int gridColumn) const;
    /// The column of the grid that the records are sorted by.
    struct SortMark {
        int Column = 0;
        bool IsAscending = true;
    };
    std::optional<SortMark> Mark() const;

    /// Words of which each must occur, letter case aside, in a record's category, key, value,
    /// choices or sentence. "hand colour" finds "Hour Hand Colour". No word shows all.
    void SetFilter(const QString& words);
    bool IsFiltered() const { return !words_.isEmpty(); }

    /// The numbers of the records, without those that have no key.
    std::vector<int> Records(const ClockProperties& properties, const KeyNotes& notes) const;

    /// The category that stands as a heading over an entry of such a list: that of the first
    /// record, and of each that follows one of another category, in a list sorted by category.
    /// Empty for any other entry.
    QString HeadingOver(const std::vector<int>& records, int entry,
                        const ClockProperties& properties) const;

private:
    int column_ = 2;
    int order_ = 0;
    QStringList words_;
};

}  // namespace editor
