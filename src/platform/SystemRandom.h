#pragma once

#include <QRandomGenerator>
#include <optional>

#include "platform/RandomNumbers.h"

namespace platform {

/// Random numbers, from the machine or, with a seed, the same sequence at each run.
class SystemRandom final : public RandomNumbers {
public:
    explicit SystemRandom(std::optional<quint32> seed = {});
    void Seed() override;
    double Next() override { return generator_.generateDouble(); }

private:
    std::optional<quint32> seed_;
    QRandomGenerator generator_;
};

}  // namespace platform
