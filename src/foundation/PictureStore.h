#pragma once

#include <QImage>
#include <QString>
#include <map>
#include <memory>
#include <tuple>

#include "platform/Files.h"

namespace mduUILib {

/// Pictures from files, shared by all clocks: the same file, and the same file at the same size,
/// is held once for as long as anyone uses it. A file is recognised by its content, not by its
/// name. Pictures are in the forms that paint fastest: `Format_RGB32` where they are opaque,
/// `Format_ARGB32_Premultiplied` where they are not.
class PictureStore {
public:
    /// The picture of a file; null when it is missing, unreadable, no picture, or too large to be
    /// read in a moment: above 64 MB of file, above 64 million pixels of a JPEG or 16 million of
    /// any other kind. A file that has changed on the disk is read anew, and one that could not be
    /// read is not tried again before. Larger JPEG pictures come scaled down to `LargestSide`.
    std::shared_ptr<const QImage> Load(const platform::Files& files, const QString& path);

    /// The picture stretched over @p size, @p brightness in percent of its colours: 100 leaves it
    /// as it is, 50 halves the light, 400 is the most; 0 and below count as 100, so that a missing
    /// property does no harm. Sides are held within 1 to `LargestScaledSide`, and a size above
    /// `LargestScaledArea` is scaled down to that: whoever paints stretches it the rest of the way.
    std::shared_ptr<const QImage> Scaled(const std::shared_ptr<const QImage>& picture,
                                         const QSize& size, int brightness = 100);

    static constexpr int LargestSide = 4000;          ///< pixels
    static constexpr int LargestScaledSide = 16'000;  ///< pixels
    static constexpr qint64 LargestScaledArea = 64'000'000;

private:
    struct FromFile {
        qint64 Modified = 0;
        qint64 Size = 0;
        bool Unreadable = false;
        std::weak_ptr<const QImage> Picture;
    };
    using ScaledKey = std::tuple<qint64, int, int, int>;  ///< source, width, height, brightness
    std::map<QString, FromFile> files_;
    std::map<ScaledKey, std::weak_ptr<const QImage>> scaled_;
};

/// The picture in the bytes of a file; a null image when there is none, or when it is too large.
QImage DecodePicture(const QByteArray& content);

}  // namespace mduUILib
