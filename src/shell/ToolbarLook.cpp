#include "shell/ToolbarLook.h"

#include <map>

#include "foundation/Numbers.h"

using namespace Qt::StringLiterals;

namespace shell {

int ToolbarExtent(const QString& sizeName) {
    const int plain = sizeName.contains(u"Large"_s) ? 850 : 480;
    return sizeName.contains(u"Caption"_s) ? mduAPILib::RoundToInteger(plain * 1.73) : plain;
}

int ToolbarPictureSide(const QString& sizeName) {
    return sizeName.contains(u"Large Size"_s) ? 48 : 24;
}

std::optional<ToolbarPlace> ToolbarPosition(const QString& value) {
    static const std::map<QString, ToolbarPlace> places = {
        {u"Top"_s, {true, Align::Top, 1}},      {u"Bottom"_s, {true, Align::Bottom, 1}},
        {u"Left"_s, {true, Align::Left, 1}},    {u"Right"_s, {true, Align::Right, 1}},
        {u"None"_s, {false, Align::Unsaid, 0}}, {u"Hide"_s, {false, Align::Unsaid, 0}}};
    const auto found = places.find(value.section(u':', 0, 0).trimmed());
    if (found == places.end()) {
        return std::nullopt;
    }
    const bool hidden = value.contains(u':');
    return hidden ? ToolbarPlace{false, found->second.Align, 0} : found->second;
}

StatusBarPlace StatusBarPosition(const QString& value) {
    static const std::map<QString, StatusBarPlace> places = {{u"top"_s, {true, Align::Top}},
                                                             {u"left"_s, {true, Align::Left}},
                                                             {u"right"_s, {true, Align::Right}},
                                                             {u"no"_s, {false, Align::Unsaid}},
                                                             {u"none"_s, {false, Align::Unsaid}}};
    const auto found = places.find(value.trimmed().toLower());
    return found == places.end() ? StatusBarPlace{true, Align::Bottom} : found->second;
}

}  // namespace shell
