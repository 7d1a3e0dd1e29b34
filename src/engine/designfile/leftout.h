// What a design may hold that an everyday plate does not show.
#pragma once

#include <string>
#include <vector>

namespace vernacle {

struct DesignRecord;

// In words for whoever exports it: "scales above the first", "2 highlights".
std::vector<std::string> WhatEverydayLeavesOut(const DesignRecord& design);

} // namespace vernacle
