#pragma once

#include <QColor>
#include <QPainterPath>

class QPainter;

/// How each stored picture is drawn, on a square that reaches from -50 to 50 in both directions.
/// What is seen on any ground has a light halo around a dark figure, or a dark rim around a pale
/// one.
///
/// The painter comes with that square as its window, anti-aliasing on, no pen, and a transparent
/// ground. A function may leave another pen and brush behind: each picture has a painter of its
/// own.
namespace drawing::stock {

inline constexpr QColor Slate{33, 53, 85};
inline constexpr QColor Ivory{250, 250, 247};
inline constexpr QColor Red{201, 60, 46};

enum class SpeakerState { Idle, Muted, Talking };

/// @param left the mark of the left half of the dial, which is greyer than that of the right one
void DrawSpot(QPainter& painter, bool left);
/// Four arrows, up, down, left and right.
void DrawHandle(QPainter& painter);
void DrawSun(QPainter& painter);
void DrawMoon(QPainter& painter);
void DrawSpeaker(QPainter& painter, SpeakerState state);
/// A dial at ten past ten, with a red second hand.
void DrawClock(QPainter& painter);
void DrawTimerMark(QPainter& painter);
void DrawAction(QPainter& painter);
void DrawActionSpeaking(QPainter& painter);

/// A white seam around a figure, which carries it over dark grounds. The figure itself is filled
/// with the same white, to be painted over.
/// @param width how far the seam reaches beyond the figure, in units of the square
void DrawHalo(QPainter& painter, const QPainterPath& figure, double width);

}  // namespace drawing::stock
