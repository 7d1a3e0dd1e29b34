// The tics and labels of a scale that a drawing shows, one after the other: which tables they come
// from, which are major, and what the user's deletions do to them.
#pragma once

#include <functional>
#include <string>

#include "engine/core/design.h"

namespace vernacle {

enum class TicFlags {
    Honoured, // deleted tics are skipped
    Ignored,
};

enum class LabelFlags {
    SkipDeleted, // labels flagged "N" are skipped
    OnlyFlagged, // only labels flagged "Y" are drawn
    SetBack,     // each flag is set back to "Y" in the design before it is tested
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

// Visits the tics of a scale in rising order, with Design.TicLoop as the loop variable, which stays
// where a failure left it. A major or label interval of 0 is a run-time error.
void WalkStandardTics(int scale, TicFlags flags, const TicVisit& visit);
void WalkSpecialTics(int scale, const TicVisit& visit);
void WalkTics(int scale, TicFlags flags, const TicVisit& visit); // as the scale's colour says

// Visits the labels in the same way; their texts have full stops for commas and no outer blanks.
void WalkStandardLabels(int scale, LabelFlags flags, const LabelVisit& visit);
void WalkSpecialLabels(int scale, LabelFlags flags, const LabelVisit& visit);
void WalkLabels(int scale, LabelFlags flags, const LabelVisit& visit);

} // namespace vernacle
