#include "engine/designfile/starlines.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <variant>

#include "engine/base/linereader.h"
#include "engine/core/design.h"
#include "engine/core/recordfields.h"
#include "engine/core/repair.h"

namespace vernacle {

namespace {

constexpr int kFloatDigits = 9; // that tell any float from its neighbours

std::string StarValue(float value) {
    std::array<char, 32> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                            std::chars_format::general, kFloatDigits);
    return {buffer.data(), end};
}

std::string StarValue(std::int32_t value) {
    return std::to_string(value);
}

// On one line: readers end it at a line feed.
std::string StarValue(std::string value) {
    std::ranges::replace(value, '\n', ' ');
    return value;
}

// A text in quotes, so that it is told from a number.
std::string StarValue(const DynamicValue& value) {
    const auto* text = std::get_if<std::string>(&value);
    return text ? '"' + StarValue(*text) : StarValue(std::int32_t{std::get<std::int16_t>(value)});
}

std::string ValueIn(const ConstFieldPointer& field) {
    const auto valueOf = [](auto pointer) -> std::string {
        if constexpr (std::is_pointer_v<decltype(pointer)>) {
            return StarValue(*pointer);
        }
        return {};
    };
    return std::visit(valueOf, field);
}

// Whole, or it is no value of that field.
template <typename Number>
bool TakeNumber(std::string_view text, Number& target) {
    Number number{};
    const char* last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), last, number);
    if (error != std::errc() || end != last || !std::isfinite(static_cast<double>(number))) {
        return false;
    }
    target = number;
    return true;
}

bool Take(std::string_view text, std::string& target) {
    target = text;
    return true;
}

bool Take(std::string_view text, DynamicValue& target) {
    if (text.starts_with('"')) {
        target = std::string(text.substr(1));
        return true;
    }
    std::int16_t number = 0;
    const bool isNumber = TakeNumber(text, number);
    if (isNumber) {
        target = number;
    }
    return isNumber;
}

template <typename Number>
bool Take(std::string_view text, Number& target) {
    return TakeNumber(text, target);
}

bool TakeInto(std::string_view text, const FieldPointer& field) {
    const auto take = [text](auto pointer) {
        if constexpr (std::is_pointer_v<decltype(pointer)>) {
            return Take(text, *pointer);
        }
        return false;
    };
    return std::visit(take, field);
}

// The parts of "Field[1,17]: value", and the same without indices.
struct StarLine {
    const RecordField* field = nullptr;
    int outer = 0;
    int inner = 0;
    std::string_view value;
};

bool IsWithin(int index, int last) {
    return index >= 0 && index <= last;
}

// Of "1,17]", as many as the field has; false for anything else.
bool TakeIndices(std::string_view text, StarLine& line) {
    const std::size_t comma = text.find(',');
    const bool hasTwo = line.field->indices == 2;
    if (line.field->indices == 0 || !text.ends_with(']') || (comma != text.npos) != hasTwo) {
        return false;
    }
    text.remove_suffix(1);
    if (hasTwo && !TakeNumber(text.substr(comma + 1), line.inner)) {
        return false;
    }
    return TakeNumber(text.substr(0, comma), line.outer) &&
           IsWithin(line.outer, line.field->lastOuter) &&
           IsWithin(line.inner, line.field->lastInner);
}

std::optional<StarLine> SplitStarLine(std::string_view text) {
    const std::size_t colon = text.find(": ");
    if (colon == text.npos) {
        return std::nullopt;
    }
    const std::string_view entry = text.substr(0, colon);
    const std::size_t bracket = entry.find('[');
    StarLine line{.field = FindRecordField(entry.substr(0, bracket)),
                  .value = text.substr(colon + 2)};
    if (!line.field || line.field->role != FieldRole::Kept) {
        return std::nullopt;
    }
    const bool isEntry = bracket == entry.npos ? line.field->indices == 0
                                               : TakeIndices(entry.substr(bracket + 1), line);
    return isEntry ? std::optional(line) : std::nullopt;
}

bool TakeStarLine(DesignRecord& design, std::string_view text) {
    const auto line = SplitStarLine(text);
    return line && TakeInto(line->value, line->field->place.In(design, line->outer, line->inner));
}

// Counts by which tables are walked: no line may lead beyond them.
constexpr Repair kCounts[] = {
    {At<&DesignRecord::NumberOfScales>, When::Above, kLastScale, kLastScale},
    {At<&DesignRecord::NumberOfTexts>, When::Above, kTexts, kTexts},
    {At<&DesignRecord::NumberOfHighlights>, When::Above, kHighlights, kHighlights},
};

constexpr Repair kScaleCounts[] = {
    {At<&DesignRecord::NrOfTicmarks>, When::Above, kLastTic, kLastTic},
    {At<&DesignRecord::SpecialNrOfTicmarks>, When::Above, kLastTic, kLastTic},
};

void HoldCounts(DesignRecord& design) {
    RepairFields(design, kCounts);
    for (int scale = 0; scale <= kLastScale; ++scale) {
        RepairFields(design, kScaleCounts, scale);
    }
}

// A comment has a blank behind its star, as the heading above the tics of a special scale.
bool IsStarLine(std::string_view line) {
    return line.size() > 1 && line[0] == '*' && line[1] != ' ';
}

} // namespace

std::string StarLines(const DesignRecord& design, const DesignRecord& readBack) {
    std::string lines;
    for (const RecordField& field : RecordFields()) {
        if (field.role != FieldRole::Kept) {
            continue;
        }
        ForEachEntry(field, [&](int outer, int inner) {
            const ConstFieldPointer value = field.place.In(design, outer, inner);
            if (!SameValue(value, field.place.In(readBack, outer, inner))) {
                lines += "*" + EntryName(field, outer, inner) + ": " + ValueIn(value);
                lines += kLineEnd;
            }
        });
    }
    return lines + design.ForeignLines;
}

void TakeStarLines(DesignRecord& design, std::string_view fileText) {
    bool isMarked = false;
    LineReader lines{std::string(fileText)};
    while (!lines.AtEnd()) {
        const std::string_view line = lines.Next();
        if (line == kStarMark) {
            isMarked = true;
        } else if (isMarked && IsStarLine(line) && !TakeStarLine(design, line.substr(1))) {
            design.ForeignLines += std::string(line).append(kLineEnd);
        }
    }
    HoldCounts(design);
}

} // namespace vernacle
