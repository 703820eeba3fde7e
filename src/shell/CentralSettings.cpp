#include "shell/CentralSettings.h"

#include "foundation/NamedValues.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;

namespace shell {

void SaveCentralLook(const CentralLook& look, ClockProperties& properties) {
    const auto put = [&properties](const QString& key, const QString& value) {
        mduLib::PutProperty(key, value, properties);
    };
    put(u"Window Background Colour"_s, mduUILib::ColourName(look.BackColour));
    put(u"Tool Bar"_s, mduUILib::ToolbarPositionName(look.ToolbarAlign, look.ToolbarVisible));
    put(u"Toolbar Size"_s, look.ToolbarSize);
    put(u"Status Bar"_s, mduUILib::BoolToYesNo(look.StatusBarVisible));
    put(u"Window State"_s, mduUILib::WindowStateName(look.WindowState));
}

}  // namespace shell
