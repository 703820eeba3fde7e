#include "foundation/ui/CBalloonToolTip.h"

#include <QEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <utility>

#include "foundation/Contrast.h"
#include "foundation/Numbers.h"
#include "foundation/Twips.h"

namespace {

QColor FromColour(int colour) {
    return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF};
}

QColor DesktopsColour(QPalette::ColorRole role) {
    return QToolTip::palette().color(QPalette::Inactive, role);
}

}  // namespace

int CBalloonToolTip::ReadableColor(int colour) {
    if (colour == Unset) {
        return Unset;
    }
    const QColor shade =
        mduUILib::ReadableShade(FromColour(colour), DesktopsColour(QPalette::ToolTipBase));
    return shade.red() | shade.green() << 8 | shade.blue() << 16;
}

CBalloonToolTip::CBalloonToolTip(platform::WallClock& clock)
    : ticker_(clock.MakeTicker([this] { OnTicker(); })) {}

CBalloonToolTip::~CBalloonToolTip() {
    DropWindow();
}

void CBalloonToolTip::DropWindow() {
    const BalloonWindow* window = window_;
    window_.clear();
    delete window;
}

void CBalloonToolTip::SetShown(bool shown) {
    if (!shown) {
        Destroy();
    }
}

void CBalloonToolTip::CreateToolTip(QWidget* ownerWindow, bool& ok) {
    Destroy();
    DropWindow();
    WatchOwner(ownerWindow);
    ok = ownerWindow != nullptr;
    if (ok) {
        window_ = new BalloonWindow(ownerWindow, [this] { Destroy(); });
    }
}

void CBalloonToolTip::Show(int x, int y, const QSize& tool) {
    if (window_ == nullptr) {
        return;
    }
    const QPoint point = owner_->mapToGlobal(QPoint(x, y));
    trackPosition_ = point.x() + point.y() * 65536;
    Appear(QRect(point, tool));
}

void CBalloonToolTip::Appear(const QRect& screenTool) {
    ownersWindow_ = owner_->window();
    ownersWindow_->installEventFilter(this);
    shown_ = true;
    window_->Appear(Look(), screenTool,
                    beside_     ? BalloonStand::Beside
                    : centered_ ? BalloonStand::Centred
                                : BalloonStand::Hanging);
    StartWait(Wait::ToGo, visibleTime_);
}

void CBalloonToolTip::AfterDelay(std::function<void()> show) {
    popupOnDemand_ = true;
    delayed_ = std::move(show);
    StartWait(Wait::ToAppear, delayTime_);
}

void CBalloonToolTip::Destroy() {
    delayed_ = nullptr;
    StartWait(Wait::None, 0);
    if (!shown_) {
        return;
    }
    shown_ = false;
    if (window_ != nullptr) {
        window_->hide();
    }
    if (Closed) {
        Closed();
    }
}

void CBalloonToolTip::SetUp(int icon, QWidget* owner, const QString& title, const QString& text,
                            int backColor, int foreColor) {
    style_ = 1;
    icon_ = icon;
    title_ = title;
    tipText_ = text;
    backColor_ = backColor;
    foreColor_ = foreColor;
    delayTime_ = 500;
    centered_ = false;
    beside_ = false;
    visibleTime_ = 10000;
    bool ok = false;
    CreateToolTip(owner, ok);
}

void CBalloonToolTip::BalloonInfoSetup(QWidget* owner, const QString& title, const QString& text,
                                       int backColor, int foreColor) {
    SetUp(Information, owner, title, text, backColor, foreColor);
}

void CBalloonToolTip::BalloonWarningSetup(QWidget* owner, const QString& title, const QString& text,
                                          int backColor, int foreColor) {
    SetUp(Warning, owner, title, text, backColor, foreColor);
}

void CBalloonToolTip::ShowAtTwips(double x, double y) {
    Show(mduAPILib::RoundToInteger(x / TwipsPerPixel - 1),
         mduAPILib::RoundToInteger(y / TwipsPerPixel - 1));
}

void CBalloonToolTip::ShowBalloonInfo(QWidget* owner, double x, double y, const QString& title,
                                      const QString& text, int backColor, int foreColor) {
    popupOnDemand_ = true;
    BalloonInfoSetup(owner, title, text, backColor, foreColor);
    ShowAtTwips(x, y);
}

void CBalloonToolTip::ShowBalloonWarning(QWidget* owner, double x, double y, const QString& title,
                                         const QString& text, int backColor, int foreColor) {
    popupOnDemand_ = true;
    BalloonWarningSetup(owner, title, text, backColor, foreColor);
    ShowAtTwips(x, y);
}

void CBalloonToolTip::ReloadBalloonInfo(QWidget* owner, double x, double y) {
    ShowBalloonInfo(owner, x, y, title_, tipText_, backColor_, foreColor_);
}

void CBalloonToolTip::ShowBalloonError(QWidget* owner, int x, int y, const QString& title,
                                       const QString& text, int backColor) {
    style_ = 1;
    icon_ = Error;
    title_ = title;
    tipText_ = text;
    backColor_ = backColor;
    foreColor_ = 255;
    popupOnDemand_ = true;
    bool ok = false;
    CreateToolTip(owner, ok);
    Show(x, y);
}

int CBalloonToolTip::ToolFlags() const {
    if (centered_) {
        return popupOnDemand_ ? 35 : 19;
    }
    return popupOnDemand_ ? 289 : 17;
}

BalloonLook CBalloonToolTip::Look() const {
    BalloonLook look{title_,
                     tipText_.left(maxLength_).trimmed(),
                     icon_,
                     DesktopsColour(QPalette::ToolTipBase),
                     DesktopsColour(QPalette::ToolTipText),
                     style_ == 1};
    if (backColor_ != Unset) {
        look.Back = FromColour(backColor_);
        look.Fore = mduUILib::ReadableOn(look.Back);
    }
    if (foreColor_ != Unset) {
        look.Fore = FromColour(foreColor_);
    }
    return look;
}

void CBalloonToolTip::WatchOwner(QWidget* owner) {
    for (QWidget* watched : {owner_.data(), ownersWindow_.data()}) {
        if (watched != nullptr) {
            watched->removeEventFilter(this);
            watched->disconnect(this);
        }
    }
    owner_ = owner;
    wasSeen_ = false;
    if (owner != nullptr) {
        owner->installEventFilter(this);
        connect(owner, &QObject::destroyed, this, &CBalloonToolTip::Destroy);
    }
}

void CBalloonToolTip::Rest(const QPoint& screenPoint) {
    restPoint_ = screenPoint;
    if (!popupOnDemand_ && !shown_ && !wasSeen_) {
        StartWait(Wait::ToAppear, delayTime_);
    }
}

void CBalloonToolTip::LeaveAlone() {
    if (!popupOnDemand_) {
        Destroy();
    }
}

bool CBalloonToolTip::eventFilter(QObject* watched, QEvent* event) {
    const bool isOwner = watched == owner_;
    switch (event->type()) {
        case QEvent::Hide:
        case QEvent::WindowDeactivate:
            Destroy();
            break;
        case QEvent::Move:
            if (watched == ownersWindow_ && shown_ && window_ != nullptr) {
                const auto* move = static_cast<QMoveEvent*>(event);
                window_->move(window_->pos() + move->pos() - move->oldPos());
            }
            break;
        case QEvent::Enter:
            if (isOwner) {
                Rest(static_cast<QEnterEvent*>(event)->globalPosition().toPoint());
            }
            break;
        case QEvent::MouseMove:
            if (isOwner) {
                Rest(static_cast<QMouseEvent*>(event)->globalPosition().toPoint());
            }
            break;
        case QEvent::Leave:
            if (isOwner) {
                LeaveAlone();
                wasSeen_ = false;
            }
            break;
        case QEvent::MouseButtonPress:
            if (isOwner) {
                LeaveAlone();
                wasSeen_ = true;
            }
            break;
        default:
            break;
    }
    return false;
}

void CBalloonToolTip::StartWait(Wait wait, int milliseconds) {
    wait_ = wait;
    ticker_->SetInterval(0);  // a shot that was due sooner must not come
    ticker_->SetInterval(wait == Wait::None ? 0 : milliseconds);
}

void CBalloonToolTip::OnTicker() {
    const Wait ended = wait_;
    const std::function<void()> delayed = std::exchange(delayed_, nullptr);
    StartWait(Wait::None, 0);
    if (ended == Wait::ToGo) {
        Destroy();
    } else if (delayed) {
        delayed();
    } else if (ended == Wait::ToAppear && window_ != nullptr && owner_->isVisible()) {
        wasSeen_ = true;
        const QRect tool(owner_->mapToGlobal(QPoint(0, 0)), owner_->size());
        Appear(centered_ ? tool : QRect(restPoint_, QSize(0, 16)));  // clear of the pointer
    }
}
