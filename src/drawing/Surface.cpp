#include "drawing/Surface.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "drawing/LineCoverage.h"
#include "foundation/TextHelpers.h"

namespace drawing {

namespace {

/// The colour that lies @p part of 256 over another.
QRgb Blend(QRgb under, QRgb over, unsigned part) {
    const auto mix = [part](int a, int b) {
        return a + (((b - a) * static_cast<int>(part) + 128) >> 8);
    };
    return qRgb(mix(qRed(under), qRed(over)), mix(qGreen(under), qGreen(over)),
                mix(qBlue(under), qBlue(over)));
}

}  // namespace

QRgb ToRgb(int colour) {
    const mduLib::ColourParts parts = mduLib::SplitColour(colour);
    return qRgb(parts.Red, parts.Green, parts.Blue);
}

Surface::Surface(int scaleWidth, int scaleHeight, double devicePixelRatio)
    : image_(std::max(1, scaleWidth), std::max(1, scaleHeight), QImage::Format_RGB32),
      pixels_(reinterpret_cast<QRgb*>(image_.bits())),
      stride_(image_.bytesPerLine() / static_cast<std::ptrdiff_t>(sizeof(QRgb))),
      devicePixelRatio_(devicePixelRatio),
      height_(static_cast<int>(std::nearbyint(scaleHeight * TwipsPerDevicePixel()))),
      whole_(image_.rect()),
      clip_(whole_) {
    std::fill_n(pixels_, stride_ * image_.height(), ToRgb(0));
}

void Surface::Cls(int colour) {
    const QRgb rgb = ToRgb(colour);
    if (clip_ == whole_) {
        image_.fill(rgb);
        return;
    }
    for (int y = clip_.top(); y <= clip_.bottom(); ++y) {
        std::fill_n(ScanLine(y) + clip_.left(), clip_.width(), rgb);
    }
}

// Drawn here and not by the toolkit's painter, which takes five times as long for the three hands
// of a clock, most of it to prepare.
void Surface::Line(int x1, int y1, int x2, int y2, int colour, int drawWidth) {
    const LineCoverage line(x1, y1, x2, y2, drawWidth);
    const QRgb rgb = ToRgb(colour);
    const QRect reach = line.Bounds() & clip_;
    for (int y = reach.top(); y <= reach.bottom(); ++y) {
        const auto [from, to] = line.Span(y);
        const int last = std::min(to, reach.right());
        const LineCoverage::Row coverage(line, y);
        QRgb* row = ScanLine(y);
        for (int x = std::max(from, reach.left()); x <= last; ++x) {
            const unsigned part = coverage.At(x);
            row[x] = part >= 256 ? rgb : Blend(row[x], rgb, part);
        }
    }
}

void Surface::SetPixel(int x, int y, int colour) {
    if (clip_.contains(x, y)) {
        ScanLine(y)[x] = ToRgb(colour);
    }
}

// A view on the same pixels, so that the bitmap never moves, whoever shares it.
void Surface::Paint(const std::function<void(QPainter&)>& paint) {
    QImage view(reinterpret_cast<uchar*>(pixels_), image_.width(), image_.height(),
                image_.bytesPerLine(), QImage::Format_RGB32);
    QPainter painter(&view);
    painter.setRenderHint(QPainter::Antialiasing);
    if (clip_ != whole_) {
        painter.setClipRect(clip_);
    }
    paint(painter);
}

void Surface::CopyFrom(const QImage& image) {
    for (int y = clip_.top(); y <= clip_.bottom(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        std::copy(from + clip_.left(), from + clip_.right() + 1, ScanLine(y) + clip_.left());
    }
}

void Surface::CopyTo(QImage& image) const {
    if (image.size() != image_.size()) {
        image = QImage(image_.size(), QImage::Format_RGB32);
    }
    std::copy_n(pixels_, stride_ * image_.height(), reinterpret_cast<QRgb*>(image.bits()));
}

void Surface::SetClip(const QRect& rect) {
    clip_ = rect.isNull() ? whole_ : rect & whole_;
}

}  // namespace drawing
