#include "engine/scale/ticrows.h"

#include "engine/base/numbertext.h"
#include "engine/base/text.h"
#include "engine/core/design.h"
#include "engine/core/entry.h"
#include "engine/scale/scale.h"

namespace vernacle {

namespace {

constexpr std::size_t kColumnWidth = 10; // characters

// How much narrower than ten characters the columns of an information row are.
constexpr std::size_t kTicSaves = 4;
constexpr std::size_t kLabelSaves = 5;

// Appends the blanks that a column lacks whose text is that long; none to a longer one.
void PadToTen(std::string& row, std::size_t length) {
    if (length < kColumnWidth) {
        row.append(kColumnWidth - length, ' ');
    }
}

void AddColumn(std::string& row, std::string_view text, std::size_t saved = 0) {
    row += text;
    PadToTen(row, CharacterCount(text) + saved);
}

std::string NumberText(int number) {
    return PlainNumber(std::int32_t{number});
}

// A column of a row, by its first character from 1 and its width, without outer blanks.
std::string Column(const std::string& row, std::size_t first, std::size_t characters) {
    return std::string(Trimmed(Middle(row, first, characters)));
}

std::int16_t NumberIn(const std::string& row, std::size_t first, std::size_t characters) {
    std::int16_t number = 0;
    StoreNumber(NumericValue(Middle(row, first, characters)), number);
    return number;
}

} // namespace

int LastTicOf(int scale) {
    return IsSpecial(scale) ? Design.SpecialNrOfTicmarks[scale] : Design.NrOfTicmarks[scale];
}

std::string& TicFlagOf(int scale, int tic) {
    return IsSpecial(scale) ? Design.TicPrintYN[scale][tic] : Design.StandardTicYN[scale][tic];
}

std::string& LabelFlagOf(int scale, int tic) {
    return IsSpecial(scale) ? Design.TicLabelYN[scale][tic] : Design.StandardLabelYN[scale][tic];
}

const std::string& LabelTextOf(int scale, int tic) {
    return IsSpecial(scale) ? Design.TicLabelText[scale][tic] : Design.StandardLabel[scale][tic];
}

float DeflectionOf(int scale, int tic) {
    return IsSpecial(scale) ? Design.TicDeflection[scale][tic]
                            : Design.StandardDeflection[scale][tic];
}

void TicRows::Fill(const RowText& row) {
    count_ = 0;
    rows_.fill({});
    for (Design.CurrentScale = 1; Design.CurrentScale <= Design.NumberOfScales;
         ++Design.CurrentScale) {
        const auto last = static_cast<float>(LastTicOf(Design.CurrentScale));
        for (Design.TicLoop = 0; Design.TicLoop <= last; ++Design.TicLoop) {
            ++count_;
            rows_[count_] = row(Design.CurrentScale, CurrentTic());
        }
    }
}

std::string SelectionRow(int scale, int tic) {
    std::string row;
    AddColumn(row, "Scale " + NumberText(scale));
    AddColumn(row, NumberText(tic));
    AddColumn(row, TicFlagOf(scale, tic));
    AddColumn(row, Trimmed(LabelTextOf(scale, tic)));
    AddColumn(row, LabelFlagOf(scale, tic));
    return row;
}

std::string InformationRow(int scale, int tic) {
    std::string row;
    AddColumn(row, "Scale " + NumberText(scale));
    AddColumn(row, NumberText(tic), kTicSaves);
    AddColumn(row, Trimmed(LabelTextOf(scale, tic)), kLabelSaves);
    std::string percent;
    FormatByMagnitude(double{static_cast<float>(double{DeflectionOf(scale, tic)} * 100)}, percent);
    row += percent;
    PadToTen(row, 1); // whatever the percentage's length
    return row;
}

SelectedTic ReadSelectionRow(const std::string& row) {
    return {.scale = NumberIn(row, 6, 4),
            .tic = NumberIn(row, 10, 5),
            .ticFlag = Column(row, 18, 5),
            .label = Column(row, 29, 8),
            .labelFlag = Column(row, 38, 4)};
}

} // namespace vernacle
