// The special scale that the user types: a table of tics, each with its deflection and label.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "engine/setups/setup.h"

namespace vernacle {

constexpr int kSpecialRows = 31;

constexpr EntryLimits kLastRowLimits{1, kSpecialRows - 1}; // whatever its sign
constexpr EntryLimits kDeflectionLimits{0, 1};

struct SpecialRow {
    std::string deflection; // fraction of full deflection, as typed
    std::string label;
    Answer major = Answer::No;
    std::optional<float> exact = {};       // the deflection where its text was not touched
    std::optional<KeptTic> untouched = {}; // the tic where none of that was
};

// Holds the number of the last row to 1 .. 30, whole and without its sign, and writes the rows up
// to it into the scale's tables, printed and labelled all; the others of the 31 are emptied.
void ApplySpecialTable(DesignRecord& design, int scale, float& ticmarks,
                       const std::array<SpecialRow, kSpecialRows>& rows);

enum class DeflectionFault { None, Below, Above };

// Refuses rows that have no number for a deflection, an ImpossibleEntry, before the everyday 0
// would take its place.
void CheckRows(int last, const std::array<SpecialRow, kSpecialRows>& rows);

// Reads the text into that tic's TicDeflection, holds it to 0 .. 1, and makes the text show it.
// Tells which limit it broke.
DeflectionFault CheckDeflection(DesignRecord& design, int scale, int tic, std::string& text);

} // namespace vernacle
