#pragma once

#include "platform/Files.h"
#include "shell/MenuArray.h"

namespace shell {

/// The property files of a folder, sorted, without their ".ini" and without "Tempolark.ini".
QStringList PropertyFileNames(const platform::Files& files, const QString& folder);

/// Fills a menu with the first of them: at most @p maximum of them, then @p lastCaption with an
/// empty Tag: "More" only where there are more files than that, any other caption always. An empty
/// list is one item "None".
void FillFileList(MenuArray& menu, const platform::Files& files, const QString& folder,
                  const QString& lastCaption, int maximum);

}  // namespace shell
