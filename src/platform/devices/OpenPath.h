#pragma once

#include <QString>

namespace platform {

/// Opens what stands under @p path as a double click would: a program is started in
/// @p workingFolder (empty: the program's own folder) and goes on after this one has ended; any
/// other file, or a folder, goes to the program that is meant for it. A name without a folder that
/// is not found here is looked for where the machine keeps its programs.
///
/// Answers an empty text, or why it could not be done.
QString OpenPath(const QString& path, const QString& workingFolder);

}  // namespace platform
