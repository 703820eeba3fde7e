#include "shell/UserLists.h"

#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "shell/AutoStart.h"

using namespace Qt::StringLiterals;

namespace shell {

UserLists::UserLists(const Program& program, std::function<void(const QString&)> tell)
    : program_(program), tell_(std::move(tell)) {}

void UserLists::TellUnreadableLists() const {
    const PathTable& paths = program_.Module.Paths;
    for (const QString& file : {paths.AutoStartFile, paths.OpenedFormsFile()}) {
        if (!mduLib::MayRewrite(program_.Services.FileSystem, file)) {
            tell_(u"%1 can't be read as a property file; it is left as it is"_s.arg(file));
        }
    }
}

void UserLists::LoadOpenedForms() {
    opened_.LoadOpenedForms(program_.Services.FileSystem, program_.Module.Paths.OpenedFormsFile());
}

bool UserLists::SaveOpenedForms() const {
    const QString file = program_.Module.Paths.OpenedFormsFile();
    const bool saved = opened_.SaveOpenedForms(program_.Services.FileSystem, file);
    if (!saved) {
        TellUnwritten(file);
    }
    return saved;
}

void UserLists::FillLastOpenedMenu(MenuArray& fileItems) const {
    opened_.FillLastOpenedMenu(fileItems, program_.Services.FileSystem, program_.Module.Paths);
}

void UserLists::SaveAutoStartList() const {
    const QString& file = program_.Module.Paths.AutoStartFile;
    if (!mduLib::RewritePropertyFile(program_.Services.FileSystem, program_.Module.AutoStartList,
                                     file)) {
        TellUnwritten(file);
    }
}

// Raw: a comma in a name begins no list of choices.
void UserLists::SetAutoStart(const QString& name, bool on) const {
    mduLib::PutPropertyRaw(name, on ? name : QString(), program_.Module.AutoStartList);
    SaveAutoStartList();
}

void UserLists::ForgetAutoStart(const QString& name) const {
    if (!mduLib::GetPropertyRaw(name, program_.Module.AutoStartList).isEmpty()) {
        SetAutoStartEntry(program_.Module.AutoStartList, {}, name, true);
        SaveAutoStartList();
    }
}

void UserLists::TellUnwritten(const QString& file) const {
    tell_(u"%1 can't be written"_s.arg(file));
}

}  // namespace shell
