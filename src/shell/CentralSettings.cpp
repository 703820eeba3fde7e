#include "shell/CentralSettings.h"

#include "foundation/NamedValues.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;

namespace shell {

void SaveToolbarLook(const CentralLook& look, ClockProperties& properties) {
    mduLib::PutProperty(u"Tool Bar"_s,
                        mduUILib::ToolbarPositionName(look.ToolbarAlign, look.ToolbarVisible),
                        properties);
    mduLib::PutProperty(u"Toolbar Size"_s, look.ToolbarSize, properties);
}

void SaveCentralLook(const CentralLook& look, ClockProperties& properties) {
    const auto put = [&properties](const QString& key, const QString& value) {
        mduLib::PutProperty(key, value, properties);
    };
    put(u"Window Background Colour"_s, mduUILib::ColourName(look.BackColour));
    SaveToolbarLook(look, properties);
    put(u"Status Bar"_s, mduUILib::BoolToYesNo(look.StatusBarVisible));
    put(u"Window State"_s, mduUILib::WindowStateName(look.WindowState));
}

}  // namespace shell
