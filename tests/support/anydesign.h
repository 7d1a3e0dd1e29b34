// Designs that hold anything.
#pragma once

#include <random>

namespace vernacle {
struct DesignRecord;
}

namespace vernacle::test {

using Random = std::mt19937;

int Below(Random& random, int end);

// A few hundred entries of all fields changed to anything; the counts by which a file is walked
// stay what its tables can hold.
void RandomiseDesign(DesignRecord& design, Random& random);

} // namespace vernacle::test
