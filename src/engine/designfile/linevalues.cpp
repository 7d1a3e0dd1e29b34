#include "engine/designfile/linevalues.h"

#include <algorithm>
#include <string_view>

#include "engine/base/hostservices.h"
#include "engine/base/numbertext.h"
#include "engine/base/text.h"
#include "engine/core/entry.h"

namespace vernacle {

namespace {

constexpr char kSeparator = '\\';
constexpr std::string_view kEmptyLabel = "/"; // stands for no label, since no field can be empty

const std::string& TextIn(const LineSource& line) {
    return *std::get<const std::string*>(line.field);
}

std::string& TextIn(const LineTarget& line) {
    return *std::get<std::string*>(line.field);
}

// The next field. The place behind it stays with the design: a line that deletes a tic and says
// which in too many characters deletes the one that stands there.
void TakeField(DesignRecord& design, std::string& rest, std::string& field) {
    if (const auto behind = SplitField(rest, field)) {
        design.SharedIndex2 = *behind;
    }
}

// The next field, without the blanks around it, to a text that keeps what it holds if none is left.
void TakeText(DesignRecord& design, std::string& rest, std::string& target) {
    std::string field;
    TakeField(design, rest, field);
    if (!field.empty()) {
        target = Trimmed(field);
    }
}

void TakeCoordinate(DesignRecord& design, std::string& rest, float& target) {
    std::string field;
    TakeField(design, rest, field);
    if (!field.empty()) {
        ParseEntry(field, target);
    }
}

void FlagDeleted(DesignRecord& design, std::string& value, DeletionFlags::Row flags) {
    ParseEntry(value, design.SharedIndex2);
    flags[design.SharedIndex2] = "N";
}

} // namespace

std::string WriteNothing(const LineSource& /*line*/) {
    return "";
}

std::string WriteDateTime(const LineSource& /*line*/) {
    return Host.localDateTime();
}

std::string WritePlain(const LineSource& line) {
    if (const auto* number = std::get_if<const float*>(&line.field)) {
        return PlainNumber(**number);
    }
    return PlainNumber(static_cast<std::int32_t>(NumberIn(line.field)));
}

std::string WritePadded(const LineSource& line) {
    return PaddedNumber(*std::get<const float*>(line.field));
}

std::string WriteGlued(const LineSource& line) {
    return TextIn(line);
}

std::string WriteTrimmed(const LineSource& line) {
    return std::string(Trimmed(TextIn(line)));
}

std::string WriteTicFields(const LineSource& line) {
    const auto [scale, tic] = line.place;
    const DesignRecord& design = line.design;
    std::string text = SignedNumber(design.TicDeflection[scale][tic]);
    for (const auto* fields :
         {&design.TicLabelYN, &design.TicPrintYN, &design.TicMajorYN, &design.TicLabelText}) {
        text += kSeparator;
        text += Trimmed((*fields)[scale][tic]);
    }
    return text;
}

std::string WriteNumberedTic(const LineSource& line) {
    return "Tic " + std::to_string(line.place.inner) + ":" + WriteTicFields(line);
}

void FillEmptyLabel(DesignRecord& design, LinePlace place) {
    std::string& label = design.TicLabelText[place.outer][place.inner];
    if (Trimmed(label).empty()) {
        label = kEmptyLabel;
    }
}

std::string WriteCurvePoint(const LineSource& line) {
    return PlainNumber(line.design.CorrectionPair[2 * line.place.outer - 1]) + " \\ " +
           PlainNumber(line.design.CorrectionPair[2 * line.place.outer]);
}

std::string WriteTicsAndArcs(const LineSource& line) {
    float number = 0;
    StoreNumber(NumberOf(line.design.PrintTicsAndArcs[line.place.outer]), number);
    return PlainNumber(number);
}

std::string WriteDeletedTic(const LineSource& line) {
    return PlainNumber(std::int32_t{line.design.DeletedTics[line.place.outer][line.place.inner]});
}

std::string WriteDeletedLabel(const LineSource& line) {
    return PlainNumber(std::int32_t{line.design.DeletedLabels[line.place.outer][line.place.inner]});
}

std::string WriteOne(const LineSource& /*line*/) {
    return PlainNumber(1);
}

std::string WriteSpacedTwo(const LineSource& /*line*/) {
    return PaddedNumber(2);
}

std::string WriteThree(const LineSource& /*line*/) {
    return PlainNumber(3);
}

std::string WriteFour(const LineSource& /*line*/) {
    return PlainNumber(4);
}

void Drop(std::string& /*value*/, const LineTarget& /*line*/) {}

void ReadEntry(std::string& value, const LineTarget& line) {
    ParseInto(value, line.field);
}

void ReadVal(std::string& value, const LineTarget& line) {
    StoreIn(line.field, NumericValue(value));
}

void ReadFirstVal(std::string& value, const LineTarget& line) {
    std::string first;
    TakeField(line.design, value, first);
    ReadVal(first, line);
}

void ReadInteger(std::string& value, const LineTarget& line) {
    const auto number = StrictNumber(value);
    if (!number) {
        ThrowTypeMismatch();
    }
    StoreIn(line.field, *number);
}

void ReadText(std::string& value, const LineTarget& line) {
    TextIn(line) = std::move(value);
}

void ReadTrimmed(std::string& value, const LineTarget& line) {
    TextIn(line) = Trimmed(value);
}

void ReadTicFields(std::string& value, const LineTarget& line) {
    const auto [scale, tic] = line.place;
    DesignRecord& design = line.design;
    float& deflection = design.TicDeflection[scale][tic];
    std::string field;
    TakeField(design, value, field);
    if (!field.empty()) {
        StoreNumber(NumericValue(field), deflection);
    }
    TakeText(design, value, design.TicLabelYN[scale][tic]);
    TakeText(design, value, design.TicPrintYN[scale][tic]);
    TakeText(design, value, design.TicMajorYN[scale][tic]);
    std::string& label = design.TicLabelText[scale][tic];
    TakeText(design, value, label);
    if (label == kEmptyLabel) {
        label = " ";
    }
}

void ReadCurvePoint(std::string& value, const LineTarget& line) {
    float x = 0;
    float y = 0;
    TakeCoordinate(line.design, value, x);
    TakeCoordinate(line.design, value, y);
    line.design.CorrectionPair[2 * line.place.outer - 1] = x;
    line.design.CorrectionPair[2 * line.place.outer] = y;
}

void ReadTicsAndArcs(std::string& value, const LineTarget& line) {
    line.design.PrintTicsAndArcs[line.place.outer] = std::move(value);
}

void ReadDeletedTic(std::string& value, const LineTarget& line) {
    FlagDeleted(line.design, value, line.design.StandardTicYN[line.place.outer]);
}

void ReadDeletedLabel(std::string& value, const LineTarget& line) {
    FlagDeleted(line.design, value, line.design.StandardLabelYN[line.place.outer]);
}

FoundField FindField(std::string_view rest) {
    const std::size_t start = std::min(rest.find_first_not_of(kSeparator), rest.size());
    const std::size_t end = std::min(rest.find(kSeparator, start), rest.size());
    const std::size_t next = std::min(rest.find_first_not_of(kSeparator, end), rest.size());
    return {rest.substr(start, end - start), rest.substr(next)};
}

std::optional<std::int16_t> SplitField(std::string& rest, std::string& field) {
    const FoundField found = FindField(rest);
    if (found.text.empty()) {
        rest.clear();
        return std::nullopt;
    }
    const auto start = static_cast<std::size_t>(found.text.data() - rest.data());
    field = found.text;
    rest.erase(0, rest.size() - found.rest.size());
    return static_cast<std::int16_t>(start + field.size() + 1);
}

} // namespace vernacle
