// The forms in which the lines of a design file are written, and the ways in which they are read:
// the columns of the table in designlines.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "engine/core/fieldplace.h"

namespace vernacle {

// Where a line stands: in the block of a scale, a text or a list (outer), and among the tics or
// entries of that block (inner).
struct LinePlace {
    int outer = 0;
    int inner = 0;
};

// What a line is written of.
struct LineSource {
    const DesignRecord& design;
    ConstFieldPointer field;
    LinePlace place;
};

using WriteValue = std::string (*)(const LineSource& line);

std::string WriteNothing(const LineSource& line);
std::string WriteDateTime(const LineSource& line);
std::string WritePlain(const LineSource& line);       // number in its shortest form
std::string WritePadded(const LineSource& line);      // blank or minus, number, blank
std::string WriteGlued(const LineSource& line);       // text as it stands
std::string WriteTrimmed(const LineSource& line);     // text without its outer blanks
std::string WriteTicFields(const LineSource& line);   // the five fields of a special tic
std::string WriteNumberedTic(const LineSource& line); // with "Tic n:" before them
std::string WriteCurvePoint(const LineSource& line);  // X \ Y of a correction point
std::string WriteTicsAndArcs(const LineSource& line); // PrintTicsAndArcs of the scale
std::string WriteDeletedTic(const LineSource& line);  // an entry of a scale's list
std::string WriteDeletedLabel(const LineSource& line);
std::string WriteOne(const LineSource& line);
std::string WriteSpacedTwo(const LineSource& line); // the one constant with blanks
std::string WriteThree(const LineSource& line);
std::string WriteFour(const LineSource& line);

// Gives a special tic whose label is empty the "/" that its line shows for it: no field can be
// empty.
void FillEmptyLabel(DesignRecord& design, LinePlace place);

// What a line is read into.
struct LineTarget {
    DesignRecord& design;
    FieldPointer field;
    LinePlace place;
};

// Takes the value of a line, which it may change; a failed conversion or an index out of bounds is
// a run-time error.
using ReadValue = void (*)(std::string& value, const LineTarget& line);

void Drop(std::string& value, const LineTarget& line);
void ReadEntry(std::string& value, const LineTarget& line);    // ParseEntry and its limits
void ReadVal(std::string& value, const LineTarget& line);      // leading number of any length
void ReadFirstVal(std::string& value, const LineTarget& line); // of the first field
void ReadInteger(std::string& value, const LineTarget& line);  // the text is a number
void ReadText(std::string& value, const LineTarget& line);
void ReadTrimmed(std::string& value, const LineTarget& line);
void ReadTicFields(std::string& value, const LineTarget& line);
void ReadCurvePoint(std::string& value, const LineTarget& line);
void ReadTicsAndArcs(std::string& value, const LineTarget& line);
void ReadDeletedTic(std::string& value, const LineTarget& line);
void ReadDeletedLabel(std::string& value, const LineTarget& line);

// The next field, up to the next "\", and what follows its separators; several count as one, so
// that a field is empty only where none is left.
struct FoundField {
    std::string_view text;
    std::string_view rest;
};

FoundField FindField(std::string_view rest);

// Moves the next field of rest, up to the next "\", to field; several separators count as one, so
// that a field is never empty. With no field left, rest becomes empty and field is not changed.
// Gives the place behind the field, counted from 1; nothing with no field left.
std::optional<std::int16_t> SplitField(std::string& rest, std::string& field);

} // namespace vernacle
