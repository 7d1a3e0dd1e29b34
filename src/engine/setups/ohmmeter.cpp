#include "engine/setups/ohmmeter.h"

#include "engine/core/entry.h"
#include "engine/setups/setup.h"

namespace vernacle {

namespace {

void StoreRow(DesignRecord& design, int scale, int tic, const ResistanceRow& row) {
    if (row.untouched) {
        PutBack(design, scale, tic, *row.untouched);
        return;
    }
    design.TicPrintYN[scale][tic] = "Y";
    design.TicLabelYN[scale][tic] = "Y";
    if (row.exact) {
        design.TicDeflection[scale][tic] = *row.exact;
    } else {
        std::string deflection = row.deflection;
        ParseEntry(deflection, design.TicDeflection[scale][tic]);
    }
    if (row.ticClass != TicClass::Undecided) {
        design.TicMajorYN[scale][tic] = FlagOf(AnswerIf(row.ticClass == TicClass::Major));
    }
    design.TicLabelText[scale][tic] = row.label;
}

} // namespace

float ComputeResistanceDeflection(float midscale, float resistance) {
    if (midscale == 0) {
        throw ImpossibleEntry("The midscale resistance is 0, and no resistance has a deflection "
                              "then.\nPlease enter the resistance that the meter shows at half of "
                              "its deflection.");
    }
    const double sum = double{resistance} / double{midscale} + 1;
    if (sum == 0) {
        throw ImpossibleEntry("A resistance of minus the midscale resistance has no deflection.\n"
                              "Please enter a resistance of 0 or more.");
    }
    return static_cast<float>(1 / sum);
}

void StoreResistanceList(DesignRecord& design, int scale, const std::vector<ResistanceRow>& rows) {
    MarkSpecial(design, scale);
    const int count = static_cast<int>(rows.size());
    design.SpecialNrOfTicmarks[scale] = static_cast<std::int16_t>(count - 1);
    for (int tic = 0; tic < count; ++tic) {
        StoreRow(design, scale, tic, rows[static_cast<std::size_t>(tic)]);
    }
}

} // namespace vernacle
