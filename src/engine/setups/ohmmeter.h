// The scale of a series ohmmeter: zero ohms at full deflection, the midscale resistance at half of
// it.
//
//   deflection = 1 / (R / Rmid + 1)
//
// with the quotient and the sum in double, the result rounded to a 32-bit float.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "engine/setups/setup.h"

namespace vernacle {

// The deflection of a resistance. A midscale of 0, and a resistance of minus the midscale, are an
// ImpossibleEntry; other negative ones give deflections outside 0 to 1.
float ComputeResistanceDeflection(float midscale, float resistance);

enum class TicClass { Major, Minor, Undecided };

// A row of the list. Its deflection is what its text says.
struct ResistanceRow {
    std::string deflection;
    std::string label;
    TicClass ticClass = TicClass::Undecided; // leaves what the table holds
    std::optional<float> exact = {};         // the deflection itself, where it is known
    std::optional<KeptTic> untouched = {};   // the tic where nothing was touched
};

// Marks the scale special and writes the rows into its tables; entries behind the last row stay.
// SpecialNrOfTicmarks is the last row's number, -1 for none.
void StoreResistanceList(DesignRecord& design, int scale, const std::vector<ResistanceRow>& rows);

} // namespace vernacle
