#include "clock/ui/ClockFrame.h"

#include <qdrawutil.h>
#include <QCoreApplication>
#include <QEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QProxyStyle>
#include <QResizeEvent>
#include <QStyleOption>

#include "clock/ui/DisabledVeil.h"

namespace clockcore {

namespace {

constexpr int PlainWidth = 1;

/// Frames as the clocks in them want them; one style serves all clocks of a shell.
class FrameStyle final : public QProxyStyle {
public:
    explicit FrameStyle(QObject* parent) { setParent(parent); }

    // Without a title bar the border goes on along the upper edge.
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override {
        const auto* frame = qobject_cast<const ClockFrame*>(widget);
        const bool bar = metric == PM_TitleBarHeight;
        if (frame == nullptr || (bar && frame->ShowsTitleBar()) ||
            (!bar && metric != PM_MdiSubWindowFrameWidth)) {
            return QProxyStyle::pixelMetric(metric, option, widget);
        }
        switch (frame->ShownBorder()) {
            case WindowBorder::NoBorder:
                return 0;
            case WindowBorder::Plain:
                return PlainWidth;
            default:
                return QProxyStyle::pixelMetric(PM_MdiSubWindowFrameWidth, option, widget);
        }
    }

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        const auto* frame = qobject_cast<const ClockFrame*>(widget);
        if (frame != nullptr && !frame->ShowsTitleBar()) {
            if (hint == SH_TitleBar_NoBorder) {
                return 1;
            }
            if (hint == SH_WindowFrame_Mask) {  // its corners are those of a title bar
                return 0;
            }
        }
        return QProxyStyle::styleHint(hint, option, widget, data);
    }

    // The strip of the title bar is not the frame's to paint: the border comes from here.
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override {
        const auto* frame = qobject_cast<const ClockFrame*>(widget);
        if (frame == nullptr || control != CC_TitleBar || frame->ShowsTitleBar()) {
            QProxyStyle::drawComplexControl(control, option, painter, widget);
        } else {
            DrawBorder(*frame, *painter);
        }
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        const auto* frame = qobject_cast<const ClockFrame*>(widget);
        const bool own = frame != nullptr && element == PE_FrameWindow;
        const bool asEver =
            own && frame->ShowsTitleBar() && frame->ShownBorder() == WindowBorder::Raised;
        if (!own || asEver) {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
        } else {
            DrawBorder(*frame, *painter);
        }
    }

private:
    void DrawBorder(const ClockFrame& frame, QPainter& painter) const {
        const QRect rect = frame.rect();
        const QPalette& palette = frame.palette();
        if (frame.ShownBorder() == WindowBorder::Plain) {
            qDrawPlainRect(&painter, rect, palette.color(QPalette::Shadow), PlainWidth);
        } else if (frame.ShownBorder() == WindowBorder::Raised) {
            const int width = pixelMetric(PM_MdiSubWindowFrameWidth, nullptr, &frame);
            qDrawPlainRect(&painter, rect, palette.color(QPalette::Window), width);
            qDrawWinPanel(&painter, rect, palette);
        }
    }
};

QStyle* StyleOf(QMdiArea* area) {
    constexpr QLatin1StringView name("ClockFrames");
    auto* style = area->findChild<QStyle*>(name, Qt::FindDirectChildrenOnly);
    if (style == nullptr) {
        style = new FrameStyle(area);
        style->setObjectName(name);
    }
    return style;
}

// A minimised clock has the buttons that bring it back.
Qt::WindowFlags FlagsOf(const ClockFrame& frame) {
    Qt::WindowFlags flags = Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowSystemMenuHint |
                            Qt::WindowCloseButtonHint;
    flags.setFlag(Qt::WindowTitleHint, frame.ShowsTitleBar());
    flags.setFlag(Qt::WindowMinMaxButtonsHint, frame.isMinimized());
    return flags;
}

}  // namespace

ClockFrame::ClockFrame(QMdiArea* area) : ground_(area->viewport()), place_(*this, *area) {
    setStyle(StyleOf(area));
    setWindowFlags(FlagsOf(*this));
    // Ctrl+W is a key of the clock.
    for (QAction* action : systemMenu()->actions()) {
        action->setShortcuts(QList<QKeySequence>());
    }
    ground_->installEventFilter(this);
}

// The flags' setter also takes the frame's measures anew, and may enlarge the window.
void ClockFrame::SetLook(const FrameLook& look) {
    if (look_ == look) {
        return;
    }
    look_ = look;
    const QRect place = geometry();
    setWindowFlags(FlagsOf(*this));
    if (geometry() != place) {
        setGeometry(place);
    }
    outline_.Apply();
    update();
}

void ClockFrame::ApplyFlags() {
    if (const Qt::WindowFlags flags = FlagsOf(*this); windowFlags() != flags) {
        setWindowFlags(flags);
    }
}

void ClockFrame::RestoreMask() {
    QResizeEvent same(size(), size());
    QMdiSubWindow::resizeEvent(&same);
}

// The base class clears the mask in each of these.

void ClockFrame::resizeEvent(QResizeEvent* event) {
    QMdiSubWindow::resizeEvent(event);
    outline_.Apply();
}

void ClockFrame::showEvent(QShowEvent* event) {
    QMdiSubWindow::showEvent(event);
    outline_.Apply();
}

// In the middle of a change the toolkit corrects the state by events of its own. They are left to
// it: whatever sizes the frame meanwhile, the old state comes back.
void ClockFrame::changeEvent(QEvent* event) {
    if (event->type() == QEvent::WindowStateChange) {
        ChangeState(static_cast<QWindowStateChangeEvent*>(event));
    } else {
        QMdiSubWindow::changeEvent(event);
        outline_.Apply();
    }
}

void ClockFrame::ChangeState(QWindowStateChangeEvent* event) {
    if (event->isOverride()) {
        QMdiSubWindow::changeEvent(event);
        return;
    }
    const Qt::WindowStates before = event->oldState();
    place_.StateChanges(before);
    QMdiSubWindow::changeEvent(event);
    ApplyFlags();
    place_.StateChanged(before);
    outline_.Apply();
}

// What a disabled window leaves, the toolkit gives to the area behind it, as if nothing stood
// there. The clock itself answers a right click.
bool ClockFrame::event(QEvent* event) {
    if (isEnabled()) {
        return QMdiSubWindow::event(event);
    }
    switch (event->type()) {
        case QEvent::ContextMenu:
            return widget() != nullptr && QCoreApplication::sendEvent(widget(), event);
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
            event->accept();
            return true;
        default:
            return QMdiSubWindow::event(event);
    }
}

void ClockFrame::paintEvent(QPaintEvent* event) {
    QMdiSubWindow::paintEvent(event);
    if (!isEnabled()) {
        QPainter painter(this);
        DrawDisabledVeil(painter, event->region());
    }
}

// The toolkit answers only where the bar can be dragged, too.
void ClockFrame::mouseDoubleClickEvent(QMouseEvent* event) {
    if (isMinimized() && event->button() == Qt::LeftButton) {
        showNormal();
    } else {
        QMdiSubWindow::mouseDoubleClickEvent(event);
    }
}

bool ClockFrame::eventFilter(QObject* watched, QEvent* event) {
    if (watched == ground_ && event->type() == QEvent::Resize) {
        place_.AreaResized();
    }
    return QMdiSubWindow::eventFilter(watched, event);
}

}  // namespace clockcore
