#include "foundation/PictureStore.h"

#include <QBuffer>
#include <QImageReader>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <cmath>

namespace mduUILib {

namespace {

constexpr qint64 LargestFile = 64LL * 1024 * 1024;
constexpr qint64 LargestQuickArea = 64'000'000;  // of a kind that is scaled down as it is read
constexpr qint64 LargestArea = 16'000'000;
constexpr int LargestCodedSide = 32'767;

qint64 Area(const QSize& size) {
    return static_cast<qint64>(size.width()) * size.height();
}

/// Refuses by what the header says, before memory is taken.
bool IsTooLarge(const QSize& size, bool isQuick) {
    return !size.isValid() || size.isEmpty() ||
           std::max(size.width(), size.height()) > LargestCodedSide ||
           Area(size) > (isQuick ? LargestQuickArea : LargestArea);
}

/// Whether every block of a PNG file lies within it; the decoder takes as much memory as a block
/// claims to need. A block is its length, its name, its bytes, and a check sum of 4.
bool PngIsWhole(const QByteArray& content) {
    constexpr qint64 around = 12;
    qint64 at = 8;  // behind the signature
    while (at + around <= content.size()) {
        const qint64 end = at + around + qFromBigEndian<quint32>(content.constData() + at);
        if (end > content.size() || content.sliced(at + 4, 4) == "IEND") {
            return end <= content.size();
        }
        at = end;
    }
    return false;
}

/// Whether a JPEG file is progressive: it is decoded whole before it can be scaled down. Each
/// segment is 0xFF, its name, and its length with the two bytes that tell it.
bool JpegHasManyPasses(const QByteArray& content) {
    qint64 at = 2;  // behind the mark of the beginning
    while (at + 4 <= content.size()) {
        const auto name = static_cast<quint8>(content[at + 1]);
        const bool isFrame =
            name >= 0xC0 && name <= 0xCF && name != 0xC4 && name != 0xC8 && name != 0xCC;
        if (isFrame) {
            return name != 0xC0 && name != 0xC1;  // baseline, and the same with more bits
        }
        at += 2 + qFromBigEndian<quint16>(content.constData() + at + 2);
    }
    return true;
}

/// What a GIF file's screen measures: its first two words, of which the lower byte comes first. The
/// decoder makes room for the screen, though it tells the size of the first frame.
QSize GifScreen(const QByteArray& content) {
    constexpr qsizetype width = 6;  // behind the signature
    constexpr qsizetype height = 8;
    if (content.size() < height + 2) {
        return {};
    }
    return {qFromLittleEndian<quint16>(content.constData() + width),
            qFromLittleEndian<quint16>(content.constData() + height)};
}

QImage InPaintingForm(QImage image) {
    const QImage::Format form =
        image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    return std::move(image).convertToFormat(form);
}

/// What each value of a colour becomes.
std::array<int, 256> BrightnessTable(int percent) {
    std::array<int, 256> table{};
    for (std::size_t value = 0; value < table.size(); ++value) {
        table[value] = std::min(255, (static_cast<int>(value) * percent + 50) / 100);
    }
    return table;
}

void ApplyBrightness(QImage& image, int percent) {
    const std::array<int, 256> table = BrightnessTable(percent);
    const auto lit = [&table](int value, int alpha) {
        return std::min(alpha, table[static_cast<std::size_t>(value)]);
    };
    for (int y = 0; y < image.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::transform(row, row + image.width(), row, [&lit](QRgb pixel) {
            const int alpha = qAlpha(pixel);
            return qRgba(lit(qRed(pixel), alpha), lit(qGreen(pixel), alpha),
                         lit(qBlue(pixel), alpha), alpha);
        });
    }
}

QSize HeldSize(const QSize& size) {
    constexpr int most = PictureStore::LargestScaledSide;
    const QSize held(std::clamp(size.width(), 1, most), std::clamp(size.height(), 1, most));
    if (Area(held) <= PictureStore::LargestScaledArea) {
        return held;
    }
    const double factor = std::sqrt(static_cast<double>(PictureStore::LargestScaledArea) /
                                    static_cast<double>(Area(held)));
    return {std::max(1, static_cast<int>(held.width() * factor)),
            std::max(1, static_cast<int>(held.height() * factor))};
}

int HeldBrightness(int percent) {
    constexpr int most = 400;
    return percent <= 0 ? 100 : std::min(percent, most);
}

QImage Stretch(const QImage& picture, const QSize& size) {
    return picture.size() == size ? picture
                                  : InPaintingForm(picture.scaled(size, Qt::IgnoreAspectRatio,
                                                                  Qt::SmoothTransformation));
}

std::shared_ptr<const QImage> Shared(QImage image) {
    return std::make_shared<const QImage>(std::move(image));
}

}  // namespace

// Only the kinds that a clock is likely to be given: each further decoder is a way in for a file
// that means harm.
QImage DecodePicture(const QByteArray& content) {
    QBuffer buffer;
    buffer.setData(content);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QByteArray kind = reader.format();
    const bool isJpeg = kind == "jpeg";
    if (content.size() > LargestFile ||
        !(isJpeg || kind == "png" || kind == "bmp" || kind == "gif" || kind == "ico")) {
        return {};
    }
    if (kind == "png" && !PngIsWhole(content)) {
        return {};
    }
    const QSize size = kind == "gif" ? reader.size().expandedTo(GifScreen(content)) : reader.size();
    if (IsTooLarge(size, isJpeg && !JpegHasManyPasses(content))) {
        return {};
    }
    const int longest = std::max(size.width(), size.height());
    if (isJpeg && longest > PictureStore::LargestSide) {
        reader.setScaledSize(
            size.scaled(PictureStore::LargestSide, PictureStore::LargestSide, Qt::KeepAspectRatio)
                .expandedTo({1, 1}));
    }
    QImage image;
    return reader.read(&image) ? InPaintingForm(std::move(image)) : QImage();
}

std::shared_ptr<const QImage> PictureStore::Load(const platform::Files& files,
                                                 const QString& path) {
    const std::optional<qint64> size = files.Size(path);
    if (!size || *size <= 0 || *size > LargestFile) {
        return nullptr;
    }
    const qint64 modified = files.ModifiedSeconds(path).value_or(0);
    const auto known = files_.find(path);
    if (known != files_.end() && known->second.Modified == modified &&
        known->second.Size == *size) {
        if (known->second.Unreadable) {
            return nullptr;
        }
        if (std::shared_ptr<const QImage> picture = known->second.Picture.lock()) {
            return picture;
        }
    }
    std::erase_if(files_, [](const auto& entry) {
        return !entry.second.Unreadable && entry.second.Picture.expired();
    });
    QImage image = DecodePicture(files.Read(path).value_or(QByteArray()));
    const bool unreadable = image.isNull();
    std::shared_ptr<const QImage> picture = unreadable ? nullptr : Shared(std::move(image));
    files_.insert_or_assign(path, FromFile{modified, *size, unreadable, picture});
    return picture;
}

std::shared_ptr<const QImage> PictureStore::Scaled(const std::shared_ptr<const QImage>& picture,
                                                   const QSize& size, int brightness) {
    if (!picture || picture->isNull()) {
        return nullptr;
    }
    const QSize held = HeldSize(size);
    const int percent = HeldBrightness(brightness);
    if (held == picture->size() && percent == 100) {
        return picture;
    }
    const ScaledKey key{picture->cacheKey(), held.width(), held.height(), percent};
    if (std::shared_ptr<const QImage> made = scaled_[key].lock()) {
        return made;
    }
    QImage image = Stretch(*picture, held);
    if (percent != 100) {
        ApplyBrightness(image, percent);
    }
    std::shared_ptr<const QImage> made = Shared(std::move(image));
    std::erase_if(scaled_, [](const auto& entry) { return entry.second.expired(); });
    scaled_.insert_or_assign(key, made);
    return made;
}

}  // namespace mduUILib
