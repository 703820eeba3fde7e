#pragma once

#include <QString>

#include "platform/Files.h"

/// File and path helpers. In memory a path is native; in files it keeps "\".
namespace mduLib {

QString ToNativePath(const QString& stored);  ///< "\" becomes the native separator
QString ToStoredPath(const QString& native);

bool FileExists(const platform::Files& files, const QString& path);  ///< false for a file named "-1"
bool TrimmedFileExists(const platform::Files& files, QString& path);  ///< trims it in place
void EnsureFolder(platform::Files& files, const QString& path);       ///< one level
bool CopyFileTo(platform::Files& files, const QString& source, const QString& destination,
                bool overwrite);
void DeleteFileNow(platform::Files& files, const QString& path);

/// The last-modified time as text when the file exists and @p kind is 4; otherwise empty.
QString FileModifiedTime(const platform::Files& files, const QString& path, int kind);

QString AddIniExtension(const QString& name);    ///< unless it holds ".ini" anywhere, case ignored
QString StripIniExtension(const QString& name);  ///< a final ".ini", case ignored
QString FileBaseName(const QString& path, bool keepExtension);

/// ".\x" is @p appFolder + separator + x, in native form; any other path only becomes native.
QString ResolveAppPath(const QString& path, const QString& appFolder);

bool WriteTextFile(platform::Files& files, const QString& text, const QString& path);

/// The names of a folder's files that hold @p filter, each followed by @p separator.
QString ListFolderFiles(const platform::Files& files, const QString& folder, const QString& filter,
                        const QString& separator);

/// Whether the user file is older than the default, to the second: the test before every merge.
bool IsOlderThan(const platform::Files& files, const QString& userFile, const QString& defaultFile);

/// Why @p name can't become a file name: a path separator, "..", a control character, or too long.
/// Empty when it can. "/s" is let through: it is the name of the screen-saver run.
QString ZoneNameProblem(const QString& name);

}  // namespace mduLib
