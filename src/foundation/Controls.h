#pragma once

#include <QFont>
#include <QImage>
#include <QRectF>
#include <QString>
#include <memory>
#include <vector>

/// The windowless controls of a clock: plain values that the clock paints in order and hits by
/// rectangle. A clock has hundreds of them, so none is a widget.
namespace mduUILib {

enum class ControlKind { Picture, TextBox, Timer, Image, Shape, Label, ImageList, Dialog, Player };

/// One control. Measures are in device pixels of the surface it stands on. A change is seen with
/// the next pass of the face, not before. What is hidden, or holds neither a picture (images and
/// shapes) nor a caption (labels), paints nothing.
struct Control {
    float Left = 0, Top = 0, Width = 0, Height = 0;
    bool Visible = false;
    bool Enabled = true;
    int ForeColor = 0;  ///< red in the low byte
    QString Caption;
    /// A note of whoever owns the control; the dial's spots keep "True" or "False" in it.
    QString Tag;
    QString ToolTipText;
    QFont Font;
    std::shared_ptr<const QImage> Picture;  ///< shared between clocks; null for none

    /// The place as one value, in device pixels.
    QRectF Rect() const {
        return {static_cast<qreal>(Left), static_cast<qreal>(Top), static_cast<qreal>(Width),
                static_cast<qreal>(Height)};
    }
};

/// A control array: members of one name and kind, numbered from `First`. That is 1 but for
/// `imgSunMoon` and `imgClock`, which begin with 0.
///
///     controls.lblHour(60).Caption = u"12"_s;  // twelve o'clock
struct ControlArray {
    QString Name;
    ControlKind Kind = ControlKind::Label;
    int First = 1;
    std::vector<Control> Members;

    int Count() const { return static_cast<int>(Members.size()); }
    /// A member by its number, `First` being the first; there is no check.
    Control& operator()(int index) { return Members[static_cast<std::size_t>(index - First)]; }
    const Control& operator()(int index) const {
        return Members[static_cast<std::size_t>(index - First)];
    }
};

/// The controls of one clock window, as they stand when it is created. Only the timer slots
/// (`txtMsg`, `imgTimer`) grow later; they begin with 100 each. The dial has 60 numbers and 60
/// spots, each hand 2 shapes, the read-out 6 labels, and what is not counted here is a single
/// control.
struct ClockControls {
    /// All arrays with their members, each hidden and without a place.
    ClockControls();

    ControlArray picFrame, txtMsg, imgSpeaker, shpArea, imgAction, lblLocation, imgSunMoon,
        shpHourHand, shpMinuteHand, shpSecondHand, lblDigitalNumber, imgTimer, imgClockNumber,
        lblHour, lblMsg, lblActionMsg, lblClock, lblTimeInput, lblTimeOutput, imgFlag, imgClock,
        timClock, imgList, objDialog, MusicPlayer;

    /// All arrays, in the order above.
    std::vector<ControlArray*> All();
};

}  // namespace mduUILib
