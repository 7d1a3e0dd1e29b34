// A row of a page's grid: caption, box, arrows. The arrows step the box, or a partner that is not
// shown, in units of its own. The box tells the limits of what is typed; where there are none, the
// range of its arrows.
#pragma once

#include "desktop/kit/entrybox.h"
#include "desktop/kit/updown.h"
#include "engine/core/entry.h"

class QGridLayout;
class QWidget;

namespace vernacle {

struct EntryRow {
    const char* box = nullptr;
    const char* label = nullptr;
    const char* caption = nullptr;
    const char* arrows = nullptr; // none if null
    StepRange range = {};
    EntryLimits limits = {};
    const char* unit = "";
    const char* partner = nullptr; // that the arrows step instead of the box
    double partnerUnit = 1;        // in the box's own
    Reading reading = Reading::Entry;
    Rewriting rewriting = Rewriting::WhenLeft;
};

struct EntryControls {
    EntryBox& box;
    EntryBox* partner;
};

// Adds a row for a text: its box is as wide as the grid leaves room beside the caption.
EntryControls AddTextRow(const EntryRow& entry, QGridLayout& grid, int row);

// Adds the row to the grid, caption and box in its first two columns.
EntryControls AddEntryRow(const EntryRow& entry, QGridLayout& grid, int row, QWidget& page);

} // namespace vernacle
