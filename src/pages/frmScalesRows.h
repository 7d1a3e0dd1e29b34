// The rows of which the scales page is made.
#pragma once

#include "pages/frmScales.h"
#include "platform/updown.h"

namespace vernacle {

// What a button of the page is at its start.
enum class ScalesButton {
    Greyed,       // nothing enables it
    Illustration, // a narrow one beside what it illustrates
};

struct frmScales::Option {
    const char* name;
    void (frmScales::*selected)();
};

struct frmScales::Button {
    const char* name;
    const char* caption;
    const char* tip;
    ScalesButton kind;
    void (frmScales::*clicked)();
};

// An entry: its field, the limits of what is typed, its arrows and their range.
struct frmScales::Entry {
    const char* box = nullptr;
    const char* label = nullptr;
    const char* caption = nullptr;
    const char* text = nullptr; // before it is filled
    Place field = nullptr;
    double lowest = 0;
    double highest = 0;
    const char* arrows = nullptr; // none if null
    StepRange range;
    void (frmScales::*changed)(const Entry& entry) = nullptr;
    const char* partner = nullptr; // that the arrows step instead
    const Button* help = nullptr;
};

// "Option1" to "Option10".
inline std::string OptionName(int number) {
    return "Option" + std::to_string(number);
}

} // namespace vernacle
