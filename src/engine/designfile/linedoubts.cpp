#include "engine/designfile/linedoubts.h"

#include <algorithm>
#include <string_view>

#include "engine/core/entry.h"

namespace vernacle {

namespace {

constexpr int kTicFields = 5;
constexpr const char* kNoNumber = "no number";
constexpr const char* kTooLong = "more than ten characters are ignored";

// The doubt about a value, null for none.
using Doubt = const char* (*)(std::string_view value);

const char* DoubtNumber(std::string_view value) {
    return HasDigit(value) ? nullptr : kNoNumber;
}

const char* DoubtEntry(std::string_view value) {
    return IsTooLongForEntry(value) ? kTooLong : DoubtNumber(value);
}

const char* DoubtFirstNumber(std::string_view value) {
    return DoubtNumber(FindField(value).text);
}

const char* DoubtPoint(std::string_view value) {
    const FoundField x = FindField(value);
    const char* doubt = DoubtEntry(x.text);
    return doubt ? doubt : DoubtEntry(FindField(x.rest).text);
}

const char* DoubtTic(std::string_view value) {
    int fields = 0;
    for (FoundField field = FindField(value); !field.text.empty(); field = FindField(field.rest)) {
        ++fields;
    }
    return fields < kTicFields ? "a tic line with fewer than five fields" : DoubtFirstNumber(value);
}

struct DoubtRow {
    ReadValue read;
    Doubt doubt;
};

// By the way in which a line is read. What is read as text is right whatever it says, and a text's
// colour that is no number is a failure of its own.
constexpr DoubtRow kDoubts[] = {
    {ReadEntry, DoubtEntry},          //
    {ReadDeletedTic, DoubtEntry},     //
    {ReadDeletedLabel, DoubtEntry},   //
    {ReadVal, DoubtNumber},           //
    {ReadFirstVal, DoubtFirstNumber}, //
    {ReadTicsAndArcs, DoubtNumber},   //
    {ReadCurvePoint, DoubtPoint},     //
    {ReadTicFields, DoubtTic},        //
};

const char* DoubtAbout(const FileLine& line, std::string_view value) {
    const auto* row = std::find_if(std::begin(kDoubts), std::end(kDoubts),
                                   [&line](const DoubtRow& r) { return r.read == line.read; });
    return row == std::end(kDoubts) ? nullptr : row->doubt(value);
}

// Whether a line without an end of its own is one that the file's end has cut short.
bool IsCutShort(const FileLine& line, const std::string& label, std::string_view item) {
    if (!item.starts_with(label)) {
        return label.starts_with(item);
    }
    const bool hasFields = line.read == ReadTicFields || line.read == ReadCurvePoint;
    return hasFields || item.find_first_not_of("+-. \\", label.size()) == item.npos;
}

} // namespace

std::string LabelOf(const FileLine& line, int number) {
    std::string label = line.label;
    const std::size_t mark = label.find('%');
    return mark == label.npos ? label : label.replace(mark, 1, std::to_string(number));
}

bool HasDigit(std::string_view text) {
    return std::any_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

void LineDoubts::Consider(const FileLine& line, LinePlace place, std::string_view item,
                          const LineReader& lines) {
    if (!report_) {
        return;
    }
    if (!headJudged_ && !IsOfHead(line)) {
        JudgeHead();
    }
    ++items_;
    looksLikeDesign_ = looksLikeDesign_ || LooksLikeHead(item, lines.IsEnded());
    const std::string label = LabelOf(line, place.outer);
    const char* doubt = DoubtAbout(line, LineReader::ValueOf(item));
    if (doubt && (lines.IsEnded() || !IsCutShort(line, label, item))) {
        report_(lines.LineNumber(),
                label.substr(0, label.rfind(':')) + (label.empty() ? "" : ": ") + doubt);
    }
}

void LineDoubts::End() {
    if (report_ && !headJudged_) {
        JudgeHead();
    }
}

void LineDoubts::JudgeHead() {
    headJudged_ = true;
    if (items_ > 0 && !looksLikeDesign_) {
        report_(1, "no line of the head looks like one of a design");
    }
}

} // namespace vernacle
