// The designs that are measured.
#pragma once

#include <cstdint>

namespace vernacle::bench {

// The densest example, as the preview shows it: 360 steps, every one labelled.
void LoadDense();

// That many scales of that many steps, labelled every tenth.
void LoadScales(int scales, std::int16_t steps);

} // namespace vernacle::bench
