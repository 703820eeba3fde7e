#pragma once

#include <QString>
#include <optional>

#include "foundation/ModuleState.h"

/// Which files a key may name, and how they are asked for.
namespace mduUILib {

/// What a picker is opened with.
struct FilePicker {
    QString Filter;      ///< patterns such as "*.bmp;*.gif"
    QString FilterName;  ///< such as "Image (*.bmp;*.gif)"
    QString Folder;      ///< where it begins, native, with a separator at its end

    /// The same for `platform::Dialogs::OpenFile`; all files can be asked for as well.
    QString DialogFilter() const;
    bool operator==(const FilePicker&) const = default;
};

/// Whether a key names a file: it ends in "file", letter case aside.
bool IsFileKey(const QString& key);

/// The picker of a key. One that names a file and is not in the table takes any file, beginning in
/// `AppFolder`; nothing for a key that names none. Blanks around a key and its letter case don't
/// count.
std::optional<FilePicker> FilePickerOf(const QString& key, const PathTable& paths);

/// Where a picker stands at first: the file that the value names, if it is a path, else the
/// picker's folder.
QString PickerStart(const FilePicker& picker, const QString& value, const PathTable& paths);

/// A picked file as property files keep it: ".\" and the rest for one inside @p appFolder, with
/// "\" between the names.
///
///     StoredFile("/clocks/Images/a b.png", "/clocks")  // ".\Images\a b.png"
QString StoredFile(const QString& path, const QString& appFolder);

/// Why a picked file can't be kept in a value, to be told in a box titled `PickProblemTitle`: its
/// path holds a comma, a "\" or a control character. Empty when it can.
QString PickProblem(const QString& path);
inline const QString PickProblemTitle = QStringLiteral("Set File Error");

}  // namespace mduUILib
