#pragma once

#include <QString>
#include <optional>

#include "foundation/ModuleState.h"

namespace platform {
class Dialogs;
}

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

/// Asks for a file of a key's kind, which has to be in the table. @return its native path; empty
/// when the picker is cancelled
QString PickFile(platform::Dialogs& dialogs, const QString& title, const QString& key,
                 const PathTable& paths);

/// Asks for the file that a property names, beginning at the one that it has, in a picker titled
/// with its key. A path that a value can't hold (it has a comma, a "\" or a control character) is
/// refused: a box titled "Set File Error" says so.
/// @return what the property's value becomes: @p value when nothing is picked
QString PickPropertyFile(platform::Dialogs& dialogs, const QString& key, const QString& value,
                         const PathTable& paths);

}  // namespace mduUILib
