// The clock's window as a canvas: its surface, and how that comes to the screen.
#include <QBitmap>
#include <QPaintEvent>
#include <QPainter>
#include <QPixmap>

#include "clock/ui/DisabledVeil.h"
#include "clock/ui/frmTempolark.h"
#include "drawing/StockPictures.h"
#include "drawing/TimerMarks.h"
#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"

using clockcore::ClockState;

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

QSize frmTempolark::SurfaceSize() const {
    const double ratio = devicePixelRatioF();
    return {mduAPILib::RoundToInteger(width() * ratio),
            mduAPILib::RoundToInteger(height() * ratio)};
}

bool frmTempolark::SurfaceFitsTheScreen() const {
    return surface_->DevicePixelRatio() == devicePixelRatioF();
}

void frmTempolark::resizeEvent(QResizeEvent*) {
    TakeSurface();
}

void frmTempolark::TakeSurface() {
    const QSize size = SurfaceSize();
    surface_ = std::make_unique<drawing::Surface>(size.width(), size.height(), devicePixelRatioF());
    surface_->SetHeight(mduAPILib::RoundToInteger(placement_.OuterRect().height()));
    surface_->Cls(backColour_);
    face_.StillChanged();
    mduUILib::Control& action = controls_.imgAction(1);
    action.Width = action.Height = static_cast<float>(drawing::TimerMarkSide(*surface_));
    const bool running =
        data_.State == ClockState::Running || data_.State == ClockState::RedrawRequested;
    if (running) {
        LayOutFace();
        tick_.RequestRedraw();
        overlays_.LayOutOverlays();
        face_.DrawClockFace();
    }
}

// So that the face follows the mouse that drags the window's edge; the redraw at the next tick
// comes all the same.
void frmTempolark::LayOutFace() {
    background_.ApplySurface();
    dial_.DrawDialNumbers(data_.IsAnalogue() ? drawing::DialParts::All : drawing::DialParts::None);
}

// The surface holds the whole picture. A part that we did not change ourselves has come to light:
// the clock is asked to redraw itself at its next tick.
void frmTempolark::paintEvent(QPaintEvent* event) {
    if (!SurfaceFitsTheScreen()) {
        TakeSurface();  // the window has come to another screen
    }
    const QRegion exposed = event->region() - presented_;
    presented_ -= event->region();
    if (!exposed.isEmpty() && data_.State == ClockState::Running) {
        tick_.RequestRedraw();
    }
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    const bool keyed = colourKey_ && !IsMDIChild();
    const QImage seen = keyed ? WithColourKey(surface_->Image()) : QImage();
    const double ratio = devicePixelRatioF();
    for (const QRect& part : event->region()) {
        const QRectF source(QPointF(part.topLeft()) * ratio, QSizeF(part.size()) * ratio);
        painter.drawImage(QRectF(part), keyed ? seen : surface_->Image(), source);
    }
    if (!isEnabled()) {
        clockcore::DrawDisabledVeil(painter, event->region());
    }
}

QImage frmTempolark::SeenPicture() const {
    QImage picture = colourKey_ && !IsMDIChild()
                         ? WithColourKey(surface_->Image())
                         : surface_->Image().convertToFormat(QImage::Format_ARGB32);
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

void frmTempolark::Present(const QRegion& changed) {
    if (locked_) {
        lockedChanges_ += changed;
        return;
    }
    const double ratio = devicePixelRatioF();
    QRegion logical;
    for (const QRect& part : changed) {
        logical +=
            QRectF(QPointF(part.topLeft()) / ratio, QSizeF(part.size()) / ratio).toAlignedRect();
    }
    logical &= rect();
    presented_ += logical;
    update(logical);
}

// Until the first tick has laid the face out there is nothing to show.
void frmTempolark::ShowChanges() {
    if (data_.State == ClockState::Running || data_.State == ClockState::RedrawRequested) {
        face_.ShowChanges();
    }
}

bool frmTempolark::CanBeSeen() const {
    return lookedAt_ && (area_ == nullptr || IsInSight());
}

bool frmTempolark::IsInSight() const {
    return isVisible() && !visibleRegion().isEmpty() && !window()->isMinimized();
}

int frmTempolark::ParentBackColor() const {
    return shell_ != nullptr ? shell_->BackColor() : mduUILib::TransparentKey;
}

void frmTempolark::SetWindowRgn(const QRegion& outline) {
    outline_ = outline;
    placement_.SetWindowRgn(outline);
}

void frmTempolark::SetColourKey(bool on) {
    colourKey_ = on;
    placement_.SetColourKey(on);
}

void frmTempolark::SetIcon(const QImage& picture) {
    const QImage icon =
        picture.isNull() ? *drawing::GetStockPicture(drawing::StockPicture::Clock) : picture;
    placement_.Outer().setWindowIcon(QPixmap::fromImage(icon));
}

void frmTempolark::Cls() {
    surface_->Cls(backColour_);
    face_.Invalidate();
    Present(QRect(0, 0, surface_->ScaleWidth(), surface_->ScaleHeight()));
}

void frmTempolark::LockWindowUpdate(bool locked) {
    locked_ = locked;
    if (!locked) {
        Present(std::exchange(lockedChanges_, {}));
    }
}

void frmTempolark::HideHandShapes() {
    for (mduUILib::ControlArray* shapes :
         {&controls_.shpHourHand, &controls_.shpMinuteHand, &controls_.shpSecondHand}) {
        for (mduUILib::Control& shape : shapes->Members) {
            shape.Visible = false;
        }
    }
}

void frmTempolark::SetBackColor(int colour) {
    backColour_ = colour;
    face_.StillChanged();
}

void frmTempolark::Refresh() {
    face_.StillChanged();
    face_.DrawClockFace();
}

void frmTempolark::LayOutAgain() {
    if (data_.State == ClockState::Running) {
        tick_.RequestRedraw();
    }
}

void frmTempolark::FinishMotions() {
    digital_.FinishMotion();
    background_.FinishWipe();
}
