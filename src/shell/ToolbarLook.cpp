#include "shell/ToolbarLook.h"

#include "foundation/Numbers.h"
#include "foundation/WordTable.h"

using namespace Qt::StringLiterals;

namespace shell {

namespace {

constexpr mduUILib::WordTable<ToolbarPlace, 6> ToolbarPlaces = {
    {{{"Top"_L1, {true, Align::Top, 1}},
      {"Bottom"_L1, {true, Align::Bottom, 1}},
      {"Left"_L1, {true, Align::Left, 1}},
      {"Right"_L1, {true, Align::Right, 1}},
      {"None"_L1, {false, Align::Unsaid, 0}},
      {"Hide"_L1, {false, Align::Unsaid, 0}}}}};

constexpr mduUILib::WordTable<StatusBarPlace, 5> StatusBarPlaces = {
    {{{"top"_L1, {true, Align::Top}},
      {"left"_L1, {true, Align::Left}},
      {"right"_L1, {true, Align::Right}},
      {"no"_L1, {false, Align::Unsaid}},
      {"none"_L1, {false, Align::Unsaid}}}}};

}  // namespace

int ToolbarExtent(const QString& sizeName) {
    const int plain = sizeName.contains(u"Large"_s) ? 850 : 480;
    return sizeName.contains(u"Caption"_s) ? mduAPILib::RoundToInteger(plain * 1.73) : plain;
}

int ToolbarPictureSide(const QString& sizeName) {
    return sizeName.contains(u"Large Size"_s) ? 48 : 24;
}

std::optional<ToolbarPlace> ToolbarPosition(const QString& value) {
    std::optional<ToolbarPlace> place = ToolbarPlaces.Find(value.section(u':', 0, 0));
    if (place && value.contains(u':')) {
        place->Visible = false;
        place->Border = 0;
    }
    return place;
}

QStringList ToolbarPositionNames() {
    return ToolbarPlaces.Words();
}

StatusBarPlace StatusBarPosition(const QString& value) {
    return StatusBarPlaces.Find(value.toLower()).value_or(StatusBarPlace{true, Align::Bottom});
}

}  // namespace shell
