#include "foundation/PictureStore.h"

namespace mduUILib {

std::shared_ptr<const QImage> PictureStore::Load(const platform::Files& /*files*/,
                                                 const QString& /*path*/) {
    return nullptr;
}

std::shared_ptr<const QImage> PictureStore::Scaled(const std::shared_ptr<const QImage>& picture,
                                                   const QSize& /*size*/, int /*brightness*/) {
    return picture;
}

void PictureStore::Forget(const QString& path) {
    files_.erase(path);
}

}  // namespace mduUILib
