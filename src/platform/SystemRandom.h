#pragma once

#include <QRandomGenerator>
#include <optional>

#include "platform/RandomNumbers.h"

namespace platform {

/// Random numbers, from the machine or, with a seed, the same sequence at each run.
class SystemRandom final : public RandomNumbers {
public:
    /// @param seed of the sequence; without one the machine's own source of chance seeds it, so
    /// that no two runs are alike
    explicit SystemRandom(std::optional<quint32> seed = {});
    /// Seeds from the machine once more. Does nothing where a seed was chosen: its sequence just
    /// goes on, else every colour of a run would be the same.
    void Seed() override;
    double Next() override { return generator_.generateDouble(); }

private:
    /// The chosen one.
    std::optional<quint32> seed_;
    QRandomGenerator generator_;
};

}  // namespace platform
