// The frame of numbered options with which a page selects what it edits: a scale, a text, a
// highlight. They stand on paper, whose colours the colours of scales and highlights are made for.
#pragma once

#include <functional>
#include <vector>

class QGroupBox;
class QLabel;

namespace vernacle {

class OptionButton;

struct NumberFrameTraits {
    const char* frame;
    const char* label;
    const char* labelText;
    const char* spoken; // before each number, for a screen reader
    int options;
    int tips; // as many of the first options have one
};

struct NumberFrame {
    QGroupBox* frame = nullptr;
    QLabel* label = nullptr;
    std::vector<OptionButton*> options;

    OptionButton& Option(int number) const {
        return *options.at(static_cast<std::size_t>(number) - 1);
    }

    // All of it.
    void Disable() const;
};

NumberFrame MakeNumberFrame(const NumberFrameTraits& traits, std::function<void(int)> selected);

} // namespace vernacle
