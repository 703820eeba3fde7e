#include "clock/StyleFiles.h"

#include <QDir>

#include "clock/ClockFiles.h"
#include "foundation/FileHelpers.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "foundation/PropertyMerge.h"
#include "platform/Files.h"
#include "timezones/ExactKeys.h"
#include "timezones/ZoneKeys.h"

using namespace Qt::StringLiterals;

namespace clockcore {

namespace {

constexpr auto Extension = ".ini"_L1;

/// Whether a file has anything of a clock's look in it: a text that has not would leave every
/// value of the clock at 0.
bool IsStyle(const ClockProperties& style) {
    return mduLib::FindPropertyRow(u"Clocks"_s, style) > 0 ||
           mduLib::FindPropertyRow(u"Hour Hand Style"_s, style) > 0 ||
           mduLib::FindPropertyRow(u"Window Background Colour"_s, style) > 0;
}

const ClockProperties& WhicheverHas(const QString& key, const ClockProperties& first,
                                    const ClockProperties& second) {
    return mduLib::FindPropertyRow(key, first) > 0 ? first : second;
}

}  // namespace

std::optional<ClockProperties> StyleFiles::Peek(const QString& styleFile, QString& problem) const {
    const platform::Files& files = program_.Services.FileSystem;
    if (!mduLib::FileExists(files, styleFile)) {
        problem = styleFile + u" is not there any more"_s;
        return std::nullopt;
    }
    ClockProperties style;
    const bool isText = mduLib::MayRewrite(files, styleFile);
    if (!isText || !mduLib::ReadPropertyFile(files, styleFile, style) || !IsStyle(style)) {
        problem = styleFile + u" is no clock style"_s;
        return std::nullopt;
    }
    return style;
}

std::optional<ClockProperties> StyleFiles::Read(const QString& styleFile, const QString& clockFile,
                                                const ClockProperties& present,
                                                QString& problem) const {
    platform::Files& files = program_.Services.FileSystem;
    if (!mduLib::FileExists(files, styleFile)) {
        return std::nullopt;
    }
    std::optional<ClockProperties> style = Peek(styleFile, problem);
    if (!style) {
        return std::nullopt;
    }
    const QString defaults = program_.Module.Paths.ZoneDefaultFile();
    if (mduLib::IsOlderThan(files, styleFile, defaults) &&
        mduLib::MergePropertyFile(files, styleFile, defaults, styleFile)) {
        style->Reset();
        mduLib::ReadPropertyFile(files, styleFile, *style);
    }
    ClockProperties own;
    mduLib::ReadPropertyFile(files, clockFile, own);
    for (const QString& key : mduTimeZones::ZoneKeys()) {
        mduLib::PutProperty(key, mduLib::GetProperty(key, WhicheverHas(key, own, present)), *style);
    }
    for (const QString& key : {mduTimeZones::ZoneRulesKey, mduTimeZones::ZoneIdKey}) {
        const QString value = mduTimeZones::ZoneKeyValue(WhicheverHas(key, own, present), key);
        if (!value.isEmpty() || mduLib::FindPropertyRow(key, *style) > 0) {
            mduLib::PutProperty(key, value, *style);
        }
    }
    return style;
}

QString StyleFiles::SavePath(const QString& chosen) {
    const QString native = mduLib::ToNativePath(chosen);
    if (native.endsWith(u"/.ini"_s, Qt::CaseInsensitive)) {
        return native.chopped(4) + u"unknown.ini"_s;
    }
    return mduLib::AddIniExtension(native);
}

bool StyleFiles::Write(const QString& path, ClockProperties look,
                       const std::optional<QRectF>& twips) const {
    for (const QString& key : mduTimeZones::ZoneKeys() + QStringList{mduTimeZones::ZoneIdKey}) {
        mduLib::PutProperty(key, {}, look);
    }
    if (twips) {
        for (const auto& [name, value] : PlaceValues(*twips)) {
            mduLib::PutProperty(name, value, look);
        }
    }
    return mduLib::WritePropertyFile(program_.Services.FileSystem, look, path);
}

QString StyleFiles::NameInFolder(const QString& styleFile) const {
    const QString path = QDir::cleanPath(mduLib::ToNativePath(styleFile));
    const QString name = mduLib::FileBaseName(path, false);
    const QString own = program_.Module.Paths.StylesFolder + name + Extension;
    return path == QDir::cleanPath(mduLib::ToNativePath(own)) ? name : QString();
}

QStringList StyleFiles::Names() const {
    const platform::Files& files = program_.Services.FileSystem;
    QStringList names = files.FileNames(program_.Module.Paths.StylesFolder);
    names.removeIf([](const QString& name) { return !name.endsWith(Extension); });
    return names;
}

}  // namespace clockcore
