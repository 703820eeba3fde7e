#include "shell/FileList.h"

#include "foundation/FileHelpers.h"

using namespace Qt::StringLiterals;

namespace shell {

QStringList PropertyFileNames(const platform::Files& files, const QString& folder) {
    QStringList names;
    for (const QString& file : files.FileNames(folder)) {
        if (file.right(4).toLower() == u".ini"_s && file != u"Tempolark.ini"_s) {
            names += mduLib::StripIniExtension(file);
        }
    }
    names.sort(Qt::CaseInsensitive);
    return names;
}

void FillFileList(MenuArray& menu, const platform::Files& files, const QString& folder,
                  const QString& lastCaption, int maximum) {
    const QStringList names = PropertyFileNames(files, folder);
    int count = 0;
    for (const QString& name : names.first(std::min<qsizetype>(maximum, names.size()))) {
        menu.Load(++count) = {name, name, true, true, false};
    }
    if (count == 0) {
        menu(1) = {u"None"_s, u"None"_s, true, false, false};
        menu.UnloadAbove(1);
        return;
    }
    const bool more = names.size() > maximum;
    if (!lastCaption.isEmpty() && (more || lastCaption != u"More"_s)) {
        menu.Load(++count) = {lastCaption, {}, true, true, false};
    }
    menu.UnloadAbove(count);
}

}  // namespace shell
