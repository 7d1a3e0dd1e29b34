// The forms in which the lines of a design file are written, and the ways in which they are read:
// the columns of the table in designlines.
#pragma once

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

using WriteValue = std::string (*)(const FieldPointer& field, LinePlace place);

std::string WriteNothing(const FieldPointer& field, LinePlace place);
std::string WriteDateTime(const FieldPointer& field, LinePlace place);
std::string WritePlain(const FieldPointer& field, LinePlace place); // number in its shortest form
std::string WritePadded(const FieldPointer& field,
                        LinePlace place);                           // blank or minus, number, blank
std::string WriteGlued(const FieldPointer& field, LinePlace place); // text as it stands
std::string WriteTrimmed(const FieldPointer& field,
                         LinePlace place); // text without its outer blanks
std::string WriteTicFields(const FieldPointer& field,
                           LinePlace place); // the five fields of a special tic
std::string WriteCurvePoint(const FieldPointer& field,
                            LinePlace place); // X \ Y of a correction point
std::string WriteTicsAndArcs(const FieldPointer& field,
                             LinePlace place); // PrintTicsAndArcs of the scale
std::string WriteDeletedTic(const FieldPointer& field,
                            LinePlace place); // an entry of a scale's list
std::string WriteDeletedLabel(const FieldPointer& field, LinePlace place);
std::string WriteOne(const FieldPointer& field, LinePlace place);
std::string WriteSpacedTwo(const FieldPointer& field,
                           LinePlace place); // the one constant with blanks
std::string WriteThree(const FieldPointer& field, LinePlace place);
std::string WriteFour(const FieldPointer& field, LinePlace place);

// Takes the value of a line, which it may change; a failed conversion or an index out of bounds is
// a run-time error.
using ReadValue = void (*)(std::string& value, const FieldPointer& field, LinePlace place);

void Drop(std::string& value, const FieldPointer& field, LinePlace place);
void ReadEntry(std::string& value, const FieldPointer& field,
               LinePlace place); // ParseEntry and its limits
void ReadVal(std::string& value, const FieldPointer& field,
             LinePlace place); // leading number of any length
void ReadFirstVal(std::string& value, const FieldPointer& field,
                  LinePlace place); // of the first field
void ReadInteger(std::string& value, const FieldPointer& field,
                 LinePlace place); // the text is a number
void ReadText(std::string& value, const FieldPointer& field, LinePlace place);
void ReadTrimmed(std::string& value, const FieldPointer& field, LinePlace place);
void ReadTicFields(std::string& value, const FieldPointer& field, LinePlace place);
void ReadCurvePoint(std::string& value, const FieldPointer& field, LinePlace place);
void ReadTicsAndArcs(std::string& value, const FieldPointer& field, LinePlace place);
void ReadDeletedTic(std::string& value, const FieldPointer& field, LinePlace place);
void ReadDeletedLabel(std::string& value, const FieldPointer& field, LinePlace place);

// The next field, up to the next "\", and what follows its separators; several count as one, so
// that a field is empty only where none is left.
struct FoundField {
    std::string_view text;
    std::string_view rest;
};

FoundField FindField(std::string_view rest);

// Moves the next field of rest, up to the next "\", to field; several separators count as one, so
// that a field is never empty. With no field left, rest becomes empty and field is not changed.
// Overwrites Design.SharedIndex and Design.SharedIndex2.
void SplitField(std::string& rest, std::string& field);

} // namespace vernacle
