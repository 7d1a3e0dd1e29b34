#include "engine/scale/ticwalk.h"

#include <algorithm>

#include "engine/base/text.h"
#include "engine/scale/scale.h"

namespace vernacle {

namespace {

// Every labelled tic is major, also one that falls between the multiples of the major interval.
bool IsMajor(const DesignRecord& design, int scale, int tic) {
    const bool major = IsMultiple(tic, design.MajorEveryHowMany[scale]);
    const bool labelled = IsMultiple(tic, design.LabelsEveryHowMany[scale]);
    return major || labelled;
}

std::string Normalised(std::string text) {
    std::replace(text.begin(), text.end(), ',', '.');
    return std::string(Trimmed(text));
}

bool IsShown(const std::string& flag, LabelFlags flags) {
    switch (flags) {
    case LabelFlags::SkipDeleted:
        return flag != "N";
    case LabelFlags::OnlyFlagged:
        return flag == "Y";
    case LabelFlags::SetBack:
    case LabelFlags::Ignored:
        return true;
    }
    return true;
}

// Whatever a page makes of the flags, a special scale draws a label only for a "Y".
bool IsSpecialShown(const std::string& flag, LabelFlags flags) {
    return flags == LabelFlags::SetBack || flag == "Y";
}

void Tell(const TicReached& reached, int scale, int tic) {
    if (reached) {
        reached(scale, tic);
    }
}

} // namespace

std::string LabelRemark(std::string_view typed) {
    return typed.find(',') == typed.npos
               ? std::string()
               : "The comma of this label is drawn as a point: " + Normalised(std::string(typed));
}

void WalkStandardTics(const DesignRecord& design, int scale, TicFlags flags,
                      const TicVisit& visit) {
    for (int tic = 0; tic <= design.NrOfTicmarks[scale]; ++tic) {
        if (flags == TicFlags::Ignored || design.StandardTicYN[scale][tic] != "N") {
            visit({scale, tic, design.StandardDeflection[scale][tic], IsMajor(design, scale, tic)});
        }
    }
}

void WalkSpecialTics(const DesignRecord& design, int scale, const TicVisit& visit) {
    for (int tic = 0; tic <= design.SpecialNrOfTicmarks[scale]; ++tic) {
        if (design.TicPrintYN[scale][tic] == "Y") {
            const bool major = design.TicMajorYN[scale][tic] == "Y";
            visit({scale, tic, design.TicDeflection[scale][tic], major});
        }
    }
}

void WalkStandardLabels(const DesignRecord& design, int scale, LabelFlags flags,
                        const TicReached& reached, const LabelVisit& visit) {
    for (int tic = 0; tic <= design.NrOfTicmarks[scale]; ++tic) {
        Tell(reached, scale, tic);
        if (IsShown(design.StandardLabelYN[scale][tic], flags) &&
            IsMultiple(tic, design.LabelsEveryHowMany[scale])) {
            visit({scale, tic, design.StandardDeflection[scale][tic],
                   Normalised(design.StandardLabel[scale][tic]), false});
        }
    }
}

void WalkSpecialLabels(const DesignRecord& design, int scale, LabelFlags flags,
                       const TicReached& reached, const LabelVisit& visit) {
    for (int tic = 0; tic <= design.SpecialNrOfTicmarks[scale]; ++tic) {
        Tell(reached, scale, tic);
        if (IsSpecialShown(design.TicLabelYN[scale][tic], flags)) {
            visit({scale, tic, design.TicDeflection[scale][tic],
                   Normalised(design.TicLabelText[scale][tic]), true});
        }
    }
}

void WalkTics(const DesignRecord& design, int scale, TicFlags flags, const TicVisit& visit) {
    if (IsSpecial(design, scale)) {
        WalkSpecialTics(design, scale, visit);
    } else {
        WalkStandardTics(design, scale, flags, visit);
    }
}

void WalkLabels(const DesignRecord& design, int scale, LabelFlags flags, const LabelVisit& visit) {
    if (IsSpecial(design, scale)) {
        WalkSpecialLabels(design, scale, flags, nullptr, visit);
    } else {
        WalkStandardLabels(design, scale, flags, nullptr, visit);
    }
}

} // namespace vernacle
