#include "editor/PropertyView.h"

#include <algorithm>

#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;

namespace editor {

namespace {

constexpr int Category = 1;
constexpr int Key = 2;
constexpr int Ascending = 1;
constexpr int Descending = 2;

bool Holds(const ClockProperty& record, const QString& sentence, const QString& word) {
    for (const QString* text : {&record.Name, &record.Category, &record.Value, &sentence}) {
        if (text->contains(word, Qt::CaseInsensitive)) {
            return true;
        }
    }
    return false;
}

}  // namespace

void PropertyView::Sort(int column, int order) {
    column_ = column;
    order_ = order;
}

void PropertyView::SortByTag(const QString& tag) {
    const QStringList parts = tag.split(u',');
    bool isColumn = false;
    bool isOrder = false;
    const int column = parts.value(0).toInt(&isColumn);
    const int order = parts.value(1).toInt(&isOrder);
    const bool isTag = parts.size() == 2 && isColumn && isOrder;
    Sort(isTag ? column : Key, isTag ? order : 0);
}

QString PropertyView::Tag() const {
    return u"%1,%2"_s.arg(column_).arg(order_);
}

QString PropertyView::TagOfClick(int gridColumn) const {
    const int column = gridColumn + Key;
    const bool isAscending = column == column_ && order_ == Ascending;
    return u"%1,%2"_s.arg(column).arg(isAscending ? Descending : Ascending);
}

std::optional<PropertyView::SortMark> PropertyView::Mark() const {
    const bool isSorted = order_ == Ascending || order_ == Descending;
    return isSorted && column_ >= Key ? std::optional(SortMark{column_ - Key, order_ == Ascending})
                                      : std::nullopt;
}

void PropertyView::SetFilter(const QString& words) {
    words_ = words.simplified().split(u' ', Qt::SkipEmptyParts);
}

std::vector<int> PropertyView::Records(const ClockProperties& properties,
                                       const KeyNotes& notes) const {
    std::vector<int> records = mduLib::SortPropertyRows(properties, column_, order_);
    if (IsFiltered()) {
        std::erase_if(records, [&](int record) {
            const QString sentence = notes.Of(properties[record].Name);
            return !std::all_of(words_.begin(), words_.end(), [&](const QString& word) {
                return Holds(properties[record], sentence, word);
            });
        });
    }
    return records;
}

QString PropertyView::HeadingOver(const std::vector<int>& records, int entry,
                                  const ClockProperties& properties) const {
    const bool isSorted = column_ == Category && (order_ == Ascending || order_ == Descending);
    if (!isSorted || entry < 0 || entry >= static_cast<int>(records.size())) {
        return {};
    }
    const auto category = [&](int place) {
        return properties[records[static_cast<std::size_t>(place)]].Category;
    };
    return entry > 0 && category(entry - 1) == category(entry) ? QString() : category(entry);
}

}  // namespace editor
