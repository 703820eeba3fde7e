#pragma once

#include <QColor>

/// How well a text is read on its ground.
namespace mduUILib {

/// From 1 (the same lightness) to 21 (black on white); a small text needs 4.5. Transparency is left
/// out of account.
double ContrastRatio(const QColor& text, const QColor& ground);

/// Black or white, whichever stands out more; one of them always has a contrast of 4.5.
QColor ReadableOn(const QColor& ground);

/// The colour itself where it can be read on its ground, else the nearest shade of it that can: it
/// keeps its hue and becomes darker or lighter.
QColor ReadableShade(const QColor& text, const QColor& ground);

}  // namespace mduUILib
