#include "engine/setups/special.h"

#include <cmath>
#include <cstdlib>

#include "engine/base/numbertext.h"
#include "engine/core/design.h"
#include "engine/core/entry.h"

namespace vernacle {

namespace {

void ClearRow(int scale, int tic) {
    Design.StandardLabel[scale][tic].clear();
    Design.TicPrintYN[scale][tic] = "N";
    Design.TicLabelYN[scale][tic] = "N";
    Design.TicDeflection[scale][tic] = 0;
}

// A text that is no entry leaves the 0.
void StoreRow(int scale, int tic, const SpecialRow& row) {
    Design.TicLabelText[scale][tic] = row.label;
    Design.TicLabelYN[scale][tic] = "Y";
    Design.TicPrintYN[scale][tic] = "Y";
    Design.TicMajorYN[scale][tic] = FlagOf(row.major);
    std::string deflection = row.deflection;
    ParseEntry(deflection, Design.TicDeflection[scale][tic]);
}

} // namespace

void ApplySpecialTable(int scale, float& ticmarks,
                       const std::array<SpecialRow, kSpecialRows>& rows) {
    ticmarks = std::floor(kLastRowLimits.Held(std::abs(ticmarks)));
    Design.SpecialNrOfTicmarks[scale] = static_cast<std::int16_t>(ticmarks);
    for (int tic = 0; tic < kSpecialRows; ++tic) {
        ClearRow(scale, tic);
    }
    for (int tic = 0; tic <= Design.SpecialNrOfTicmarks[scale]; ++tic) {
        StoreRow(scale, tic, rows.at(static_cast<std::size_t>(tic)));
    }
}

DeflectionFault CheckDeflection(int scale, int tic, std::string& text) {
    float& deflection = Design.TicDeflection[scale][tic];
    ParseEntry(text, deflection);
    const float entered = deflection;
    deflection = kDeflectionLimits.Held(entered);
    text = PlainNumber(deflection);
    if (entered < deflection) {
        return DeflectionFault::Below;
    }
    return entered > deflection ? DeflectionFault::Above : DeflectionFault::None;
}

} // namespace vernacle
