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

/// The row of @p defaults from which on @p found has none of its keys, where it has all keys before
/// that row; 0 where keys are missing here and there.
int CutAt(const ClockProperties& defaults, const ClockProperties& found) {
    int cut = 0;
    for (int row = 1; row <= defaults.UpperBound(); ++row) {
        const QString& name = defaults[row].Name;
        if (name.isEmpty()) {
            continue;
        }
        const bool isThere = mduLib::FindPropertyRow(name, found) > 0;
        if (isThere && cut > 0) {
            return 0;
        }
        cut = isThere || cut > 0 ? cut : row;
    }
    return cut;
}

/// A file that broke off while it was written has lost its last keys. One in which the user has
/// left keys out is as the user wants it.
void RestoreLostEnd(const ClockProperties& defaults, ClockProperties& found) {
    const int cut = CutAt(defaults, found);
    for (int row = cut; cut > 0 && row <= defaults.UpperBound(); ++row) {
        const ClockProperty& lost = defaults[row];
        if (!lost.Name.isEmpty()) {
            mduLib::AppendProperty(lost.Category, lost.Name, lost.Value, found);
        }
    }
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
    ClockProperties defaults;
    mduLib::ReadPropertyFile(files, defaultFile, defaults);
    ClockProperties settings;
    if (IsBrokenSettings(files, path, defaultFile) ||
        !mduLib::ReadPropertyFile(files, path, settings)) {
        return defaults;
    }
    RestoreLostEnd(defaults, settings);
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
