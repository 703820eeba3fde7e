#pragma once

#include <QString>
#include <functional>

#include "platform/Files.h"

namespace mduLib {

/// Carries a user's values over into a newer default file: order, comments, keys and lists of
/// choices come from @p newFile, current values from @p oldFile. @p outFile may be @p oldFile.
/// The user's "Clocks=Digital,Analogue,Digital" and the default
/// "Clocks=Analogue,Analogue,Digital,Calculator" give "Clocks=Digital,Analogue,Digital,Calculator".
///
/// A user's file that can't be read, or is no text, is never replaced by the defaults: where
/// @p outFile is such an @p oldFile, the merge answers false.
///
/// @param yield called after each line, so that a window stays alive during a long merge
/// @return true when the whole new file was processed. On false nothing is written and
/// @p outFile is as it was.
bool MergePropertyFile(platform::Files& files, const QString& oldFile, const QString& newFile,
                       const QString& outFile, const std::function<void()>& yield = {});

}  // namespace mduLib
