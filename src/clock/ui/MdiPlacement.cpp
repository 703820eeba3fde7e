#include "clock/ui/MdiPlacement.h"

#include <QScreen>
#include <cmath>

#include "foundation/FileHelpers.h"
#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"
#include "foundation/Twips.h"

using namespace Qt::StringLiterals;

namespace clockcore {

namespace {

constexpr double Automatic = -1;
constexpr int LargestPixels = 16000;  // beyond that no surface can be made

int ToPixels(double twips) {
    return mduAPILib::RoundToInteger(twips / TwipsPerPixel);
}

}  // namespace

MdiPlacement::MdiPlacement(QWidget& clock, QMdiArea* area, const ClockData& data,
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
}

void MdiPlacement::ApplyWindowState() {
    if (data_.Is(Wrapper)) {
        MaximiseWrapper();
        return;
    }
    const QString state = mduLib::GetProperty(u"Window State"_s, data_.Properties());
    stateWhenShown_ = mduUILib::WindowStateValue(state);
    if (Outer().isVisible()) {
        SetWindowState(stateWhenShown_);
    }
}

// A child has been sized and centred by its loading; -1 leaves it so.
void MdiPlacement::ApplyWindowRect() {
    if (WindowState() != 0) {
        return;
    }
    const auto value = [this](const QString& key) {
        return mduAPILib::Val(mduLib::GetProperty(key, data_.Properties()));
    };
    const QSizeF container = ContainerSize();
    QRectF rect = OuterRect();
    const auto extent = [this](double stored, double present, double whole) {
        return stored != Automatic ? stored : area_ != nullptr ? present : whole / 4;
    };
    rect.setWidth(extent(value(u"Window Width"_s), rect.width(), container.width()));
    rect.setHeight(extent(value(u"Window Height"_s), rect.height(), container.height()));
    const auto place = [this](double stored, double present, double whole, double size) {
        return stored != Automatic ? stored : area_ != nullptr ? present : (whole - size) / 2;
    };
    rect.moveTop(place(value(u"Window Top"_s), rect.top(), container.height(), rect.height()));
    rect.moveLeft(place(value(u"Window Left"_s), rect.left(), container.width(), rect.width()));
    SetOuterRect(rect);
}

void MdiPlacement::SetClockCaption() {
    const QString zone = mduLib::FileBaseName(data_.PropertyFileName, false);
    Outer().setWindowTitle(area_ != nullptr ? zone
                                            : u"Tempolark "_s + QStringLiteral(TEMPOLARK_VERSION));
}

void MdiPlacement::MoveTo(const QString& caption, ClockData& data) {
    const auto says = [&caption](const QString& word) { return caption.contains(word); };
    const auto store = [&data](const QString& key) {
        mduLib::PutProperty(key, u"-1"_s, data.EditProperties());
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
    const QRect pixels = Outer().geometry();
    return {pixels.x() * TwipsPerPixel, pixels.y() * TwipsPerPixel, pixels.width() * TwipsPerPixel,
            pixels.height() * TwipsPerPixel};
}

void MdiPlacement::SetOuterRect(const QRectF& twips) {
    const auto size = [](double value) { return qBound(0, ToPixels(value), LargestPixels); };
    const auto place = [](double value) {
        return qBound(-LargestPixels, ToPixels(value), LargestPixels);
    };
    Outer().setGeometry(place(twips.left()), place(twips.top()), size(twips.width()),
                        size(twips.height()));
}

void MdiPlacement::SetOuterSize(const QSizeF& twips) {
    QRectF rect = OuterRect();
    rect.setSize(twips);
    SetOuterRect(rect);
}

}  // namespace clockcore
