#include "designfile.h"

#include <stdexcept>

#include "engine/designfile/readwrite.h"

namespace vernacle::test {

DesignFile::DesignFile()
    : lines{"Filename: C:\\plates\\old.vrn",
            "11/21/26 10:08:00",
            "Plate width: 75",
            "Plate height: 50",
            "Bottom to bearing: 10",
            "Bottom to mounting holes: 15",
            "Hole separation: 50",
            "Pointer deflection: 99",
            "Dummy1: 1",
            "Dummy2: 2 ",
            "Minor ticmark length: 2",
            "Minor ticmark width: 2",
            "Major ticmark length: 3",
            "Major ticmark width: 4",
            "Font size: 8",
            "Actual/virtual offset: 30",
            "Dummy3: 3",
            "Dummy4: 4",
            "Plate style: 0",
            "Draw arcs Y/N:Y",
            "Label rotation H/V/B:H",
            "Print text Y/N:Y",
            "Label spacing: 6",
            "Font style: Arial",
            "Number of scales: 1",
            "Scale color: 0",
            "Scale left end (units): 0",
            "Scale length (units): 50",
            "Bottom to title: 30",
            "Bottom to scale ceiling: 35",
            "Scale title:Default Scale 1",
            "Number of ticmarks: 50",
            "Major ticmarks every how often: 5",
            "Labels every how many ticmarks: 10",
            "Linearity exponent: 1",
            "Draw graphic Y/N:N",
            "Graphic filename:",
            "Left to graphic: 10",
            "Bottom to graphic: 1",
            "Graphic width: 1",
            "Graphic height: 1",
            "Arc width: 1",
            "Messages: 0",
            "Texts: 0",
            "Highlights: 0",
            "Plate background: 16777215",
            "Scale 1 - deleted tics: 0",
            "Scale 2 - deleted tics: 0",
            "Scale 3 - deleted tics: 0",
            "Scale 4 - deleted tics: 0",
            "Scale 1 - deleted labels: 0",
            "Scale 2 - deleted labels: 0",
            "Scale 3 - deleted labels: 0",
            "Scale 4 - deleted labels: 0",
            "Relative font sizes:",
            "Scale 1: 1",
            "Aspect ratio: .75",
            "Number of correction points: 7",
            "Pair #1: 0 \\ 0",
            "Pair #2: .15 \\ .15",
            "Pair #3: .3 \\ .3",
            "Pair #4: .5 \\ .5",
            "Pair #5: .7 \\ .7",
            "Pair #6: .85 \\ .85",
            "Pair #7: 1 \\ 1",
            "Print ticmarks and arcs:",
            "Scale 1: 0",
            ""} {}

Texts::iterator DesignFile::Find(const std::string& label, int occurrence) {
    for (auto line = lines.begin(); line != lines.end(); ++line) {
        if (line->starts_with(label) && --occurrence == 0) {
            return line;
        }
    }
    throw std::logic_error("no line " + label);
}

DesignFile& DesignFile::Set(const std::string& label, const std::string& value, int occurrence) {
    *Find(label, occurrence) = label + value;
    return *this;
}

DesignFile& DesignFile::AddBehind(const std::string& label, const Texts& added) {
    lines.insert(Find(label) + 1, added.begin(), added.end());
    return *this;
}

DesignFile& DesignFile::AddBefore(const std::string& label, const Texts& added) {
    lines.insert(Find(label), added.begin(), added.end());
    return *this;
}

DesignFile& DesignFile::Replace(const std::string& first, const std::string& behind,
                                const Texts& by) {
    lines.erase(Find(first), Find(behind));
    return AddBefore(behind, by);
}

DesignFile& DesignFile::CutBehind(const std::string& label, int occurrence) {
    lines.erase(Find(label, occurrence) + 1, lines.end());
    return *this;
}

std::string DesignFile::Text(const std::string& lineEnd) const {
    return Joined(lines, lineEnd);
}

Texts StandardScaleBlock(const std::string& title) {
    return {"Scale color: 0",
            "Scale left end (units): 0",
            "Scale length (units): 50",
            "Bottom to title: 30",
            "Bottom to scale ceiling: 35",
            "Scale title:" + title,
            "Number of ticmarks: 50",
            "Major ticmarks every how often: 5",
            "Labels every how many ticmarks: 10",
            "Linearity exponent: 1"};
}

Texts SpecialScaleBlock(const Texts& tics) {
    Texts block = {"Scale color: -255",
                   "Bottom to scale title: 20",
                   "Bottom to scale ceiling: 25",
                   "Scale title:Special",
                   "Number of ticmarks: " + std::to_string(static_cast<int>(tics.size()) - 1),
                   "* Deflection, Label Y/N, Tic Y/N, Major Y/N, Label:"};
    block.insert(block.end(), tics.begin(), tics.end());
    for (const char* line : {"Unlabelled ticmark at scale bottom Y/N: N", "Scale exponent: 2",
                             "Fullscale multiplier: 10"}) {
        block.emplace_back(line);
    }
    return block;
}

std::string Joined(const Texts& lines, const std::string& lineEnd) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + lineEnd;
    }
    return text;
}

std::string DesignFileTest::Written() {
    Design.DesignFileName = Path("plate.vrn");
    WriteDesign(Design);
    EXPECT_TRUE(said.empty());
    return ReadFile("plate.vrn");
}

void DesignFileTest::Read(const DesignFile& file) {
    Design = DesignRecord{};
    ReadDesign(Design, WriteFile("plate.vrn", file.Text()));
    EXPECT_TRUE(said.empty());
}

std::string TicFields(int scale, int tic) {
    return Design.TicLabelYN[scale][tic] + "|" + Design.TicPrintYN[scale][tic] + "|" +
           Design.TicMajorYN[scale][tic] + "|" + Design.TicLabelText[scale][tic];
}

} // namespace vernacle::test
