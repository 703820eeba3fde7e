// How a clock's look gets into a file.
#include "clock/ClockLook.h"
#include "foundation/FileHelpers.h"
#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "foundation/SavedMessage.h"
#include "platform/WallClock.h"

using namespace Qt::StringLiterals;

namespace clockcore {

// "Clock Special" and all that was chosen by name is in the properties already; places and fonts
// may have been changed on the face itself. Behind painted numbers twelve o'clock's label is a mere
// target, and its font nobody's.
void ClockLook::StoreFontState() {
    ClockProperties& properties = data_.EditProperties();
    const mduUILib::Control& location = controls_.lblLocation(1);
    const double ratio = parts_.Screen.DevicePixelRatio();
    const auto storePlace = [&](const QString& key, float place) {
        if (mduAPILib::Val(mduLib::GetProperty(key, properties)) != -1) {
            const double logical = static_cast<double>(place) / ratio;
            mduLib::PutProperty(key, mduAPILib::SingleText(static_cast<float>(logical)),
                                properties);
        }
    };
    if (location.Visible) {
        storePlace(u"Time Zone Name Left"_s, location.Left);
        storePlace(u"Time Zone Name Top"_s, location.Top);
    }
    const QString numberFont = controls_.lblHour(60).Font.family();
    const bool hasCaptions = data_.IsAnalogue() && !parts_.Dial.NumbersArePainted();
    if (hasCaptions && controls_.lblHour(60).Visible && !numberFont.isEmpty()) {
        mduLib::PutProperty(u"Hour Number Font"_s, numberFont, properties);
    }
}

void ClockLook::StoreWindow(ClockProperties& properties) const {
    mduLib::PutProperty(u"Window State"_s,
                        mduUILib::WindowStateName(parts_.Placement.WindowState()), properties);
    if (const std::optional<QRectF> place = parts_.Placement.PlaceToStore()) {
        for (const auto& [name, value] : PlaceValues(*place)) {
            mduLib::PutProperty(name, value, properties);
        }
    }
}

void ClockLook::SaveCurrentStyle() {
    EndPreview();
    program_.Module.Paths.CurrentPropertyFile = data_.PropertyFileName;
    if (!files_.MayWrite()) {
        parts_.Screen.ShowStatus(data_.PropertyFileName +
                                 u" can't be read as a property file; it is left as it is"_s);
        return;
    }
    StoreWindow(data_.EditProperties());
    StoreFontState();
    if (!mduLib::WritePropertyFile(program_.Services.FileSystem, data_.Properties(),
                                   data_.PropertyFileName)) {
        parts_.Screen.ShowStatus(data_.PropertyFileName + u" can't be written"_s);
        return;
    }
    files_.TellPropertyWindows();
    const std::optional<QRectF> place = parts_.Placement.PlaceToStore();
    if (!place || files_.SavePosition(*place)) {
        TellSaved(u"the style of "_s + parts_.Placement.Caption());
    }
}

void ClockLook::SaveStyle(const QString& chosen) {
    EndPreview();
    const QString path = StyleFiles::SavePath(chosen);
    if (styles_.Write(path, data_.Properties(), parts_.Placement.PlaceToStore())) {
        TellSaved(u"the style "_s + mduLib::FileBaseName(path, false));
    } else {
        parts_.Screen.ShowStatus(path + u" can't be written"_s);
    }
}

void ClockLook::TellSaved(const QString& what) {
    parts_.Screen.ShowStatus(mduLib::SavedMessage(what, program_.Services.Clock.Now()));
}

}  // namespace clockcore
