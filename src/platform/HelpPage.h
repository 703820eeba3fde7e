#pragma once

#include <QString>

#include "platform/Files.h"

namespace platform {

/// The page of a help file for a context number.
///
/// The pages of "Help/Tempolark.chm" lie in the folder "Help/Tempolark": "600.html" is that of the
/// number 600, and "index.html" serves for each number that has no page of its own.
///
/// @return the full path of a page that exists; empty when there is neither.
QString HelpPage(const Files& files, const QString& helpFile, int contextNumber);

/// The folder of a help file's pages: its path without ".chm".
QString HelpFolder(const QString& helpFile);

}  // namespace platform
