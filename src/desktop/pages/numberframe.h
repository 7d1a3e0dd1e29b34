// The frame of numbered options with which a page selects what it edits: a scale, a text, a
// highlight. They stand on paper, whose colours the colours of scales and highlights are made for.
#pragma once

#include <functional>

class QGroupBox;

namespace vernacle {

struct NumberFrameTraits {
    const char* frame;
    const char* label;
    const char* labelText;
    const char* spoken; // before each number, for a screen reader
    int options;
    int tips; // as many of the first options have one
};

QGroupBox* MakeNumberFrame(const NumberFrameTraits& traits, std::function<void(int)> selected);

} // namespace vernacle
