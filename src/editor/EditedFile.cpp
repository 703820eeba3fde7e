#include "editor/EditedFile.h"

#include "foundation/FileHelpers.h"
#include "foundation/PropertyFile.h"

using namespace Qt::StringLiterals;

namespace editor {

EditedFile::EditedFile(platform::Files& files, const QString& path) : files_(files) {
    SetPath(path);
}

void EditedFile::SetPath(const QString& path) {
    path_ = path;
    Note();
}

FileState EditedFile::State() const {
    if (!mduLib::FileExists(files_, path_)) {
        return seen_ ? FileState::Gone : FileState::Same;
    }
    const std::optional<QByteArray> content = files_.Read(path_);
    if (content && content == seen_) {
        return FileState::Same;
    }
    return mduLib::MayRewrite(files_, path_) ? FileState::Changed : FileState::Unreadable;
}

void EditedFile::Note() {
    seen_ = mduLib::FileExists(files_, path_) ? files_.Read(path_) : std::nullopt;
}

std::optional<ClockProperties> EditedFile::Read() const {
    if (!mduLib::FileExists(files_, path_) || !mduLib::MayRewrite(files_, path_)) {
        return std::nullopt;
    }
    ClockProperties properties;
    mduLib::ReadPropertyFile(files_, path_, properties);
    return properties;
}

QString EditedFile::Write(const ClockProperties& properties) {
    if (!mduLib::MayRewrite(files_, path_)) {
        return UnreadableText(path_);
    }
    if (!mduLib::WritePropertyFile(files_, properties, path_)) {
        return u"%1 can't be written"_s.arg(path_);
    }
    Note();
    return {};
}

QString UnreadableText(const QString& path) {
    return u"%1 can't be read as a property file; it is left as it is"_s.arg(path);
}

}  // namespace editor
