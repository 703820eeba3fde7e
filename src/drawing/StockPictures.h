#pragma once

#include <QImage>
#include <memory>

/// The stored pictures of a clock, drawn once for the whole program at a size that suits a large
/// clock on a fine screen; whoever shows one scales it down. All have a transparent background:
/// they are squares of 256 pixels in the form ARGB32, premultiplied.
namespace drawing {

enum class StockPicture {
    SpeakerIdle = 3,
    SpeakerMuted = 4,
    SpeakerTalking = 5,
    SpotRight = 10,       ///< the mark of the minutes 1 to 30 and 60
    SpotLeft = 11,        ///< the mark of the minutes 31 to 59
    TimerMark = 12,       ///< the bell of a timer, on the ring of a dial
    Action = 13,          ///< an action that counts down
    ActionSpeaking = 14,  ///< the same while its text is spoken
    Sun = 20,
    Moon = 21,
    Handle = 22,  ///< stands for a transparent window
    Clock = 23    ///< the window's own icon
};

/// The picture, which all who ask share; the first call of the program draws them all.
/// @return null for a number that is no picture
std::shared_ptr<const QImage> GetStockPicture(StockPicture picture);

}  // namespace drawing
