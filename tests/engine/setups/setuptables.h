// What the tests of the setups share: a scale's tables read as words.
#pragma once

#include "engine/core/design.h"
#include "support/enginetest.h"

namespace vernacle::test {

// Deflections of tics 0 to last.
inline std::vector<float> DeflectionsOf(int scale, int last) {
    std::vector<float> deflections;
    for (int tic = 0; tic <= last; ++tic) {
        deflections.push_back(Design.TicDeflection[scale][tic]);
    }
    return deflections;
}

// A tic in words: its label in brackets, and "print", "label", "major" for what is switched on.
inline std::string TicInWords(int scale, int tic) {
    std::string words = "[" + Design.TicLabelText[scale][tic] + "]";
    words += Design.TicPrintYN[scale][tic] == "Y" ? " print" : "";
    words += Design.TicLabelYN[scale][tic] == "Y" ? " label" : "";
    words += Design.TicMajorYN[scale][tic] == "Y" ? " major" : "";
    return words;
}

inline Texts TicsInWords(int scale, int last) {
    Texts tics;
    for (int tic = 0; tic <= last; ++tic) {
        tics.push_back(TicInWords(scale, tic));
    }
    return tics;
}

// Puts into every table of the scale what no setup would.
inline void SpoilTables(int scale) {
    for (int tic = 0; tic <= kLastTic; ++tic) {
        Design.TicDeflection[scale][tic] = 7;
        Design.TicLabelText[scale][tic] = "old";
        Design.TicPrintYN[scale][tic] = "Y";
        Design.TicLabelYN[scale][tic] = "Y";
        Design.TicMajorYN[scale][tic] = "Y";
        Design.StandardLabel[scale][tic] = "standard";
    }
}

} // namespace vernacle::test
