#pragma once

#include <cstddef>
#include <vector>

#include "platform/RandomNumbers.h"

/// Numbers laid out beforehand, round and round; 0 when there are none.
class FakeRandom final : public platform::RandomNumbers {
public:
    std::vector<double> Numbers;
    int Seeds = 0;

    void Seed() override { ++Seeds; }
    double Next() override { return Numbers.empty() ? 0.0 : Numbers[used_++ % Numbers.size()]; }

private:
    std::size_t used_ = 0;
};
