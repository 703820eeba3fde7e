#include "platform/SystemRandom.h"

namespace platform {

SystemRandom::SystemRandom(std::optional<quint32> seed)
    : seed_(seed), generator_(seed.value_or(0)) {
    if (!seed) {
        generator_ = QRandomGenerator::securelySeeded();
    }
}

// A chosen seed goes on as one sequence: seeding anew would make every colour of a run the same.
void SystemRandom::Seed() {
    if (!seed_) {
        generator_ = QRandomGenerator::securelySeeded();
    }
}

}  // namespace platform
