#include "clock/ClockCanvas.h"

#include <QPainter>
#include <algorithm>
#include <utility>

#include "drawing/StockPictures.h"
#include "foundation/Numbers.h"

namespace clockcore {

namespace {

/// The picture with its pure white pixels see-through.
QImage WithColourKey(const QImage& picture) {
    QImage keyed = picture.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < keyed.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(keyed.scanLine(y));
        std::replace(row, row + keyed.width(), qRgb(255, 255, 255), qRgba(255, 255, 255, 0));
    }
    return keyed;
}

}  // namespace

void ClockCanvas::TakeSurface() {
    const double ratio = screen_.DevicePixelRatio();
    const QSize size = screen_.Size();
    surface_ =
        std::make_unique<drawing::Surface>(mduAPILib::RoundToInteger(size.width() * ratio),
                                           mduAPILib::RoundToInteger(size.height() * ratio), ratio);
    surface_->SetHeight(mduAPILib::RoundToInteger(placement_.OuterRect().height()));
    surface_->Cls(backColour_);
    StillChanged();
}

bool ClockCanvas::FitsTheScreen() const {
    return surface_->DevicePixelRatio() == screen_.DevicePixelRatio();
}

void ClockCanvas::Cls() {
    surface_->Cls(backColour_);
    if (face_ != nullptr) {
        face_->Invalidate();
    }
    Present(QRect(0, 0, surface_->ScaleWidth(), surface_->ScaleHeight()));
}

void ClockCanvas::LockWindowUpdate(bool locked) {
    locked_ = locked;
    if (!locked) {
        Present(std::exchange(lockedChanges_, {}));
    }
}

void ClockCanvas::Present(const QRegion& changed) {
    if (locked_) {
        lockedChanges_ += changed;
        return;
    }
    const double ratio = screen_.DevicePixelRatio();
    QRegion logical;
    for (const QRect& part : changed) {
        logical +=
            QRectF(QPointF(part.topLeft()) / ratio, QSizeF(part.size()) / ratio).toAlignedRect();
    }
    logical &= QRect(QPoint(0, 0), screen_.Size());
    presented_ += logical;
    screen_.Update(logical);
}

QRegion ClockCanvas::Exposed(const QRegion& painted) {
    QRegion exposed = painted - presented_;
    presented_ -= painted;
    return exposed;
}

QImage ClockCanvas::ShownPicture() const {
    const bool keyed = colourKey_ && !screen_.IsMDIChild();
    return keyed ? WithColourKey(surface_->Image()) : surface_->Image();
}

QImage ClockCanvas::SeenPicture() const {
    QImage picture = ShownPicture().convertToFormat(QImage::Format_ARGB32);
    if (outline_.isEmpty()) {
        return picture;
    }
    QImage seen(picture.size(), QImage::Format_ARGB32);
    seen.fill(Qt::transparent);
    QPainter painter(&seen);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.setClipRegion(outline_.translated(-SurfaceOffset()));
    painter.drawImage(0, 0, picture);
    return seen;
}

bool ClockCanvas::CanBeSeen() const {
    return lookedAt_ && (!screen_.IsMDIChild() || screen_.IsInSight());
}

void ClockCanvas::StillChanged() {
    if (face_ != nullptr) {
        face_->StillChanged();
    }
}

void ClockCanvas::ShowChanges() {
    if (face_ != nullptr && state_.IsDrawn()) {
        face_->ShowChanges();
    }
}

void ClockCanvas::SetBackColor(int colour) {
    backColour_ = colour;
    StillChanged();
}

void ClockCanvas::SetColourKey(bool on) {
    colourKey_ = on;
    placement_.SetColourKey(on);
}

void ClockCanvas::SetWindowRgn(const QRegion& outline) {
    outline_ = outline;
    placement_.SetWindowRgn(outline);
}

void ClockCanvas::SetIcon(const QImage& picture) {
    placement_.SetIcon(picture.isNull() ? *drawing::GetStockPicture(drawing::StockPicture::Clock)
                                        : picture);
}

}  // namespace clockcore
