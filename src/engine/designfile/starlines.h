// What the lines of a design file cannot hold by their places. It stands in lines that begin with a
// star, which every reader takes for comments:
//
//   *Vernacle workshop 1            behind the date; without it there are only comments
//   *Field[scale,tic]: value        behind the last line: floats in nine digits, texts as they are
//
// Which fields need such a line is found by reading the other lines back.
#pragma once

#include <string>
#include <string_view>

namespace vernacle {

struct DesignRecord;

constexpr const char* kStarMark = "*Vernacle workshop 1";

// The lines of a design for all its own fields that differ from what its positional lines were read
// back as, and those that no row knew when it was read.
std::string StarLines(const DesignRecord& design, const DesignRecord& readBack);

// Stores what the star lines of a file's text say, if it has the mark. Those that no field knows
// are kept in ForeignLines; counts are held to what the tables have room for.
void TakeStarLines(DesignRecord& design, std::string_view fileText);

} // namespace vernacle
