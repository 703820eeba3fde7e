#include "clock/ui/FramePlace.h"

#include <QCoreApplication>
#include <QMoveEvent>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>

#include "clock/ui/ClockFrame.h"

namespace clockcore {

namespace {

bool IsNormal(Qt::WindowStates states) {
    return !(states & (Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen));
}

/// Moves a scroll bar so far that what reaches from @p first to @p last comes to be seen.
void ScrollAlong(QScrollBar& bar, int first, int last, int room) {
    if (first < 0) {
        bar.setValue(bar.value() + first);
    } else if (last >= room) {
        bar.setValue(bar.value() + std::min(first, last - room + 1));
    }
}

}  // namespace

QPoint FramePlace::Scrolled() const {
    const int along = area_.horizontalScrollBar()->value();
    return {area_.isLeftToRight() ? along : -along, area_.verticalScrollBar()->value()};
}

QRect FramePlace::NormalRect() const {
    return IsNormal(frame_.windowState()) ? frame_.geometry().translated(Scrolled()) : normal_;
}

// Scroll bars come and go with the places themselves; the room must not depend on them.
Room FramePlace::FindRoom() const {
    Room room;
    room.View = {Scrolled(), area_.maximumViewportSize()};
    room.Most = room.View.size().expandedTo(area_.screen()->virtualSize());
    room.Step = area_.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &area_);
    for (const QMdiSubWindow* window : area_.subWindowList()) {
        const auto* clock = qobject_cast<const ClockFrame*>(window);
        const bool waits = clock != nullptr && clock->Place().Stands();
        if (window != &frame_ && (!window->isHidden() || waits)) {
            room.Others.push_back(clock != nullptr ? clock->Place().NormalRect()
                                                   : window->geometry().translated(Scrolled()));
        }
    }
    return room;
}

void FramePlace::Show(const QRect& place) {
    if (IsNormal(frame_.windowState())) {
        frame_.setGeometry(place.translated(-Scrolled()));
    } else {
        normal_ = place;
    }
    shown_ = NormalRect();
}

void FramePlace::Stand(const QRect& place) {
    own_ = place;
    Show(InView(place, FindRoom()));
}

void FramePlace::StandWhereFree(const QRect& place) {
    Stand(FreePlace(place, FindRoom()));
}

void FramePlace::StateChanges(Qt::WindowStates before) {
    if (IsNormal(before)) {
        normal_ = frame_.geometry().translated(Scrolled());
    }
}

// The toolkit has a memory of its own, which knows nothing of scroll bars, nor of a change from
// maximised to minimised.
void FramePlace::StateChanged(Qt::WindowStates before) {
    if (!IsNormal(before) && IsNormal(frame_.windowState())) {
        frame_.setGeometry(normal_.translated(-Scrolled()));
    }
}

// A frame that nobody has moved goes back towards its own place.
void FramePlace::AreaResized() {
    if (Stands() && shown_ != own_ && !HasMoved()) {
        Show(InView(own_, FindRoom()));
    }
}

// The scroll bars don't notice that another window than a maximised one has come to the front; a
// move makes them look.
void FramePlace::ScrollTo() {
    QMoveEvent same(frame_.pos(), frame_.pos());
    QCoreApplication::sendEvent(&frame_, &same);
    const QRect view = area_.viewport()->rect();
    const QRect place = frame_.geometry();
    if (!CanBeReached(place, view)) {
        ScrollAlong(*area_.horizontalScrollBar(), place.left(), place.right(), view.width());
        ScrollAlong(*area_.verticalScrollBar(), place.top(), place.bottom(), view.height());
    }
}

}  // namespace clockcore
