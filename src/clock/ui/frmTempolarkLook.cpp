// The clock's window as a canvas, and the operations that change its look.
#include <QPaintEvent>
#include <QPainter>
#include <cmath>

#include "clock/ClockMode.h"
#include "clock/ui/frmTempolark.h"
#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "timezones/ZoneKeys.h"

using namespace Qt::StringLiterals;
using clockcore::ClockState;

QSize frmTempolark::SurfaceSize() const {
    const double ratio = devicePixelRatioF();
    return {mduAPILib::RoundToInteger(width() * ratio),
            mduAPILib::RoundToInteger(height() * ratio)};
}

void frmTempolark::resizeEvent(QResizeEvent*) {
    const QSize size = SurfaceSize();
    surface_ = std::make_unique<drawing::Surface>(size.width(), size.height(), devicePixelRatioF());
    surface_->SetHeight(mduAPILib::RoundToInteger(placement_.OuterRect().height()));
    surface_->Cls(backColour_);
    face_.Invalidate();
    const bool running =
        data_.State == ClockState::Running || data_.State == ClockState::RedrawRequested;
    if (running) {
        tick_.RequestRedraw();
        face_.DrawClockFace();
    }
}

// The surface holds the whole picture. A part that we did not change ourselves has come to light:
// the clock is asked to redraw itself at its next tick.
void frmTempolark::paintEvent(QPaintEvent* event) {
    const QRegion exposed = event->region() - presented_;
    presented_ -= event->region();
    if (!exposed.isEmpty() && data_.State == ClockState::Running) {
        tick_.RequestRedraw();
    }
    QPainter painter(this);
    const double ratio = devicePixelRatioF();
    for (const QRect& part : event->region()) {
        const QRectF source(QPointF(part.topLeft()) * ratio, QSizeF(part.size()) * ratio);
        painter.drawImage(QRectF(part), surface_->Image(), source);
    }
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

bool frmTempolark::CanBeSeen() const {
    return area_ == nullptr ||
           (isVisible() && !visibleRegion().isEmpty() && !window()->isMinimized());
}

int frmTempolark::ParentBackColor() const {
    return shell_ != nullptr ? shell_->BackColor() : mduUILib::TransparentKey;
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
    face_.Invalidate();
}

void frmTempolark::Refresh() {
    face_.Invalidate();
    face_.DrawClockFace();
}

void frmTempolark::LayOutAgain() {
    if (data_.State == ClockState::Running) {
        tick_.RequestRedraw();
    }
}

void frmTempolark::SetClocks(int mode) {
    data_.Tag = QString::number(mode);
    mduLib::PutProperty(u"Clocks"_s, clockcore::ClockModeName(mode), data_.EditProperties());
    background_.ApplyTransparency();
    face_.PrepareClockFace();
    face_.ReadDigitalFormat();
    tick_.RequestRedraw();
}

void frmTempolark::SetWindowBackColour(const QString& value, const QString& caption) {
    const QString colour = mduUILib::IsCustomColour(caption) ? value : caption;
    mduLib::PutProperty(u"Window Background Colour"_s, colour, data_.EditProperties());
    face_.ApplyWindowBackground();
    controls_.picFrame(1).ForeColor = backColour_;
    Refresh();
}

void frmTempolark::SaveCurrentStyle() {
    program_.Module.Paths.CurrentPropertyFile = data_.PropertyFileName;
    if (!files_.MayWrite()) {
        return;
    }
    mduLib::PutProperty(u"Window State"_s, mduUILib::WindowStateName(WindowState()),
                        data_.EditProperties());
    mduLib::WritePropertyFile(program_.Services.FileSystem, data_.Properties(),
                              data_.PropertyFileName);
    if (WindowState() == 0) {
        files_.SavePosition(placement_.OuterRect());
    }
}

void frmTempolark::SetClockStyle(const QString& styleFile) {
    const platform::Files& files = program_.Services.FileSystem;
    ClockProperties style;
    if (!files.Exists(styleFile) || !mduLib::ReadPropertyFile(files, styleFile, style)) {
        return;
    }
    for (const QString& key : mduTimeZones::ZoneKeys()) {
        mduLib::PutProperty(key, mduLib::GetProperty(key, data_.Properties()), style);
    }
    program_.Module.CurrentProperties = style;
    SetWindowState(0);
    RefreshForm({});
}

void frmTempolark::RefreshForm(const QString& fileName) {
    data_.EditProperties() = program_.Module.CurrentProperties;
    if (!fileName.isEmpty()) {
        program_.Module.Paths.CurrentPropertyFile = fileName;
    }
    voice_.PrepareSpeaker();
    files_.RefreshZone();
    data_.State = ClockState::RedrawRequested;
    placement_.SetClockCaption();
    placement_.ApplyWindowRect();
    placement_.ApplyWindowBorder();
    placement_.ApplyTitleBar();
    placement_.ApplyWindowState();
    data_.Tag = QString::number(clockcore::GetClockType(data_.Properties()));
    face_.PrepareClockFace();
    face_.ApplyWindowBackground();
    background_.LoadClockPicture();
    background_.SetWindowShape();
    background_.SetClockShape();
    ApplyEnable();
    overlays_.LoadFlag();
    overlays_.SetFlagPosition();
}
