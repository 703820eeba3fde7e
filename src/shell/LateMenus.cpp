#include "shell/LateMenus.h"

#include "foundation/FileHelpers.h"
#include "foundation/NamedValues.h"

using namespace Qt::StringLiterals;

namespace shell {

namespace {

void FillColours(MenuArray& menu, const QStringList& names) {
    int index = 0;
    for (const QString& name : names) {
        menu.Load(++index) = {name, name, true, true, false};
    }
}

void FillStyles(MenuArray& menu, const platform::Files& files, const QString& folder) {
    QStringList styles;
    for (const QString& file : files.FileNames(folder)) {
        if (file.right(4).toLower() == u".ini"_s) {
            styles += file;
        }
    }
    styles.sort(Qt::CaseInsensitive);
    int index = 0;
    for (const QString& file : styles) {
        menu.Load(++index) = {mduLib::StripIniExtension(file), folder + file, true, true, false};
    }
    menu.Load(++index) = {u"More"_s, {}, true, true, false};
}

}  // namespace

void FillLateMenus(MenuState& state, const platform::Files& files, const QString& stylesFolder) {
    const QStringList& colours = mduUILib::MenuColours();
    FillColours(state[u"BGColour"_s], colours + QStringList{u"Custom"_s});
    FillColours(state[u"ClockColours"_s], colours + QStringList{u"Transparent"_s, u"Custom"_s});
    FillStyles(state[u"ClockStyles"_s], files, stylesFolder);
}

}  // namespace shell
