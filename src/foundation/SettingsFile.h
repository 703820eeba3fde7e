#pragma once

#include "foundation/ClockProperty.h"
#include "platform/Files.h"

/// The shell's property file when it has come to harm: nothing in it is ever lost, and nothing that
/// is broken takes effect.
namespace mduMain {

/// Whether a file is there that holds no settings: it is empty, no text, too long, can't be read,
/// or has none of the keys of @p defaultFile (this is not asked where that can't be read itself).
bool IsBrokenSettings(const platform::Files& files, const QString& path,
                      const QString& defaultFile);

/// Reads the settings; the defaults where the file is missing or broken. Where it ends before its
/// time, with the first keys of the defaults but none of the others, these have their defaults and
/// come back at the next save.
ClockProperties ReadSettings(const platform::Files& files, const QString& path,
                             const QString& defaultFile);

/// The name under which a broken file will be kept: "TempolarkCentral.ini.broken" beside it,
/// ".broken2" when that is taken, and so on.
QString NameToKeep(const platform::Files& files, const QString& path);

/// Replaces the file with @p settings. A broken one is first copied to its `NameToKeep`. @return
/// false when it can't be written, or a broken one can't be copied; it is then as it was.
bool ReplaceSettings(platform::Files& files, const ClockProperties& settings, const QString& path,
                     const QString& defaultFile);

}  // namespace mduMain
