#include "foundation/SettingsFile.h"

#include "foundation/FileHelpers.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;

namespace mduMain {

namespace {

bool ShareAKey(const ClockProperties& defaults, const ClockProperties& found) {
    for (int row = 1; row <= defaults.UpperBound(); ++row) {
        const QString& name = defaults[row].Name;
        if (!name.isEmpty() && mduLib::FindPropertyRow(name, found) > 0) {
            return true;
        }
    }
    return false;
}

}  // namespace

bool IsBrokenSettings(const platform::Files& files, const QString& path,
                      const QString& defaultFile) {
    if (!mduLib::FileExists(files, path)) {
        return false;
    }
    ClockProperties found;
    if (!mduLib::MayRewrite(files, path) || !mduLib::ReadPropertyFile(files, path, found)) {
        return true;
    }
    ClockProperties defaults;
    return mduLib::ReadPropertyFile(files, defaultFile, defaults) && !ShareAKey(defaults, found);
}

ClockProperties ReadSettings(const platform::Files& files, const QString& path,
                             const QString& defaultFile) {
    ClockProperties settings;
    if (IsBrokenSettings(files, path, defaultFile) ||
        !mduLib::ReadPropertyFile(files, path, settings)) {
        mduLib::ReadPropertyFile(files, defaultFile, settings);
    }
    return settings;
}

QString NameToKeep(const platform::Files& files, const QString& path) {
    QString name = path + u".broken"_s;
    for (int i = 2; files.Exists(name); ++i) {
        name = path + u".broken%1"_s.arg(i);
    }
    return name;
}

bool ReplaceSettings(platform::Files& files, const ClockProperties& settings, const QString& path,
                     const QString& defaultFile) {
    if (IsBrokenSettings(files, path, defaultFile) &&
        !mduLib::CopyFileTo(files, path, NameToKeep(files, path), false)) {
        return false;
    }
    return mduLib::WritePropertyFile(files, settings, path);
}

}  // namespace mduMain
