#include "shell/ShellSettings.h"

#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "foundation/SavedMessage.h"
#include "foundation/SettingsFile.h"
#include "platform/Files.h"
#include "platform/WallClock.h"

using namespace Qt::StringLiterals;

namespace shell {

ShellSettings::ShellSettings(const Program& program, std::function<void(const QString&)> tell)
    : program_(program), tell_(std::move(tell)) {}

QString ShellSettings::Setting(const QString& name) const {
    return mduLib::GetProperty(name, properties_);
}

bool ShellSettings::Says(const QString& name) const {
    return mduUILib::YesNoToBool(Setting(name));
}

double ShellSettings::Number(const QString& name) const {
    return mduAPILib::Val(Setting(name));
}

void ShellSettings::TellBrokenSettings() const {
    const platform::Files& files = program_.Services.FileSystem;
    if (!mduMain::IsBrokenSettings(files, IniFile(), DefaultIniFile())) {
        return;
    }
    const QString kept = files.Read(IniFile())
                             ? u"kept as "_s + mduMain::NameToKeep(files, IniFile())
                             : u"left as it is"_s;
    tell_(u"%1 can't be read as settings; the defaults hold, and it is %2"_s.arg(IniFile(), kept));
}

void ShellSettings::ReadAgain() {
    const platform::Files& files = program_.Services.FileSystem;
    ClockProperties fresh;
    if (!mduMain::IsBrokenSettings(files, IniFile(), DefaultIniFile()) &&
        mduLib::ReadPropertyFile(files, IniFile(), fresh)) {
        properties_ = mduMain::ReadSettings(files, IniFile(), DefaultIniFile());
    }
}

void ShellSettings::Put(const QString& key, const QString& value) {
    mduLib::PutProperty(key, value, properties_);
}

bool ShellSettings::WriteSettings() {
    if (!mduMain::ReplaceSettings(program_.Services.FileSystem, properties_, IniFile(),
                                  DefaultIniFile())) {
        tell_(u"%1 can't be written"_s.arg(IniFile()));
        return false;
    }
    return true;
}

void ShellSettings::WriteSetting(const QString& key, const QString& value) {
    Put(key, value);
    WriteSettings();
}

void ShellSettings::SaveCentralSettings(const CentralLook& look) {
    SaveCentralLook(look, properties_);
    if (WriteSettings()) {
        TellSaved(u"the settings of Tempolark Central"_s);
    }
}

void ShellSettings::TellSaved(const QString& what) const {
    tell_(mduLib::SavedMessage(what, program_.Services.Clock.Now()));
}

}  // namespace shell
