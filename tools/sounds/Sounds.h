#pragma once

#include <string>
#include <vector>

#include "Wave.h"

/// The sounds that are offered for timers, for the hour and for the second.
namespace sounds {

struct Sound {
    std::string Name;  ///< of the file, without its ending
    Wave (*Make)();
    double FadeOut;     ///< seconds
    double Louder = 0;  ///< decibels above the common level
};

/// All of them, by name.
std::vector<Sound> AllSounds();

/// A finished sound at half the rate of the synthesis: levelled, its ends silent.
Wave Finish(const Sound& sound);

// Bells.cpp
Wave Bell();
Wave WestwardChime();
Wave Glass();
Wave Gong();
Wave SingingBowl();
Wave RisingAlarm();

// Ticks.cpp
Wave ClockTick();
Wave SoftTick();
Wave WoodBlock();
Wave DigitalBeeps();

// Calls.cpp
Wave TwoNotes();
Wave Marimba();
Wave Harp();
Wave Dewdrop();

}  // namespace sounds
