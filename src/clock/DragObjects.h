#pragma once

#include <QPointF>
#include <QSizeF>

#include "clock/ClockData.h"
#include "foundation/Controls.h"

/// What the left button takes hold of on a clock.
namespace clockcore {

/// What can be dragged.
enum class DragObject {
    None,
    Window,  ///< of the clock, by its ground
    Dial,    ///< by its disc
    Digits,
    Flag,
    Location,
    Speaker,
    Handle  ///< of a transparent clock
};

/// What of a clock decides what a press on its ground takes hold of.
struct DragGround {
    /// Else the window is dragged by its ground, since nothing else of it can be grasped.
    bool HasTitleBar = true;
    bool HasDial = true;
    /// Digits in a column stand in the middle, wherever they are dropped.
    bool HasFreeDigits = true;
    QPointF Centre;     ///< of the dial, in device pixels of the surface
    double Radius = 0;  ///< of its disc: half of the surface's smaller side
};

/// @param surface its size in device pixels
DragGround ReadDragGround(const ClockData& data, const QSizeF& surface);

/// What a press at a point, in device pixels of the surface, takes hold of.
///
/// Digits, flag and name come with the pointer as they are. On the disc of a dial it is the dial,
/// and on the handle the handle, in a window with a title bar; in one without it is the window.
/// With Ctrl all of the ground is the dial's, the handle comes itself, and so does the speaker,
/// which otherwise takes a click. `None` for what answers a press itself: speaker, spots, numbers,
/// timer marks, an action. Of these marks and an action do so over the handle, too; there spots and
/// numbers are left their clicks, and the drag is the handle's.
DragObject DragObjectAt(const mduUILib::ClockControls& controls, const QPointF& point,
                        const DragGround& ground, bool withControl);

/// The control that stands for an object; null for the window. The dial's is its picture, that of
/// the digits their hidden model.
mduUILib::Control* ControlOf(DragObject object, mduUILib::ClockControls& controls);

/// The object that a control stands for; `None` for any other control.
DragObject ObjectOf(const mduUILib::Control& control, const mduUILib::ClockControls& controls);

}  // namespace clockcore
