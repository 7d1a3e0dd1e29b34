#include "engine/scale/ticwalk.h"

#include <algorithm>

#include "engine/base/text.h"
#include "engine/scale/scale.h"

namespace vernacle {

namespace {

// Every labelled tic is major, also one that falls between the multiples of the major interval.
bool IsMajor(int scale, int tic) {
    const bool major = IsMultiple(tic, Design.MajorEveryHowMany[scale]);
    const bool labelled = IsMultiple(tic, Design.LabelsEveryHowMany[scale]);
    return major || labelled;
}

std::string Normalised(std::string text) {
    std::replace(text.begin(), text.end(), ',', '.');
    return std::string(Trimmed(text));
}

bool IsShown(std::string& flag, LabelFlags flags) {
    switch (flags) {
    case LabelFlags::SkipDeleted:
        return flag != "N";
    case LabelFlags::OnlyFlagged:
        return flag == "Y";
    case LabelFlags::SetBack:
        flag = "Y";
        return true;
    case LabelFlags::Ignored:
        return true;
    }
    return true;
}

template <typename Visit>
void ForEachTic(int last, Visit visit) {
    for (Design.TicLoop = 0; Design.TicLoop <= static_cast<float>(last); ++Design.TicLoop) {
        visit(CurrentTic());
    }
}

} // namespace

void WalkStandardTics(int scale, TicFlags flags, const TicVisit& visit) {
    ForEachTic(Design.NrOfTicmarks[scale], [&](int tic) {
        if (flags == TicFlags::Ignored || Design.StandardTicYN[scale][tic] != "N") {
            visit({scale, tic, Design.StandardDeflection[scale][tic], IsMajor(scale, tic)});
        }
    });
}

void WalkSpecialTics(int scale, const TicVisit& visit) {
    ForEachTic(Design.SpecialNrOfTicmarks[scale], [&](int tic) {
        if (Design.TicPrintYN[scale][tic] == "Y") {
            const bool major = Design.TicMajorYN[scale][tic] == "Y";
            visit({scale, tic, Design.TicDeflection[scale][tic], major});
        }
    });
}

void WalkStandardLabels(int scale, LabelFlags flags, const LabelVisit& visit) {
    ForEachTic(Design.NrOfTicmarks[scale], [&](int tic) {
        if (IsShown(Design.StandardLabelYN[scale][tic], flags) &&
            IsMultiple(tic, Design.LabelsEveryHowMany[scale])) {
            visit({scale, tic, Design.StandardDeflection[scale][tic],
                   Normalised(Design.StandardLabel[scale][tic]), false});
        }
    });
}

void WalkSpecialLabels(int scale, LabelFlags flags, const LabelVisit& visit) {
    const bool setBack = flags == LabelFlags::SetBack;
    ForEachTic(Design.SpecialNrOfTicmarks[scale], [&](int tic) {
        if (setBack) {
            Design.TicLabelYN[scale][tic] = "Y";
        }
        if (Design.TicLabelYN[scale][tic] == "Y") {
            visit({scale, tic, Design.TicDeflection[scale][tic],
                   Normalised(Design.TicLabelText[scale][tic]), true});
        }
    });
}

void WalkTics(int scale, TicFlags flags, const TicVisit& visit) {
    if (IsSpecial(scale)) {
        WalkSpecialTics(scale, visit);
    } else {
        WalkStandardTics(scale, flags, visit);
    }
}

void WalkLabels(int scale, LabelFlags flags, const LabelVisit& visit) {
    if (IsSpecial(scale)) {
        WalkSpecialLabels(scale, flags, visit);
    } else {
        WalkStandardLabels(scale, flags, visit);
    }
}

} // namespace vernacle
