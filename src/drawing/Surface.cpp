#include "drawing/Surface.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "foundation/TextHelpers.h"

namespace drawing {

namespace {

QImage MakeImage(int width, int height, double devicePixelRatio) {
    QImage image(std::max(1, width), std::max(1, height), QImage::Format_RGB32);
    image.setDevicePixelRatio(1.0);  // painters work in device pixels; the window knows the ratio
    Q_UNUSED(devicePixelRatio)
    image.fill(Qt::black);
    return image;
}

}  // namespace

QRgb ToRgb(int colour) {
    const mduLib::ColourParts parts = mduLib::SplitColour(colour);
    return qRgb(parts.Red, parts.Green, parts.Blue);
}

Surface::Surface(int scaleWidth, int scaleHeight, double devicePixelRatio)
    : image_(MakeImage(scaleWidth, scaleHeight, devicePixelRatio)),
      devicePixelRatio_(devicePixelRatio),
      height_(static_cast<int>(std::nearbyint(scaleHeight * TwipsPerPixel()))) {}

void Surface::Cls(int colour) {
    if (!clipped_) {
        image_.fill(ToRgb(colour));
        return;
    }
    QPainter painter(&image_);
    for (const QRect& rect : clip_) {
        painter.fillRect(rect, QColor(ToRgb(colour)));
    }
}

void Surface::Line(int x1, int y1, int x2, int y2, int colour, int drawWidth) {
    QPainter painter(&image_);
    if (clipped_) {
        painter.setClipRegion(clip_);
    }
    const bool hairline = drawWidth <= 1;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(ToRgb(colour)), hairline ? 1 : drawWidth, Qt::SolidLine,
                        hairline ? Qt::SquareCap : Qt::RoundCap));
    constexpr double centre = 0.5;  // of a pixel
    painter.drawLine(QPointF(x1 + centre, y1 + centre), QPointF(x2 + centre, y2 + centre));
}

void Surface::SetPixel(int x, int y, int colour) {
    const bool inside = x >= 0 && y >= 0 && x < image_.width() && y < image_.height();
    if (inside && (!clipped_ || clip_.contains(QPoint(x, y)))) {
        reinterpret_cast<QRgb*>(image_.scanLine(y))[x] = ToRgb(colour);
    }
}

void Surface::SetClip(const QRegion& region) {
    clip_ = region;
    clipped_ = !region.isNull();
}

}  // namespace drawing
