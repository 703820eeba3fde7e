#include "shell/ToolbarLook.h"

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

ToolbarPlace ToolbarPosition(const QString& value) {
    if (value.contains(u':')) {
        return {false, ToolbarPosition(value.section(u':', 0, 0)).Align, 0};
    }
    const QString name = value.trimmed();
    if (name == u"Top"_s) {
        return {true, Align::Top, 1};
    }
    if (name == u"Bottom"_s) {
        return {true, Align::Bottom, 1};
    }
    if (name == u"Left"_s) {
        return {true, Align::Left, 1};
    }
    if (name == u"Right"_s) {
        return {true, Align::Right, 1};
    }
    return {};
}

StatusBarPlace StatusBarPosition(const QString& value) {
    const QString name = value.trimmed();
    if (name == u"Top"_s) {
        return {true, Align::Top};
    }
    if (name == u"Yes"_s) {
        return {true, Align::Bottom};
    }
    if (name == u"Left"_s) {
        return {true, Align::Left};
    }
    if (name == u"Right"_s) {
        return {true, Align::Right};
    }
    return {};
}

}  // namespace shell
