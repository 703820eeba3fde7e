#include "clock/FormMenuState.h"

#include "foundation/FileHelpers.h"
#include "foundation/FileMenu.h"
#include "foundation/NamedValues.h"
#include "foundation/PropertyLookup.h"
#include "foundation/SystemSettings.h"

using namespace Qt::StringLiterals;

namespace clockcore {

namespace {

constexpr int MostFiles = 10;

// The list tells a name, or nothing for "no"; a missing value reads "0" elsewhere.
bool AutoStarts(const Program& program, const ClockData& data, bool isMDIChild) {
    if (!isMDIChild) {
        return mduLib::IsInRunKey(program.Services.Settings, RunName(data));
    }
    const QString value = mduLib::GetPropertyRaw(mduLib::FileBaseName(data.PropertyFileName, false),
                                                 program.Module.AutoStartList);
    return !value.isEmpty() && value != u"0"_s;
}

// A window that is see-through holds a special number in the place of its colour.
QString PresentColour(const ClockData& data) {
    const QString text = mduLib::GetProperty(u"Window Background Colour"_s, data.Properties());
    return mduUILib::ColourWord(text) == u"transparent"_s
               ? mduUILib::ColourName(mduUILib::TransparentWindow)
               : text;
}

QStringList Files(const Program& program, const QString& folder, const QString& current) {
    return mduUILib::FillFileMenu(program.Services.FileSystem, folder, u".ini"_s, current,
                                  MostFiles);
}

}  // namespace

QString RunName(const ClockData& data) {
    return u"Tempolark "_s + mduLib::FileBaseName(data.PropertyFileName, false);
}

FormMenuState ReadFormMenuState(const Program& program, const ClockData& data,
                                const FormWindowFacts& window) {
    const PathTable& paths = program.Module.Paths;
    const platform::SettingsStore& settings = program.Services.Settings;
    const QString file = mduLib::FileBaseName(data.PropertyFileName, false);
    const QString zone = data.TakenZone.isEmpty() ? file : data.TakenZone;
    return {.ZoneFile = file,
            .AutoStarts = AutoStarts(program, data, window.IsMDIChild),
            .Enabled = window.IsEnabled,
            .Colour = PresentColour(data),
            .WindowState = window.WindowState,
            .Kind = data.IsCalculator() ? ClockKind::Calculator : data.Tag.Kind,
            .Zones = Files(program, paths.ZoneFileFolder, zone),
            .Styles = Files(program, paths.StylesFolder, data.Dial.LastStyle),
            .ScreenSaverTimes = mduLib::ScreenSaverTimes(settings, paths.AppEXEName()),
            .ScreenSaverTime = mduLib::ScreenSaverTimeOut(settings),
            .HiddenParts = HiddenParts(data, window.Showable)};
}

}  // namespace clockcore
