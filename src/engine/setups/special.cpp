#include "engine/setups/special.h"

#include <cmath>
#include <cstdlib>

#include "engine/base/numbertext.h"
#include "engine/core/entry.h"
#include "engine/core/service.h"

namespace vernacle {

namespace {

void ClearRow(DesignRecord& design, int scale, int tic) {
    design.StandardLabel[scale][tic].clear();
    design.TicPrintYN[scale][tic] = "N";
    design.TicLabelYN[scale][tic] = "N";
    design.TicDeflection[scale][tic] = 0;
}

// A text that is no entry leaves the 0.
void StoreRow(DesignRecord& design, int scale, int tic, const SpecialRow& row) {
    if (row.untouched) {
        PutBack(design, scale, tic, *row.untouched);
        return;
    }
    design.TicLabelText[scale][tic] = row.label;
    design.TicLabelYN[scale][tic] = "Y";
    design.TicPrintYN[scale][tic] = "Y";
    design.TicMajorYN[scale][tic] = FlagOf(row.major);
    if (row.exact) {
        design.TicDeflection[scale][tic] = *row.exact;
        return;
    }
    std::string deflection = row.deflection;
    ParseEntry(deflection, design.TicDeflection[scale][tic]);
}

} // namespace

void ApplySpecialTable(DesignRecord& design, int scale, float& ticmarks,
                       const std::array<SpecialRow, kSpecialRows>& rows) {
    ticmarks = std::floor(kLastRowLimits.Held(std::abs(ticmarks)));
    design.SpecialNrOfTicmarks[scale] = static_cast<std::int16_t>(ticmarks);
    for (int tic = 0; tic < kSpecialRows; ++tic) {
        ClearRow(design, scale, tic);
    }
    for (int tic = 0; tic <= design.SpecialNrOfTicmarks[scale]; ++tic) {
        StoreRow(design, scale, tic, rows.at(static_cast<std::size_t>(tic)));
    }
}

void CheckRows(int last, const std::array<SpecialRow, kSpecialRows>& rows) {
    for (int tic = 0; tic <= last; ++tic) {
        if (!HasDigit(rows.at(static_cast<std::size_t>(tic)).deflection)) {
            throw ImpossibleEntry("Tic " + std::to_string(tic) +
                                  " has no deflection.\nPlease enter one for each tic, from 0 to "
                                  "1, or a smaller number of ticmarks.");
        }
    }
}

DeflectionFault CheckDeflection(DesignRecord& design, int scale, int tic, std::string& text) {
    float& deflection = design.TicDeflection[scale][tic];
    ParseEntry(text, deflection);
    const float entered = deflection;
    deflection = kDeflectionLimits.Held(entered);
    text = Service.specialScales ? EntryText(deflection) : PlainNumber(deflection);
    if (entered < deflection) {
        return DeflectionFault::Below;
    }
    return entered > deflection ? DeflectionFault::Above : DeflectionFault::None;
}

} // namespace vernacle
