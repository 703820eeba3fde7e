#include "foundation/SystemSettings.h"

#include "foundation/Numbers.h"
#include "platform/SettingsStore.h"

using namespace Qt::StringLiterals;

namespace mduLib {

namespace {

const QString DesktopKey = u"Control Panel\\Desktop"_s;
const QString RunKey = u"Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s;
const QString AgentKey = u"TempolarkAgent/Setting"_s;
const QString FolderName = u"AppFolder"_s;

constexpr int Step = 10;

}  // namespace

QString CurrentScreenSaver(const platform::SettingsStore& settings) {
    return settings.Value(DesktopKey, u"SCRNSAVE.EXE"_s).toString();
}

QString ScreenSaverTimeOut(const platform::SettingsStore& settings) {
    return settings.Value(DesktopKey, u"ScreenSaveTimeOut"_s).toString();
}

QStringList ScreenSaverTimes(const platform::SettingsStore& settings, const QString& appPath) {
    if (CurrentScreenSaver(settings) == appPath) {
        return {u"Disabled"_s};
    }
    QStringList captions;
    for (int i = 1; i <= MostScreenSaverTimes; ++i) {
        captions += QString::number(i * Step);
    }
    return captions;
}

bool SetScreenSaver(platform::SettingsStore& settings, const ScreenSaver& saver) {
    const std::pair<QString, QVariant> values[] = {{u"SCRNSAVE.EXE"_s, saver.Path},
                                                   {u"ScreenSaveTimeOut"_s, saver.TimeOut},
                                                   {u"ScreenSaveActive"_s, 1},
                                                   {u"ScreenSaveTimeZone"_s, saver.ZoneName},
                                                   {u"ScreenSaveWithLock"_s, saver.WithLock}};
    bool kept = true;
    for (const auto& [name, value] : values) {
        kept = settings.SetValue(DesktopKey, name, value) && kept;
    }
    return kept;
}

bool ChooseScreenSaverTime(platform::SettingsStore& settings, const QString& caption,
                           const QString& appPath) {
    if (caption == u"Disabled"_s) {
        return SetScreenSaver(settings, {});
    }
    const int timeOut = mduAPILib::ToInt16(mduAPILib::Val(caption));
    return SetScreenSaver(settings, {.Path = appPath, .TimeOut = timeOut});
}

bool IsInRunKey(const platform::SettingsStore& settings, const QString& name) {
    return !settings.Value(RunKey, name).toString().isEmpty();
}

bool AddToRunKey(platform::SettingsStore& settings, const QString& name,
                 const QString& commandLine) {
    return settings.SetValue(RunKey, name, commandLine);
}

bool RemoveFromRunKey(platform::SettingsStore& settings, const QString& name) {
    return settings.SetValue(RunKey, name, QString());
}

void RecordProgramFolder(platform::SettingsStore& settings, const QString& appFolder) {
    if (settings.Value(AgentKey, FolderName).toString() != appFolder) {
        settings.SetValue(AgentKey, FolderName, appFolder);
    }
}

}  // namespace mduLib
