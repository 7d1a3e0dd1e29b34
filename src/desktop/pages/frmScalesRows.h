// The rows of which the scales page is made.
#pragma once

#include "desktop/kit/entryrow.h"
#include "desktop/pages/frmScales.h"

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

// An entry and its field.
struct frmScales::Entry {
    EntryRow row;
    const char* text = nullptr; // before it is filled
    FieldPlace field = {};
    void (frmScales::*changed)(const Entry& entry) = nullptr;
    const Button* help = nullptr;
};

} // namespace vernacle
