// What in a file that is read looks like a mistake, though the reader takes it: said to whoever
// asks, and without any effect on what is read.
#pragma once

#include <string>
#include <string_view>

#include "engine/base/linereader.h"
#include "engine/base/readreports.h"
#include "engine/designfile/designlines.h"

namespace vernacle {

// The label of a line as it stands in a file.
std::string LabelOf(const FileLine& line, int number);

// Whether a text has a digit at all: any other gives the number 0.
bool HasDigit(std::string_view text);

// Goes through a design's lines beside its reader.
class LineDoubts {
public:
    explicit LineDoubts(const LineReport& report) : report_(report) {}

    // item is the whole line that the reader is about to take for this row.
    void Consider(const FileLine& line, LinePlace place, std::string_view item,
                  const LineReader& lines);

    // No more lines: the file has ended, or failed.
    void End();

private:
    void JudgeHead();

    const LineReport& report_;
    int items_ = 0;
    bool looksLikeDesign_ = false;
    bool headJudged_ = false;
};

} // namespace vernacle
