#include "platform/devices/LockFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <cerrno>

namespace platform {

namespace {

bool WriteNote(int descriptor, const QByteArray& note) {
    return ftruncate(descriptor, 0) == 0 &&
           pwrite(descriptor, note.constData(), static_cast<std::size_t>(note.size()), 0) ==
               note.size();
}

}  // namespace

// The name goes while the file is still held: nobody can hold a file by it and lose it.
LockFile::~LockFile() {
    if (held_ >= 0) {
        unlink(QFile::encodeName(path_).constData());
        close(held_);
    }
}

// Between the opening and the locking its holder may have taken the file away.
bool LockFile::IsStillTheFile(int descriptor) const {
    struct stat opened = {};
    struct stat named = {};
    return fstat(descriptor, &opened) == 0 &&
           stat(QFile::encodeName(path_).constData(), &named) == 0 &&
           opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

// A process that this one starts must not hold the file when this one is gone: hence O_CLOEXEC.
LockFile::Outcome LockFile::Take(const QByteArray& note) {
    const QByteArray name = QFile::encodeName(path_);
    while (true) {
        const int descriptor = open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
        if (descriptor < 0) {
            return Outcome::Failed;
        }
        if (flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
            const bool held = errno == EWOULDBLOCK;
            close(descriptor);
            return held ? Outcome::HeldByAnother : Outcome::Failed;
        }
        if (!IsStillTheFile(descriptor)) {
            close(descriptor);
            continue;
        }
        if (!WriteNote(descriptor, note)) {
            close(descriptor);
            return Outcome::Failed;
        }
        held_ = descriptor;
        return Outcome::Taken;
    }
}

QByteArray LockFile::Note() const {
    QFile file(path_);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace platform
