#include "clock/FormMenuState.h"

#include <QSet>

#include "clock/ZoneOnClock.h"
#include "foundation/FileHelpers.h"
#include "foundation/FileMenu.h"
#include "foundation/MenuLists.h"
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

// What only holds ".ini", such as a copy with another ending, could not be chosen.
QStringList Files(const Program& program, const QString& folder, const QString& current) {
    const platform::Files& files = program.Services.FileSystem;
    const QStringList names = files.FileNames(folder);
    const QSet<QString> there(names.begin(), names.end());
    QStringList captions = mduUILib::FillFileMenu(files, folder, u".ini"_s, current, 0);
    captions.removeIf(
        [&](const QString& name) { return name != current && !there.contains(name + u".ini"_s); });
    return captions.mid(0, MostFiles);
}

// Its file may have gone since.
QString LastStyle(const Program& program, const ClockData& data) {
    const QString& name = data.Dial.LastStyle;
    const QString path = program.Module.Paths.StylesFolder + name + u".ini"_s;
    return mduLib::FileExists(program.Services.FileSystem, path) ? name : QString();
}

}  // namespace

QString RunName(const ClockData& data) {
    return u"Tempolark "_s + mduLib::FileBaseName(data.PropertyFileName, false);
}

QString ClockProgram(const PathTable& paths) {
    return paths.AppFolder + u"/Tempolark.exe"_s;
}

FormMenuState ReadFormMenuState(const Program& program, const ClockData& data,
                                const FormWindowFacts& window) {
    const PathTable& paths = program.Module.Paths;
    const platform::SettingsStore& settings = program.Services.Settings;
    const QString file = mduLib::FileBaseName(data.PropertyFileName, false);
    return {.ZoneFile = file,
            .AutoStarts = AutoStarts(program, data, window.IsMDIChild),
            .Enabled = window.IsEnabled,
            .Colour = mduUILib::ColourCaption(
                mduLib::GetProperty(u"Window Background Colour"_s, data.Properties()),
                program.Services.Random),
            .WindowState = window.WindowState,
            .Kind = data.IsCalculator() ? ClockKind::Calculator : data.Tag.Kind,
            .Zones = Files(program, paths.ZoneFileFolder, PresentZone(data)),
            .Styles = Files(program, paths.StylesFolder, LastStyle(program, data)),
            .ScreenSaverTimes = mduLib::ScreenSaverTimes(settings, paths.AppEXEName()),
            .ScreenSaverTime = mduLib::ScreenSaverTimeOut(settings),
            .HiddenParts = HiddenParts(data, window.Showable)};
}

}  // namespace clockcore
