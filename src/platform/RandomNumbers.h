#pragma once

namespace platform {

/// Chance: what is drawn at random, and in which order. All clocks draw from the same one. A colour
/// called "Random" takes three numbers, for blue, green and red in this order; a motion of labels
/// may take one for each label.
class RandomNumbers {
public:
    virtual ~RandomNumbers() = default;
    /// Starts a new sequence where the numbers come from the machine. Where a seed was chosen the
    /// numbers may go on as they were. Called before each such colour and each motion.
    virtual void Seed() = 0;
    /// The next number, from 0 up to but not including 1.
    virtual double Next() = 0;
};

}  // namespace platform
