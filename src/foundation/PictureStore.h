#pragma once

#include <QImage>
#include <QString>
#include <map>
#include <memory>

#include "platform/Files.h"

namespace mduUILib {

/// Pictures from files, shared by all clocks: the same file, and the same file at the same size,
/// is held once for as long as anyone uses it. A file is recognised by its content, not by its
/// name.
class PictureStore {
public:
    /// The picture of a file; null when it is missing, unreadable, no picture, or too large to be
    /// read in a moment (above 64 million pixels, or 64 MB of file). A file that has changed on the
    /// disk is read anew. Larger pictures come scaled down to `LargestSide`.
    std::shared_ptr<const QImage> Load(const platform::Files& files, const QString& path);

    /// The picture stretched over @p size, @p brightness in percent (100 leaves it as it is).
    std::shared_ptr<const QImage> Scaled(const std::shared_ptr<const QImage>& picture,
                                         const QSize& size, int brightness = 100);

    /// Forgets a file, so that it is read anew.
    void Forget(const QString& path);

    static constexpr int LargestSide = 4000;  ///< pixels

private:
    struct FromFile {
        qint64 Modified = 0;
        std::weak_ptr<const QImage> Picture;
    };
    struct ScaledKey {
        qint64 Source;
        int Width, Height, Brightness;
        auto operator<=>(const ScaledKey&) const = default;
    };
    std::map<QString, FromFile> files_;
    std::map<ScaledKey, std::weak_ptr<const QImage>> scaled_;
};

}  // namespace mduUILib
