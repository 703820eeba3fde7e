#include "foundation/PictureStore.h"
#include "fuzz/MemoryFiles.h"

namespace {

void IsPaintable(const QImage& picture) {
    Require(picture.format() == QImage::Format_RGB32 ||
            picture.format() == QImage::Format_ARGB32_Premultiplied);
    Require(picture.width() > 0 && picture.height() > 0);
    Require(static_cast<qint64>(picture.width()) * picture.height() <= 16'000'000);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const QImage picture = mduUILib::DecodePicture(
        QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    if (!picture.isNull()) {
        IsPaintable(picture);
        mduUILib::PictureStore store;
        const auto small =
            store.Scaled(std::make_shared<const QImage>(picture), QSize(30, 20), 150);
        IsPaintable(*small);
        Require(small->size() == QSize(30, 20));
    }
    return 0;
}
