#pragma once

#include <cstdint>

/// Repeatable randomness for pictures: the same seed gives the same picture on every machine.
namespace stock {

/// A number in [0, 1) that belongs to a lattice point.
double Hash(std::int64_t x, std::int64_t y, std::uint32_t seed);

/// Gradient noise, about -1 to 1, one feature to a unit.
double Noise(double x, double y, std::uint32_t seed);

/// Noise on noise: each octave has twice the frequency and half the weight of the one before.
/// Stays within about -1 to 1.
double Layered(double x, double y, int octaves, std::uint32_t seed);

/// Like `Layered`, folded at zero: 1 along thin crests, lower beside them.
double Crests(double x, double y, int octaves, std::uint32_t seed);

}  // namespace stock
