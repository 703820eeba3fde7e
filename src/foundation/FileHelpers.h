#pragma once

#include <QString>

#include "platform/Files.h"

/// File and path helpers. In memory a path is native; in files it keeps "\".
namespace mduLib {

QString ToNativePath(const QString& stored);  ///< "\" becomes the native separator
QString ToStoredPath(const QString& native);

/// Whether a plain file of that name exists; false for one that is named "-1".
bool FileExists(const platform::Files& files, const QString& path);
bool TrimmedFileExists(const platform::Files& files, QString& path);  ///< trims it in place
void EnsureFolder(platform::Files& files, const QString& path);       ///< one level

/// @return false when the destination exists and @p overwrite is off, or when copying fails.
bool CopyFileTo(platform::Files& files, const QString& source, const QString& destination,
                bool overwrite);
void DeleteFileNow(platform::Files& files, const QString& path);

/// The last-modified time as text ("25/03/2008 9:05:07", in GMT) when the file exists and @p kind
/// is 4; otherwise empty.
QString FileModifiedTime(const platform::Files& files, const QString& path, int kind);

QString AddIniExtension(const QString& name);    ///< unless it holds ".ini" anywhere, case ignored
QString StripIniExtension(const QString& name);  ///< a final ".ini", case ignored
QString FileBaseName(const QString& path, bool keepExtension);

/// ".\x" is @p appFolder + separator + x, in native form; any other path only becomes native.
QString ResolveAppPath(const QString& path, const QString& appFolder);

/// Replaces a file with the text and a line end.
bool WriteTextFile(platform::Files& files, const QString& text, const QString& path);

/// The names of a folder's files that hold @p filter, each followed by @p separator.
QString ListFolderFiles(const platform::Files& files, const QString& folder, const QString& filter,
                        const QString& separator);

/// Whether the user file is older than the default, to the second: the test before every merge.
bool IsOlderThan(const platform::Files& files, const QString& userFile, const QString& defaultFile);

/// Why @p name can't become a file name: a path separator, "..", a control character, or too long.
/// Empty when it can. "/s" is let through: it is the name of the screen-saver run.
QString ZoneNameProblem(const QString& name);

/// What a zone's files are named after: the zone name, and "s" for the screen-saver run "/s".
QString ZoneFileStem(const QString& zoneName);

}  // namespace mduLib
