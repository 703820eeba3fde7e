#include "platform/HelpPage.h"

using namespace Qt::StringLiterals;

namespace platform {

QString HelpFolder(const QString& helpFile) {
    constexpr QLatin1StringView extension(".chm");
    return helpFile.endsWith(extension, Qt::CaseInsensitive) ? helpFile.chopped(extension.size())
                                                             : helpFile;
}

// A number is a file of its own: a browser may lose the fragment of a local address.
QString HelpPage(const Files& files, const QString& helpFile, int contextNumber) {
    const QString folder = HelpFolder(helpFile);
    for (const QString& name : {QString::number(contextNumber), u"index"_s}) {
        QString page = u"%1/%2.html"_s.arg(folder, name);
        if (files.Exists(page)) {
            return page;
        }
    }
    return {};
}

}  // namespace platform
