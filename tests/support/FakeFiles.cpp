#include "support/FakeFiles.h"

bool FakeFiles::MakeFolder(const QString& path) {
    return !Unwritable.contains(path) && local_.MakeFolder(path);
}

std::optional<QByteArray> FakeFiles::Read(const QString& path) const {
    return Unreadable.contains(path) ? std::nullopt : local_.Read(path);
}

bool FakeFiles::Write(const QString& path, const QByteArray& content) {
    Writes += path;
    return !Unwritable.contains(path) && local_.Write(path, content);
}

bool FakeFiles::Copy(const QString& source, const QString& destination) {
    const std::optional<QByteArray> content = Read(source);
    return content && Write(destination, *content);
}
