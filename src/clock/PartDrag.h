#pragma once

#include <QStringList>

#include "clock/ClockData.h"
#include "clock/ClockWindow.h"
#include "clock/DroppedParts.h"
#include "clock/MenuSettings.h"
#include "drawing/Canvas.h"
#include "drawing/FaceParts.h"
#include "foundation/Controls.h"
#include "timers/TimerSlots.h"

namespace clockcore {

/// A part of a clock that moves: with the pointer, until it is dropped or taken back, or by the
/// arrow keys, a percent of the surface at a time. It is stored once, at its end, with its own keys
/// alone.
///
/// While they move, dial and digits stand where a drop at that moment would put them: each holds to
/// the pointer by the grip of `DroppedPlace`. The others keep the pointer where it took them. For a
/// dial and digits the properties in memory follow, the file does not.
///
/// A move ends without being stored when the properties have changed in the meantime, as with
/// another style; what it had changed itself is then taken back, as far as it is still there.
class PartDrag {
public:
    /// What is moved and laid out anew. All of it outlives this.
    struct Parts {
        mduUILib::ClockControls& Controls;
        drawing::Canvas& Canvas;
        ClockFace& Face;
        drawing::Dial& Dial;
        drawing::DigitalClock& Digital;
        drawing::Background& Background;
        drawing::Overlays& Overlays;
        timers::TimerSlots& Timers;
        MenuSettings& Settings;
    };

    PartDrag(ClockData& data, const Parts& parts) : data_(data), parts_(parts) {}

    /// Takes hold of a part; one that was still held is taken back. `None` and the window hold
    /// nothing.
    void Begin(DragObject object);
    /// Brings the part to the pointer and shows it there. @return false when the move is over,
    /// since something else has changed the clock
    /// @param pointer in logical pixels of the clock
    /// @param way how far that is from the press
    bool Follow(const QPointF& pointer, const QPointF& way);
    /// Stores the part where it was brought last, and tells. A part that has not been moved stores
    /// nothing.
    void Drop();
    /// The part goes back to where it was, and nothing is stored.
    void TakeBack();
    /// `None` between moves.
    DragObject Object() const { return object_; }

    /// Moves a part by percents of the surface, to the right and down, at once. Whole logical
    /// pixels, at least one, for those that are stored so; a flag goes to the next corner. `Keep`
    /// stores what several of these have come to.
    void Nudge(DragObject object, const QPoint& percents);
    /// Stores a part that was nudged; nothing when none was.
    void Keep() { Drop(); }

private:
    mduUILib::Control& Held() const;
    QSizeF ReadOutSize() const;
    QRectF ReadOut() const;
    bool IsPercent() const;
    /// What the keys would be for the part as it stands.
    KeyValues PlacedValues() const;
    KeyValues NudgedPercent(const QPoint& percents) const;
    void NudgeControl(const QPoint& percents);
    void MoveControl(const QRectF& place);
    void Put(const KeyValues& values);
    bool IsStillOurs() const { return revision_ == data_.Revision(); }
    void Redo();
    void RedoDial();

    ClockData& data_;
    Parts parts_;
    DragObject object_ = DragObject::None;
    QRectF start_;      ///< of the control, in device pixels
    KeyValues before_;  ///< the values from before the move
    KeyValues put_;     ///< those that the move has put last; none before the first
    bool moved_ = false;
    int revision_ = 0;  ///< of the properties, as the move has left them
};

}  // namespace clockcore
