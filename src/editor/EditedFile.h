#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

#include "foundation/ClockProperty.h"
#include "platform/Files.h"

namespace editor {

/// How a file stands to what was last read from it or written to it.
enum class FileState {
    Same,
    Changed,    ///< another program, or a clock, has written it
    Gone,       ///< it was there, and is not
    Unreadable  ///< it is there and can't be read whole: it may not be written
};

/// A property file that a window edits, and what it held when last seen.
class EditedFile {
public:
    /// @param path full; the file need not be there
    EditedFile(platform::Files& files, const QString& path);

    const QString& Path() const { return path_; }
    /// Goes over to another file, as it is now.
    void SetPath(const QString& path);

    FileState State() const;
    /// What is in the file now is what the window knows of.
    void Note();

    /// The records as they are on disk. Nothing where the file is gone or can't be read whole; an
    /// empty file has no rows.
    std::optional<ClockProperties> Read() const;
    /// Writes the records, and notes them. A missing file is made.
    /// @return why it was not written, for the user; empty when it was
    QString Write(const ClockProperties& properties);

private:
    platform::Files& files_;
    QString path_;
    std::optional<QByteArray> seen_;  ///< nothing where no file could be read
};

/// What is told of a file that can't be read whole.
QString UnreadableText(const QString& path);

}  // namespace editor
