// The tics and labels of a scale that a drawing shows, one after the other: which tables they come
// from, which are major, and what the user's deletions do to them.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "engine/core/design.h"

namespace vernacle {

enum class TicFlags {
    Honoured, // deleted tics are skipped
    Ignored,
};

enum class LabelFlags {
    SkipDeleted, // labels flagged "N" are skipped
    OnlyFlagged, // only labels flagged "Y" are drawn
    SetBack,     // all are drawn: whoever owns the design sets back each flag that is reached
    Ignored,
};

struct Tic {
    int scale;
    int number;
    float deflection; // as the table holds it, before any movement correction
    bool major;
};

struct TicLabel {
    int scale;
    int number;
    float deflection;
    std::string text;
    bool special = false; // of a special scale's tables
};

using TicVisit = std::function<void(const Tic&)>;
using LabelVisit = std::function<void(const TicLabel&)>;

// What a page says while a label with a decimal comma is typed: that it is drawn with a point.
// Empty of all others.
std::string LabelRemark(std::string_view typed);

// Told of each tic of a label walk before its flag is asked for; may be empty.
using TicReached = std::function<void(int scale, int tic)>;

// Visits the tics of a scale in rising order. A major or label interval of 0 is a run-time error.
void WalkStandardTics(const DesignRecord& design, int scale, TicFlags flags, const TicVisit& visit);
void WalkSpecialTics(const DesignRecord& design, int scale, const TicVisit& visit);
// As the scale's colour says.
void WalkTics(const DesignRecord& design, int scale, TicFlags flags, const TicVisit& visit);

// Visits the labels in the same way; their texts have full stops for commas and no outer blanks.
void WalkStandardLabels(const DesignRecord& design, int scale, LabelFlags flags,
                        const TicReached& reached, const LabelVisit& visit);
void WalkSpecialLabels(const DesignRecord& design, int scale, LabelFlags flags,
                       const TicReached& reached, const LabelVisit& visit);
// As the scale's colour says.
void WalkLabels(const DesignRecord& design, int scale, LabelFlags flags, const LabelVisit& visit);

} // namespace vernacle
