#pragma once

#include <QColor>
#include <QPainterPath>

class QPainter;

/// How each stored picture is drawn, on a square that reaches from -50 to 50 in both directions.
/// What is seen on any ground has a light halo around a dark figure, or a dark rim around a pale
/// one.
namespace drawing::stock {

inline constexpr QColor Slate{33, 53, 85};
inline constexpr QColor Ivory{250, 250, 247};
inline constexpr QColor Red{201, 60, 46};

enum class SpeakerState { Idle, Muted, Talking };

void DrawSpot(QPainter& painter, bool left);
void DrawHandle(QPainter& painter);
void DrawSun(QPainter& painter);
void DrawMoon(QPainter& painter);
void DrawSpeaker(QPainter& painter, SpeakerState state);
void DrawClock(QPainter& painter);
void DrawTimerMark(QPainter& painter);
void DrawAction(QPainter& painter);
void DrawActionSpeaking(QPainter& painter);

/// A white seam around a figure, which carries it over dark grounds.
void DrawHalo(QPainter& painter, const QPainterPath& figure, double width);

}  // namespace drawing::stock
