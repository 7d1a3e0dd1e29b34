#include "engine/scale/scale.h"

#include <cmath>
#include <string>

#include "engine/base/numbertext.h"
#include "engine/base/text.h"
#include "engine/core/design.h"
#include "engine/core/entry.h"

namespace vernacle {

namespace {

using DeletedList = Table<std::int16_t, kLastTic>;

void ComputeDeflections(int scale) {
    const int last = Design.NrOfTicmarks[scale];
    const double exponent = double{Design.LinearityExponent[scale]};
    for (int tic = 0; tic <= last; ++tic) {
        const auto fraction = static_cast<float>(CheckedDivide(tic, last));
        StoreNumber(CheckedPower(double{fraction}, exponent),
                    Design.StandardDeflection[scale][tic]);
    }
}

void ComputeLabels(int scale) {
    const int last = Design.NrOfTicmarks[scale];
    const int every = Design.LabelsEveryHowMany[scale];
    std::string label;
    for (int tic = 0; tic <= last && every > 0; tic += every) {
        const double share = CheckedDivide(tic, last);
        float value = 0;
        StoreNumber(share * double{Design.ScaleLengthUnits[scale]}, value);
        StoreNumber(double{value} + double{Design.ScaleLeftEnd[scale]}, value);
        FormatByMagnitude(double{value}, label);
        Design.StandardLabel[scale][tic] = Trimmed(label);
    }
}

void Collect(DeletionFlags::Row flags, std::int16_t& count, DeletedList& list) {
    count = 0;
    for (int tic = 0; tic <= kLastTic; ++tic) {
        if (flags[tic] == "N") {
            ++count;
            list[count] = static_cast<std::int16_t>(tic);
        }
    }
}

} // namespace

void ComputeTicDeflections() {
    for (int scale = 1; scale <= Design.NumberOfScales; ++scale) {
        if (!IsSpecial(scale)) {
            ComputeDeflections(scale);
        }
    }
}

void ComputeTicLabels() {
    for (int scale = 1; scale <= Design.NumberOfScales; ++scale) {
        ComputeLabels(scale);
    }
}

void CollectDeletedTics() {
    for (int scale = 1; scale <= kScales; ++scale) {
        Collect(Design.StandardTicYN[scale], Design.DeletedTicCount[scale],
                Design.DeletedTics[scale]);
    }
    for (int scale = 1; scale <= kScales; ++scale) {
        Collect(Design.StandardLabelYN[scale], Design.DeletedLabelCount[scale],
                Design.DeletedLabels[scale]);
    }
}

bool IsSpecial(int scale) {
    return Design.ScaleColor[scale] < 0;
}

bool IsMultiple(int tic, int every) {
    const double quotient = CheckedDivide(tic, every);
    return quotient == std::floor(quotient);
}

} // namespace vernacle
