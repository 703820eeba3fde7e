#include "foundation/HelpContexts.h"

namespace HelpContext {

namespace {

struct Page {
    QStringView Window;
    int Context;
};

constexpr Page Pages[] = {
    {u"frmTimeZones", TimeZones}, {u"frmShortcuts", Shortcuts}, {u"frmProperties", Properties}};

}  // namespace

int OfWindow(const QString& name) {
    for (const Page& page : Pages) {
        if (page.Window == name) {
            return page.Context;
        }
    }
    return 0;
}

}  // namespace HelpContext
