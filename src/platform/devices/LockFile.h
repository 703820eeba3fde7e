#pragma once

#include <QByteArray>
#include <QString>

namespace platform {

/// A file that one process at a time can hold. It is let go when its holder ends, however that
/// ends, so that what a crash leaves behind holds up nobody.
class LockFile {
public:
    /// @param path native and full, in a folder that exists; nothing is opened before `Take`
    explicit LockFile(QString path) : path_(std::move(path)) {}
    /// Removes the file where this object holds it, and lets it go.
    ~LockFile();
    Q_DISABLE_COPY_MOVE(LockFile)

    /// `Failed` is a file that can't be made, locked or written.
    enum class Outcome { Taken, HeldByAnother, Failed };

    /// Tries to hold the file, and then writes a note for others into it. It never waits.
    Outcome Take(const QByteArray& note);

    /// The note of whoever holds the file; empty while there is none.
    QByteArray Note() const;

private:
    /// Whether the path still leads to the file that was opened.
    bool IsStillTheFile(int descriptor) const;

    QString path_;
    int held_ = -1;  ///< the descriptor of the file that is held
};

}  // namespace platform
