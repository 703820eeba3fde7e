// The frame of a clock's window: border, title bar, outline, opening and closing.
#include <QPixmap>
#include <algorithm>

#include "clock/ui/MdiPlacement.h"
#include "drawing/Shapes.h"
#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;

namespace clockcore {

QString MdiPlacement::Property(const QString& key) const {
    return mduLib::GetProperty(key, data_.Properties()).trimmed();
}

drawing::Shape MdiPlacement::WindowShape() const {
    return drawing::ReadShape(Property(u"Window Shape"_s));
}

void MdiPlacement::ApplyWindowBorder() {
    if (WindowShape() == drawing::Shape::Normal) {
        const WindowBorder border = mduUILib::ReadWindowBorder(Property(u"Window Border"_s));
        look_.Border = border == WindowBorder::Unknown ? look_.Border : border;
    }
    ApplyLook();
}

void MdiPlacement::ApplyTitleBar() {
    if (WindowShape() == drawing::Shape::Normal) {
        look_.TitleBar = mduUILib::YesNoToBool(Property(u"Window Title Bar"_s));
    }
    ApplyLook();
}

void MdiPlacement::ApplyLook() {
    const bool bare = data_.Tag.IsWrapper || drawing::IsFigure(WindowShape());
    const FrameLook look = bare ? FrameLook{WindowBorder::NoBorder, false} : look_;
    if (frame_) {
        frame_->SetLook(look);
        return;
    }
    Qt::WindowFlags flags = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowStaysOnTopHint;
    if (look.TitleBar) {
        flags |= Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    } else if (look.Border == WindowBorder::NoBorder) {
        flags |= Qt::FramelessWindowHint;
    }
    ApplyFlags(flags);
}

void MdiPlacement::ApplyFlags(Qt::WindowFlags flags) {
    if (area_ == nullptr && clock_.windowFlags() != flags) {
        MakeWindowAnew(flags);
    }
}

// A window of the screen is taken down and set up again, with all that it had.
void MdiPlacement::MakeWindowAnew(Qt::WindowFlags flags) {
    const bool visible = clock_.isVisible();
    const QRect place = clock_.isVisible() ? clock_.normalGeometry() : clock_.geometry();
    const Qt::WindowStates states = clock_.windowState();
    clock_.setParent(nullptr, flags);
    clock_.setGeometry(place);
    clock_.setWindowState(states);
    ownOutline_.Apply();
    if (visible) {
        clock_.show();
    }
}

WindowOutline& MdiPlacement::Outline() {
    return frame_ ? frame_->Outline() : ownOutline_;
}

void MdiPlacement::SetWindowRgn(const QRegion& outline) {
    Outline().SetFigure(ToLogicalPixels(outline, clock_.devicePixelRatioF()));
}

QPoint MdiPlacement::SurfaceOffset() const {
    if (!frame_) {
        return {0, 0};
    }
    return (QPointF(clock_.mapTo(frame_.data(), QPoint(0, 0))) * clock_.devicePixelRatioF())
        .toPoint();
}

void MdiPlacement::SetIcon(const QImage& picture) {
    Outer().setWindowIcon(QPixmap::fromImage(picture));
}

void MdiPlacement::SetColourKey(bool on) {
    if (area_ != nullptr || clock_.testAttribute(Qt::WA_TranslucentBackground) == on) {
        return;
    }
    clock_.setAttribute(Qt::WA_TranslucentBackground, on);
    clock_.setAttribute(Qt::WA_NoSystemBackground, on);
    clock_.setAttribute(Qt::WA_OpaquePaintEvent, !on);
    if (clock_.testAttribute(Qt::WA_WState_Created)) {
        MakeWindowAnew(clock_.windowFlags());
    }
}

int MdiPlacement::AnimationRate() const {
    const double rate = mduAPILib::Val(Property(u"Window Open/Close Animation Rate"_s));
    return time_ == nullptr || rate <= 0
               ? 0
               : static_cast<int>(std::clamp(rate, 1.0, 1.0 * LongestReveal));
}

void MdiPlacement::ShowClockWindow(bool show) {
    const int rate = AnimationRate();
    if (opening_) {
        opening_->Finish();
    }
    if (show) {
        if (rate > 0 && stateWhenShown_ != 1 && !Outer().isVisible()) {
            opening_.emplace(*time_, [this](double part) { Outline().SetRevealed(part); });
            opening_->Start(rate);
        }
        Open();
        ApplyWindowBorder();
        return;
    }
    // A clock that stands alone is the whole program: nothing is left to show its end.
    if (rate > 0 && frame_) {
        ShowShrinking(*frame_, *time_, rate);
    }
    if (frame_) {
        frame_->Place().Leave();
    }
    Outer().hide();
}

void MdiPlacement::Open() {
    Show();
    if (stateWhenShown_ != 0) {
        SetWindowState(stateWhenShown_);
    }
}

void MdiPlacement::MaximiseWrapper() {
    if (WindowState() != 0) {
        SetWindowState(0);
    }
    ApplyLook();
    SetWindowState(2);
    Show();
}

}  // namespace clockcore
