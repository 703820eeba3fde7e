#include "editor/ColChooser.h"

#include "editor/GridSort.h"

using namespace Qt::StringLiterals;

namespace editor {

namespace {

constexpr QStringView Captions[] = {
    u"Sort None",
    u"Generic Ascending",
    u"Generic Descending",
    u"Numeric Ascending",
    u"Numeric Descending",
    u"No Case Asending",
    u"No Case Descending",
    u"String Ascending",
    u"String Descending",
    u"Auto Column Fit",
    u"Find",
};

}  // namespace

std::vector<ColComboItem> SetColComboOption(const QString& options) {
    std::vector<ColComboItem> items;
    for (int number = 0; number <= FindOption; ++number) {
        if (options.contains(QString::number(number))) {
            items.push_back({number, Captions[number].toString()});
        }
    }
    return items;
}

ColChoice ChooseColOption(EditGridData& grid, int number) {
    if (number == FitColumnsOption) {
        return ColChoice::FitColumns;
    }
    if (number == FindOption) {
        return ColChoice::Find;
    }
    Sort(grid, number);
    return ColChoice::Nothing;
}

}  // namespace editor
