#pragma once

namespace platform {

/// Chance: what is drawn at random, and in which order.
class RandomNumbers {
public:
    virtual ~RandomNumbers() = default;
    virtual void Seed() = 0;    ///< starts a new sequence, from the clock or from a chosen seed
    virtual double Next() = 0;  ///< the next number, from 0 up to but not including 1
};

}  // namespace platform
