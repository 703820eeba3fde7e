#include "drawing/LabelText.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "drawing/FontText.h"
#include "drawing/Surface.h"
#include "foundation/Numbers.h"

namespace drawing {

namespace {

constexpr double PixelsPerPoint = 96.0 / 72;
constexpr double SmallestFont = 1;  // in pixels; the toolkit refuses 0
constexpr double LargestFont = LargestFontExtent;

double Pixels(const QFont& font, double devicePixelRatio) {
    return font.pointSizeF() * PixelsPerPoint * devicePixelRatio;
}

}  // namespace

QFont PixelFont(const QFont& font, double devicePixelRatio) {
    QFont inPixels(font);
    inPixels.setFamily(InstalledFamily(font.family()));
    const double pixels = std::clamp(Pixels(font, devicePixelRatio), SmallestFont, LargestFont);
    inPixels.setPixelSize(mduAPILib::RoundToInteger(pixels));
    return inPixels;
}

QSizeF TextSize(const QFont& font, const QString& text, double devicePixelRatio) {
    const QFontMetricsF metrics(PixelFont(font, devicePixelRatio));
    return {std::ceil(metrics.horizontalAdvance(text)), std::ceil(metrics.height())};
}

void AutoSize(mduUILib::Control& label, double devicePixelRatio) {
    const QSizeF size = TextSize(label.Font, label.Caption, devicePixelRatio);
    label.Width = static_cast<float>(size.width());
    label.Height = static_cast<float>(size.height());
}

void PaintLabel(QPainter& painter, const mduUILib::Control& label, double devicePixelRatio) {
    if (!label.Visible || label.Caption.isEmpty() ||
        Pixels(label.Font, devicePixelRatio) > LargestFont) {
        return;
    }
    painter.setFont(PixelFont(label.Font, devicePixelRatio));
    painter.setPen(QColor::fromRgb(ToRgb(label.ForeColor)));
    painter.drawText(label.Rect(), Qt::AlignCenter | Qt::TextDontClip, label.Caption);
}

void PaintImage(QPainter& painter, const mduUILib::Control& image) {
    if (image.Visible && image.Picture && !image.Picture->isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(image.Rect(), *image.Picture);
    }
}

}  // namespace drawing
