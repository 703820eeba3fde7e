#include "clock/ui/MdiPlacement.h"

#include <QScreen>
#include <cmath>

#include "foundation/FileHelpers.h"
#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"
#include "foundation/Twips.h"
#include "platform/WallClock.h"

using namespace Qt::StringLiterals;

namespace clockcore {

namespace {

constexpr int LargestPixels = 16000;  // beyond that no surface can be made

int ToPixels(double twips) {
    return mduAPILib::RoundToInteger(twips / TwipsPerPixel);
}

int Extent(double twips) {
    return qBound(0, ToPixels(twips), LargestPixels);
}

int Coordinate(double twips) {
    return qBound(-LargestPixels, ToPixels(twips), LargestPixels);
}

QRectF ToTwips(const QRect& pixels) {
    return {pixels.x() * TwipsPerPixel, pixels.y() * TwipsPerPixel, pixels.width() * TwipsPerPixel,
            pixels.height() * TwipsPerPixel};
}

}  // namespace

MdiPlacement::MdiPlacement(QWidget& clock, QMdiArea* area, ClockData& data,
                           platform::WallClock* time)
    : clock_(clock), area_(area), data_(data), time_(time), ownOutline_(clock) {}

void MdiPlacement::MakeFrame() {
    if (area_ == nullptr) {
        return;
    }
    frame_ = new ClockFrame(area_);
    frame_->setAttribute(Qt::WA_DeleteOnClose);
    frame_->setWidget(&clock_);
    frame_->setVisible(false);
    area_->addSubWindow(frame_);
}

QWidget& MdiPlacement::Outer() const {
    return frame_ ? *frame_ : clock_;
}

QSizeF MdiPlacement::ContainerSize() const {
    const QSize pixels =
        area_ != nullptr ? area_->viewport()->size() : clock_.screen()->availableSize();
    return QSizeF(pixels) * TwipsPerPixel;
}

void MdiPlacement::PlaceInTheMiddle() {
    if (area_ == nullptr) {
        return;
    }
    const QSizeF shell = QSizeF(area_->window()->frameGeometry().size()) * TwipsPerPixel;
    const QSizeF size = shell / 4;
    const QSizeF inner = ContainerSize();
    SetOuterRect({(inner.width() - size.width()) / 2, (inner.height() - size.height()) / 2,
                  size.width(), size.height()});
    // Those that look for a free place at their first tick find this one taken.
    const StoredPlace stored = ReadStoredPlace(data_.Properties());
    if (stored.Top || stored.Left) {
        StandInShell(stored);
    }
}

void MdiPlacement::ApplyWindowState() {
    if (data_.Tag.IsWrapper) {
        MaximiseWrapper();
        return;
    }
    const QString state = mduLib::GetProperty(u"Window State"_s, data_.Properties());
    stateWhenShown_ = mduUILib::WindowStateValue(state);
    if (Outer().isVisible()) {
        SetWindowState(stateWhenShown_);
    }
}

void MdiPlacement::ApplyWindowRect() {
    const StoredPlace stored = ReadStoredPlace(data_.Properties());
    if (frame_) {
        StandInShell(stored);
    } else if (!clock_.isVisible() || WindowState() == 0) {
        StandOnScreen(stored);
    }
}

// A child has been sized and centred by its loading. One that has a place already keeps what the
// file leaves open; a new one looks for a place that is free.
void MdiPlacement::StandInShell(const StoredPlace& stored) {
    FramePlace& place = frame_->Place();
    QRect rect = place.Rect();
    rect.setSize({stored.Width ? Extent(*stored.Width) : rect.width(),
                  stored.Height ? Extent(*stored.Height) : rect.height()});
    if (!place.Stands() && !stored.Top && !stored.Left) {
        place.StandWhereFree(rect);
        return;
    }
    rect.moveTo(stored.Left ? Coordinate(*stored.Left) : rect.left(),
                stored.Top ? Coordinate(*stored.Top) : rect.top());
    place.Stand(rect);
}

void MdiPlacement::StandOnScreen(const StoredPlace& stored) {
    const QSizeF screen = ContainerSize();
    const QSizeF size(stored.Width.value_or(screen.width() / 4),
                      stored.Height.value_or(screen.height() / 4));
    SetOuterRect({{stored.Left.value_or((screen.width() - size.width()) / 2),
                   stored.Top.value_or((screen.height() - size.height()) / 2)},
                  size});
}

std::optional<QRectF> MdiPlacement::PlaceToStore() const {
    const bool normal = WindowState() == 0;
    if (!frame_) {
        return normal ? std::optional(OuterRect()) : std::nullopt;
    }
    const FramePlace& place = frame_->Place();
    return normal || place.HasMoved() ? std::optional(ToTwips(place.Rect())) : std::nullopt;
}

void MdiPlacement::SetClockCaption() {
    const QString zone = mduLib::FileBaseName(data_.PropertyFileName, false);
    Outer().setWindowTitle(area_ != nullptr ? zone
                                            : u"Tempolark "_s + QStringLiteral(TEMPOLARK_VERSION));
}

void MdiPlacement::MoveTo(const QString& caption) {
    const auto says = [&caption](const QString& word) { return caption.contains(word); };
    const auto store = [this](const QString& key) {
        mduLib::PutProperty(key, u"-1"_s, data_.EditProperties());
    };
    const QSizeF container = ContainerSize();
    QRectF rect = OuterRect();
    if (says(u"Top"_s)) {
        rect.moveTop(0);
    }
    if (says(u"Bottom"_s)) {
        rect.moveTop(container.height() - rect.height());
    }
    if (says(u"Left"_s)) {
        rect.moveLeft(0);
    }
    if (says(u"Right"_s)) {
        rect.moveLeft(container.width() - rect.width());
    }
    if (says(u"Centre"_s)) {
        rect.moveCenter({container.width() / 2, container.height() / 2});
        store(u"Window Top"_s);
        store(u"Window Left"_s);
    }
    if (says(u"Auto Size"_s)) {
        store(u"Window Width"_s);
        store(u"Window Height"_s);
    }
    if (WindowState() == 0) {
        SetOuterRect(rect);
    }
}

int MdiPlacement::WindowState() const {
    const QWidget& outer = Outer();
    if (!outer.isVisible() && stateWhenShown_ != 0) {
        return stateWhenShown_;
    }
    return outer.isMinimized() ? 1 : outer.isMaximized() ? 2 : 0;
}

void MdiPlacement::SetWindowState(int state) {
    stateWhenShown_ = 0;
    QWidget& outer = Outer();
    switch (state) {
        case 1:
            outer.showMinimized();
            break;
        case 2:
            outer.showMaximized();
            break;
        default:
            outer.showNormal();
    }
}

void MdiPlacement::Show() {
    clock_.show();
    Outer().show();
}

QRectF MdiPlacement::OuterRect() const {
    return ToTwips(Outer().geometry());
}

void MdiPlacement::SetOuterRect(const QRectF& twips) {
    Outer().setGeometry(Coordinate(twips.left()), Coordinate(twips.top()), Extent(twips.width()),
                        Extent(twips.height()));
}

void MdiPlacement::SetOuterSize(const QSizeF& twips) {
    QRectF rect = OuterRect();
    rect.setSize(twips);
    SetOuterRect(rect);
}

}  // namespace clockcore
