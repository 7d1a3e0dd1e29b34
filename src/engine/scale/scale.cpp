#include "engine/scale/scale.h"

#include <cmath>
#include <string>

#include "engine/base/numbertext.h"
#include "engine/base/text.h"
#include "engine/core/entry.h"
#include "engine/core/service.h"

namespace vernacle {

namespace {

using DeletedList = Table<std::int16_t, kLastTic>;

void ComputeDeflections(DesignRecord& design, int scale) {
    const int last = design.NrOfTicmarks[scale];
    const double exponent = double{design.LinearityExponent[scale]};
    for (int tic = 0; tic <= last; ++tic) {
        const auto fraction = static_cast<float>(CheckedDivide(tic, last));
        StoreNumber(CheckedPower(double{fraction}, exponent),
                    design.StandardDeflection[scale][tic]);
    }
}

void ComputeLabels(DesignRecord& design, int scale) {
    const int last = design.NrOfTicmarks[scale];
    const int every = design.LabelsEveryHowMany[scale];
    std::string label;
    for (int tic = 0; tic <= last && every > 0; tic += every) {
        const double share = CheckedDivide(tic, last);
        float value = 0;
        StoreNumber(share * double{design.ScaleLengthUnits[scale]}, value);
        StoreNumber(double{value} + double{design.ScaleLeftEnd[scale]}, value);
        FormatByMagnitude(double{value}, label);
        design.StandardLabel[scale][tic] = Trimmed(label);
    }
}

void Collect(DeletionFlags::Row flags, std::int16_t& count, DeletedList& list) {
    count = 0;
    for (int tic = 0; tic <= kLastTic; ++tic) {
        // Careful files keep the flags themselves, and so the one for which the list has no room.
        const bool hasRoom = !Service.carefulFiles || count < kLastTic;
        if (flags[tic] == "N" && hasRoom) {
            ++count;
            list[count] = static_cast<std::int16_t>(tic);
        }
    }
}

} // namespace

void ComputeTicDeflections(DesignRecord& design) {
    for (int scale = 1; scale <= design.NumberOfScales; ++scale) {
        if (!IsSpecial(design, scale)) {
            ComputeDeflections(design, scale);
        }
    }
}

void ComputeTicLabels(DesignRecord& design) {
    for (int scale = 1; scale <= design.NumberOfScales; ++scale) {
        ComputeLabels(design, scale);
    }
}

void CollectDeletedTics(DesignRecord& design) {
    for (int scale = 1; scale <= kScales; ++scale) {
        Collect(design.StandardTicYN[scale], design.DeletedTicCount[scale],
                design.DeletedTics[scale]);
    }
    for (int scale = 1; scale <= kScales; ++scale) {
        Collect(design.StandardLabelYN[scale], design.DeletedLabelCount[scale],
                design.DeletedLabels[scale]);
    }
}

bool IsSpecial(const DesignRecord& design, int scale) {
    return design.ScaleColor[scale] < 0;
}

bool IsMultiple(int tic, int every) {
    const double quotient = CheckedDivide(tic, every);
    return quotient == std::floor(quotient);
}

} // namespace vernacle
