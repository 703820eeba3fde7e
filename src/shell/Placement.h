#pragma once

#include <QPoint>
#include <QRect>
#include <vector>

#include "shell/ShellSettings.h"

/// Where the settings have the shell's window. They count in twips, screens in logical pixels.
namespace shell {

/// 0 normal, 1 minimised, 2 maximised.
int StoredWindowState(const ShellSettings& settings);

/// "Window Width" and "Window Height"; a quarter of the screen for a number that is not above 0.
/// At most the whole screen, at least 200 by 150.
QSize StoredSize(const ShellSettings& settings, const QSize& screen);

/// "Window Left" and "Window Top" as they stand, even off the screen; -1 stands in the middle.
QPoint StoredCorner(const ShellSettings& settings, const QRect& screen, const QSize& window);

/// The place moved so that enough of the window can be seen and taken hold of on some screen: 60
/// pixels of it each way, its upper edge among them. One that is out of reach moves to @p primary.
QRect WithinReach(QRect place, const std::vector<QRect>& screens, const QRect& primary);

/// Where a window of the shell opens for the clock that it is about, so that both are seen: to the
/// clock's right, else to its left, else over it at the side that has more room; its upper edge at
/// the clock's. It never leaves the room, and becomes smaller where that is too small for it; where
/// the room beside the clock is, narrower, but not below 420 pixels.
/// @param clock in the room, which begins at 0, 0; it may stand partly outside
QRect PlaceBeside(const QRect& clock, const QSize& window, const QSize& room);

/// Stores where a normal window stands, in memory. What nobody has changed since it was @p applied
/// keeps its number, since a small screen may have cut it for this time; a null @p applied means
/// that it has not been placed by the settings. "-1" always gets a number.
void PutPlace(ShellSettings& settings, const QRect& place, const QRect& applied);

}  // namespace shell
