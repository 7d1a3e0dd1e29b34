// All fields of the record, one row each, by their names: for what goes over a design as a whole.
#pragma once

#include <span>
#include <string>

#include "engine/core/fieldplace.h"

namespace vernacle {

enum class FieldRole {
    Kept,     // what a design is: its file keeps it, and undo brings it back
    Computed, // the tables of standard scales, made from the rest
    Session,  // of the process, its printer and its pages
};

struct RecordField {
    const char* name = nullptr;
    FieldRole role = FieldRole::Kept;
    int indices = 0;   // 0 of a plain field, 1 of a table, 2 of a table of tables
    int lastOuter = 0; // the highest index of each, 0 where there is none
    int lastInner = 0;
    FieldPlace place;
};

// In the order of the record's declaration.
std::span<const RecordField> RecordFields();

// The row of that name, or null.
const RecordField* FindRecordField(std::string_view name);

// "PlateWidth", "ScaleColor[1]" or "TicDeflection[1,17]".
std::string EntryName(const RecordField& field, int outer, int inner);

// Calls visit(outer, inner) for each entry of the field.
template <typename Visit>
void ForEachEntry(const RecordField& field, Visit visit) {
    for (int outer = 0; outer <= field.lastOuter; ++outer) {
        for (int inner = 0; inner <= field.lastInner; ++inner) {
            visit(outer, inner);
        }
    }
}

} // namespace vernacle
