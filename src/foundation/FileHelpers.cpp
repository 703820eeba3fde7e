#include "foundation/FileHelpers.h"

#include <algorithm>

#include "foundation/Dates.h"

using namespace Qt::StringLiterals;

namespace mduLib {

namespace {

constexpr QStringView ScreenSaverName = u"/s";
constexpr qsizetype LongestFileStem = 200;

QString LastPart(const QString& path) {
    const QChar separator = path.contains(u'/') ? u'/' : u'\\';
    return path.mid(path.lastIndexOf(separator) + 1);
}

bool IsControlCharacter(QChar character) {
    return character.category() == QChar::Other_Control;
}

bool IsPlainFile(const platform::Files& files, const QString& path) {
    return !path.isEmpty() && files.Exists(path) && !files.FolderExists(path);
}

}  // namespace

QString ToNativePath(const QString& stored) {
    return QString(stored).replace(u'\\', u'/');
}

QString ToStoredPath(const QString& native) {
    return QString(native).replace(u'/', u'\\');
}

bool FileExists(const platform::Files& files, const QString& path) {
    return IsPlainFile(files, path) && LastPart(path) != "-1"_L1;
}

bool TrimmedFileExists(const platform::Files& files, QString& path) {
    path = path.trimmed();
    return IsPlainFile(files, path);
}

void EnsureFolder(platform::Files& files, const QString& path) {
    const QString folder = path.trimmed();
    if (!folder.isEmpty() && !files.FolderExists(folder)) {
        files.MakeFolder(folder);
    }
}

bool CopyFileTo(platform::Files& files, const QString& source, const QString& destination,
                bool overwrite) {
    if (!overwrite && FileExists(files, destination)) {
        return false;
    }
    return files.Copy(source, destination);
}

void DeleteFileNow(platform::Files& files, const QString& path) {
    files.Delete(path);
}

QString FileModifiedTime(const platform::Files& files, const QString& path, int kind) {
    const std::optional<qint64> seconds =
        kind == 4 && FileExists(files, path) ? files.ModifiedSeconds(path) : std::nullopt;
    return seconds ? mduAPILib::MomentText(QDateTime::fromSecsSinceEpoch(*seconds, Qt::UTC))
                   : QString();
}

QString AddIniExtension(const QString& name) {
    return name.contains(".ini"_L1, Qt::CaseInsensitive) ? name : name + u".ini"_s;
}

QString StripIniExtension(const QString& name) {
    return name.endsWith(".ini"_L1, Qt::CaseInsensitive) ? name.chopped(4) : name;
}

QString FileBaseName(const QString& path, bool keepExtension) {
    const QString name = LastPart(path);
    return keepExtension ? name : name.left(name.lastIndexOf(u'.'));
}

QString ResolveAppPath(const QString& path, const QString& appFolder) {
    return ToNativePath(path.startsWith(".\\"_L1) ? appFolder + u'/' + path.mid(2) : path);
}

bool WriteTextFile(platform::Files& files, const QString& text, const QString& path) {
    return files.Write(path, (text + u"\r\n"_s).toUtf8());
}

QString ListFolderFiles(const platform::Files& files, const QString& folder, const QString& filter,
                        const QString& separator) {
    QString list;
    for (const QString& name : files.FileNames(folder)) {
        if (name.contains(filter)) {
            list += name + separator;
        }
    }
    return list;
}

bool IsOlderThan(const platform::Files& files, const QString& userFile,
                 const QString& defaultFile) {
    const std::optional<qint64> user = files.ModifiedSeconds(userFile);
    const std::optional<qint64> standard = files.ModifiedSeconds(defaultFile);
    return user && standard && *user < *standard;
}

QString ZoneNameProblem(const QString& name) {
    if (name == ScreenSaverName) {
        return {};
    }
    if (name.contains(u'/') || name.contains(u'\\')) {
        return u"A time zone's name can't hold a path separator"_s;
    }
    if (name.contains(".."_L1)) {
        return u"A time zone's name can't hold \"..\""_s;
    }
    if (std::any_of(name.begin(), name.end(), IsControlCharacter)) {
        return u"A time zone's name can't hold a control character"_s;
    }
    if (name.toUtf8().size() > LongestFileStem) {
        return u"The time zone's name is too long"_s;
    }
    return {};
}

QString ZoneFileStem(const QString& zoneName) {
    return zoneName == ScreenSaverName ? zoneName.mid(1) : zoneName;
}

}  // namespace mduLib
