#pragma once

#include <QStringList>

#include "clock/ClockData.h"
#include "clock/ClockWindow.h"
#include "clock/DroppedParts.h"
#include "clock/HeldOverlays.h"
#include "clock/MenuSettings.h"
#include "drawing/Canvas.h"
#include "drawing/FaceParts.h"
#include "foundation/Controls.h"
#include "timers/TimerSlots.h"

namespace clockcore {

/// A part of a clock that somebody moves: from `Take`, in any number of steps, up to `Store` or
/// `TakeBack`. It knows how each part is moved and what is stored of it; where to is up to those
/// who move it, `PartDrag` and `PartNudge`. Each of them holds a part of its own.
///
/// For a dial and digits the properties in memory go along with each step, the file does not; for
/// the others only the control does, which stays there whatever is laid out meanwhile. What is
/// stored is the part's own keys alone.
///
/// A move ends without being stored when somebody else has changed the part's keys in the meantime,
/// or when the clock has become another kind or got another style; what it had changed itself is
/// then taken back, as far as it is still there. Any other change of the properties leaves it be.
class HeldPart {
public:
    /// What is moved and laid out anew. All of it outlives this.
    struct Parts {
        mduUILib::ClockControls& Controls;
        drawing::Canvas& Canvas;
        ClockFace& Face;
        drawing::Dial& Dial;
        drawing::DigitalClock& Digital;
        drawing::Background& Background;
        HeldOverlays& Overlays;  ///< which leave the part where it is, until it is let go
        timers::TimerSlots& Timers;
        MenuSettings& Settings;
    };

    HeldPart(ClockData& data, const Parts& parts) : data_(data), parts_(parts) {}

    /// Takes hold of a part; one that was still held is taken back. `None` and the window are
    /// nothing to hold.
    void Take(DragObject object);
    /// `None` where nothing is held.
    DragObject Object() const { return object_; }
    /// False once something else has changed what is held, and where nothing is.
    bool IsStillOurs() const;
    /// Whether the part is placed by percents in its properties, as dial and digits are.
    bool IsPercent() const;
    /// Of the control that stands for the part, in device pixels of the surface.
    QRectF Place() const;
    /// Of the digits all together; likewise. Empty where none are seen.
    QRectF ReadOut() const;
    DropWindow Window() const { return DropWindowOf(parts_.Canvas); }

    /// One step of a part in percents: gives its keys these values, and shows it there.
    void Put(const KeyValues& values);
    /// One step of any other part: brings its control there and shows it. What would lie outside
    /// of the surface is brought back into it.
    void MoveTo(const QRectF& place);
    /// Ends with the part stored where it has come to, and tells. A part that has not been moved
    /// stores nothing.
    void Store();
    /// Ends with the part back where it was, and nothing stored.
    void TakeBack();

private:
    mduUILib::Control& Held() const;
    /// What the keys would be for the part as it stands.
    KeyValues PlacedValues() const;
    void PutValues(const KeyValues& values);
    /// Whether that is the value of its key at this moment.
    bool Has(const KeyValues::value_type& value) const;
    /// The overlays may place the part again.
    void LetGo();
    void Forget();
    void Redo();
    void RedoDial();

    ClockData& data_;
    Parts parts_;
    DragObject object_ = DragObject::None;
    KeyValues before_;  ///< the values from before the move
    KeyValues put_;     ///< those that the move has put last; none before the first
    bool moved_ = false;
    ClockKind kind_ = ClockKind::None;  ///< of the clock, as the part was taken
    QString style_;                     ///< that the clock had got last; likewise
};

}  // namespace clockcore
