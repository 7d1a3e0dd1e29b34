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

std::string& TextIn(const FieldPointer& field) {
    return *std::get<std::string*>(field);
}

bool HasField(std::string_view rest) {
    return rest.find_first_not_of(kSeparator) != std::string_view::npos;
}

// The next field, without the blanks around it, to a text that keeps what it holds if none is left.
void TakeText(std::string& rest, std::string& target) {
    if (HasField(rest)) {
        SplitField(rest, Design.ScratchText);
        target = Trimmed(Design.ScratchText);
    }
}

void TakeCoordinate(std::string& rest, float& target) {
    if (HasField(rest)) {
        SplitField(rest, Design.ScratchText);
        ParseEntry(Design.ScratchText, target);
    }
}

void FlagDeleted(std::string& value, DeletionFlags::Row flags) {
    ParseEntry(value, Design.SharedIndex2);
    flags[Design.SharedIndex2] = "N";
}

} // namespace

std::string WriteNothing(const FieldPointer& /*field*/, LinePlace /*place*/) {
    return "";
}

std::string WriteDateTime(const FieldPointer& /*field*/, LinePlace /*place*/) {
    return Host.localDateTime();
}

std::string WritePlain(const FieldPointer& field, LinePlace /*place*/) {
    if (const auto* number = std::get_if<float*>(&field)) {
        return PlainNumber(**number);
    }
    return PlainNumber(static_cast<std::int32_t>(NumberIn(field)));
}

std::string WritePadded(const FieldPointer& field, LinePlace /*place*/) {
    return PaddedNumber(*std::get<float*>(field));
}

std::string WriteGlued(const FieldPointer& field, LinePlace /*place*/) {
    return TextIn(field);
}

std::string WriteTrimmed(const FieldPointer& field, LinePlace /*place*/) {
    return std::string(Trimmed(TextIn(field)));
}

std::string WriteTicFields(const FieldPointer& /*field*/, LinePlace place) {
    const auto [scale, tic] = place;
    std::string& label = Design.TicLabelText[scale][tic];
    if (Trimmed(label).empty()) {
        label = kEmptyLabel;
    }
    std::string text = SignedNumber(Design.TicDeflection[scale][tic]);
    for (auto* fields :
         {&Design.TicLabelYN, &Design.TicPrintYN, &Design.TicMajorYN, &Design.TicLabelText}) {
        text += kSeparator;
        text += Trimmed((*fields)[scale][tic]);
    }
    return text;
}

std::string WriteCurvePoint(const FieldPointer& /*field*/, LinePlace place) {
    return PlainNumber(Design.CorrectionPair[2 * place.outer - 1]) + " \\ " +
           PlainNumber(Design.CorrectionPair[2 * place.outer]);
}

std::string WriteTicsAndArcs(const FieldPointer& /*field*/, LinePlace place) {
    float number = 0;
    StoreNumber(NumberOf(Design.PrintTicsAndArcs[place.outer]), number);
    return PlainNumber(number);
}

std::string WriteDeletedTic(const FieldPointer& /*field*/, LinePlace place) {
    return PlainNumber(std::int32_t{Design.DeletedTics[place.outer][place.inner]});
}

std::string WriteDeletedLabel(const FieldPointer& /*field*/, LinePlace place) {
    return PlainNumber(std::int32_t{Design.DeletedLabels[place.outer][place.inner]});
}

std::string WriteOne(const FieldPointer& /*field*/, LinePlace /*place*/) {
    return PlainNumber(1);
}

std::string WriteSpacedTwo(const FieldPointer& /*field*/, LinePlace /*place*/) {
    return PaddedNumber(2);
}

std::string WriteThree(const FieldPointer& /*field*/, LinePlace /*place*/) {
    return PlainNumber(3);
}

std::string WriteFour(const FieldPointer& /*field*/, LinePlace /*place*/) {
    return PlainNumber(4);
}

void Drop(std::string& /*value*/, const FieldPointer& /*field*/, LinePlace /*place*/) {}

void ReadEntry(std::string& value, const FieldPointer& field, LinePlace /*place*/) {
    if (const auto* number = std::get_if<float*>(&field)) {
        ParseEntry(value, **number);
    } else if (const auto* whole = std::get_if<std::int16_t*>(&field)) {
        ParseEntry(value, **whole);
    } else {
        ParseEntry(value, *std::get<std::int32_t*>(field));
    }
}

void ReadVal(std::string& value, const FieldPointer& field, LinePlace /*place*/) {
    StoreIn(field, NumericValue(value));
}

void ReadFirstVal(std::string& value, const FieldPointer& field, LinePlace place) {
    std::string first;
    SplitField(value, first);
    ReadVal(first, field, place);
}

void ReadInteger(std::string& value, const FieldPointer& field, LinePlace /*place*/) {
    const auto number = StrictNumber(value);
    if (!number) {
        ThrowTypeMismatch();
    }
    StoreIn(field, *number);
}

void ReadText(std::string& value, const FieldPointer& field, LinePlace /*place*/) {
    TextIn(field) = std::move(value);
}

void ReadTrimmed(std::string& value, const FieldPointer& field, LinePlace /*place*/) {
    TextIn(field) = Trimmed(value);
}

void ReadTicFields(std::string& value, const FieldPointer& /*field*/, LinePlace place) {
    const auto [scale, tic] = place;
    float& deflection = Design.TicDeflection[scale][tic];
    if (HasField(value)) {
        SplitField(value, Design.ScratchText);
        StoreNumber(NumericValue(Design.ScratchText), deflection);
    }
    TakeText(value, Design.TicLabelYN[scale][tic]);
    TakeText(value, Design.TicPrintYN[scale][tic]);
    TakeText(value, Design.TicMajorYN[scale][tic]);
    std::string& label = Design.TicLabelText[scale][tic];
    TakeText(value, label);
    if (label == kEmptyLabel) {
        label = " ";
    }
}

void ReadCurvePoint(std::string& value, const FieldPointer& /*field*/, LinePlace place) {
    float x = 0;
    float y = 0;
    TakeCoordinate(value, x);
    TakeCoordinate(value, y);
    Design.CorrectionPair[2 * place.outer - 1] = x;
    Design.CorrectionPair[2 * place.outer] = y;
}

void ReadTicsAndArcs(std::string& value, const FieldPointer& /*field*/, LinePlace place) {
    Design.PrintTicsAndArcs[place.outer] = std::move(value);
}

void ReadDeletedTic(std::string& value, const FieldPointer& /*field*/, LinePlace place) {
    FlagDeleted(value, Design.StandardTicYN[place.outer]);
}

void ReadDeletedLabel(std::string& value, const FieldPointer& /*field*/, LinePlace place) {
    FlagDeleted(value, Design.StandardLabelYN[place.outer]);
}

FoundField FindField(std::string_view rest) {
    const std::size_t start = std::min(rest.find_first_not_of(kSeparator), rest.size());
    const std::size_t end = std::min(rest.find(kSeparator, start), rest.size());
    const std::size_t next = std::min(rest.find_first_not_of(kSeparator, end), rest.size());
    return {rest.substr(start, end - start), rest.substr(next)};
}

void SplitField(std::string& rest, std::string& field) {
    const FoundField found = FindField(rest);
    if (found.text.empty()) {
        rest.clear();
        return;
    }
    const auto start = static_cast<std::size_t>(found.text.data() - rest.data());
    field = found.text;
    Design.SharedIndex = static_cast<std::int16_t>(start + 1);
    Design.SharedIndex2 = static_cast<std::int16_t>(start + field.size() + 1);
    rest.erase(0, rest.size() - found.rest.size());
}

} // namespace vernacle
