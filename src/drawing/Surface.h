#pragma once

#include <QImage>
#include <functional>

#include "foundation/Twips.h"

class QPainter;

namespace drawing {

/// A clock's drawing surface: an opaque bitmap in device pixels. Colours are numbers with red in
/// the low byte. What lies outside is clipped.
class Surface {
public:
    /// @param devicePixelRatio device pixels per logical pixel (96 per inch)
    Surface(int scaleWidth, int scaleHeight, double devicePixelRatio);

    int ScaleWidth() const { return image_.width(); }
    int ScaleHeight() const { return image_.height(); }
    double DevicePixelRatio() const { return devicePixelRatio_; }
    /// The surface's height in logical pixels, which sizes in points and properties in pixels
    /// relate to.
    double LogicalHeight() const { return ScaleHeight() / devicePixelRatio_; }
    double TwipsPerDevicePixel() const { return TwipsPerPixel / devicePixelRatio_; }

    /// The window's outer height in twips; it differs from the surface's where there is a frame.
    int Height() const { return height_; }
    void SetHeight(int twips) { height_ = twips; }

    /// Clears the whole surface to a colour.
    void Cls(int colour);

    /// A straight, anti-aliased line in the style solid, @p drawWidth pixels wide (below 1: a
    /// hairline of 1). Ends are pixel centres and belong to the line; a wide line has round ends.
    void Line(int x1, int y1, int x2, int y2, int colour, int drawWidth);

    void SetPixel(int x, int y, int colour);

    /// The raw pixels of a row and the pixels from one row to the next, for shapes that keep within
    /// `Clip` by themselves.
    QRgb* Row(int y) { return ScanLine(y); }
    std::ptrdiff_t Stride() const { return stride_; }

    /// Lets the toolkit's painter draw what is beyond single pixels: text and pictures.
    void Paint(const std::function<void(QPainter&)>& paint);

    /// Limits all drawing to a rectangle of the surface; a null one means no limit.
    void SetClip(const QRect& rect);
    const QRect& Clip() const { return clip_; }

    /// Copies the pixels within the clip from a bitmap of the same size and form.
    void CopyFrom(const QImage& image);
    /// Copies the whole bitmap; one of the right size is used again.
    void CopyTo(QImage& image) const;

    /// The live bitmap: a copy of it shares the pixels and sees what is drawn later.
    const QImage& Image() const { return image_; }

private:
    QRgb* ScanLine(int y) { return pixels_ + static_cast<std::ptrdiff_t>(y) * stride_; }

    QImage image_;
    QRgb* pixels_;           // of the image, which nobody else writes
    std::ptrdiff_t stride_;  // pixels from one row to the next
    double devicePixelRatio_;
    int height_;
    QRect whole_;
    QRect clip_;
};

/// The bitmap's form of a colour number.
QRgb ToRgb(int colour);

}  // namespace drawing
