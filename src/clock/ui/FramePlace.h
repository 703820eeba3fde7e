#pragma once

#include <QMdiArea>
#include <QMdiSubWindow>

#include "clock/WindowPlaces.h"

namespace clockcore {

/// Where a frame stands in the shell while it is neither minimised nor maximised. Places are
/// logical pixels of the whole area, of which the scroll bars may show any part.
class FramePlace {
public:
    FramePlace(QMdiSubWindow& frame, QMdiArea& area) : frame_(frame), area_(area) {}

    /// Puts the frame there: now, or as soon as it is normal again. Where nobody could see it or
    /// take hold of it, it is brought into view for as long as the area is too small.
    void Stand(const QRect& place);
    /// The same there or, where others stand, in a place that is free.
    void StandWhereFree(const QRect& place);
    /// Whether it has been given a place.
    bool Stands() const { return !own_.isNull(); }
    /// The frame goes: its place is free for others.
    void Leave() { own_ = shown_ = {}; }

    /// Where it stands, or will stand when it is normal again; of a frame that was only brought
    /// into view, the place that it was given.
    QRect Rect() const { return HasMoved() ? NormalRect() : own_; }
    /// Whether it has been moved or resized since it was given its place.
    bool HasMoved() const { return NormalRect() != shown_; }

    /// Before the toolkit carries out a change of state, and behind it.
    void StateChanges(Qt::WindowStates before);
    void StateChanged(Qt::WindowStates before);
    void AreaResized();

    /// Scrolls the area to where the frame is, if it can't be seen.
    void ScrollTo();

private:
    QPoint Scrolled() const;
    Room FindRoom() const;
    QRect NormalRect() const;
    void Show(const QRect& place);

    QMdiSubWindow& frame_;
    QMdiArea& area_;
    QRect own_;     ///< as it was given
    QRect shown_;   ///< where that has brought the frame
    QRect normal_;  ///< of a frame that is minimised or maximised
};

}  // namespace clockcore
