#include "engine/scale/ticrows.h"

#include <algorithm>
#include <utility>

#include "engine/base/numbertext.h"
#include "engine/base/runtimeerror.h"
#include "engine/base/text.h"
#include "engine/core/entry.h"
#include "engine/core/service.h"
#include "engine/scale/scale.h"
#include "engine/scale/ticwalk.h"

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

// Of a design that may be changed or not, as the design handed over is.
template <typename AnyDesign>
auto& TicFlagIn(AnyDesign& design, int scale, int tic) {
    return IsSpecial(design, scale) ? design.TicPrintYN[scale][tic]
                                    : design.StandardTicYN[scale][tic];
}

template <typename AnyDesign>
auto& LabelFlagIn(AnyDesign& design, int scale, int tic) {
    return IsSpecial(design, scale) ? design.TicLabelYN[scale][tic]
                                    : design.StandardLabelYN[scale][tic];
}

double PercentOf(const DesignRecord& design, int scale, int tic) {
    return double{static_cast<float>(double{DeflectionOf(design, scale, tic)} * 100)};
}

} // namespace

int LastTicOf(const DesignRecord& design, int scale) {
    return IsSpecial(design, scale) ? design.SpecialNrOfTicmarks[scale]
                                    : design.NrOfTicmarks[scale];
}

std::string& TicFlagOf(DesignRecord& design, int scale, int tic) {
    return TicFlagIn(design, scale, tic);
}

const std::string& TicFlagOf(const DesignRecord& design, int scale, int tic) {
    return TicFlagIn(design, scale, tic);
}

std::string& LabelFlagOf(DesignRecord& design, int scale, int tic) {
    return LabelFlagIn(design, scale, tic);
}

const std::string& LabelFlagOf(const DesignRecord& design, int scale, int tic) {
    return LabelFlagIn(design, scale, tic);
}

const std::string& LabelTextOf(const DesignRecord& design, int scale, int tic) {
    return IsSpecial(design, scale) ? design.TicLabelText[scale][tic]
                                    : design.StandardLabel[scale][tic];
}

float DeflectionOf(const DesignRecord& design, int scale, int tic) {
    return IsSpecial(design, scale) ? design.TicDeflection[scale][tic]
                                    : design.StandardDeflection[scale][tic];
}

void TicRows::Fill(const DesignRecord& design, const RowText& row) {
    count_ = 0;
    rows_.fill({});
    for (int scale = 1; scale <= design.NumberOfScales; ++scale) {
        const int last = LastTicOf(design, scale);
        for (int tic = 0; tic <= last; ++tic) {
            std::string text = row(design, scale, tic);
            if (++count_ > kMost && !Service.severalScales) {
                ThrowSubscriptOutOfRange();
            }
            rows_[count_] = std::move(text);
        }
    }
}

void StandBehindRows(DesignRecord& design) {
    const int scales = std::max<int>(design.NumberOfScales, 0);
    design.CurrentScale = static_cast<std::int16_t>(scales + 1);
    if (scales > 0) {
        design.TicLoop = static_cast<float>(std::max(LastTicOf(design, scales) + 1, 0));
    }
}

std::string SelectionRow(const DesignRecord& design, int scale, int tic) {
    std::string row;
    AddColumn(row, "Scale " + NumberText(scale));
    AddColumn(row, NumberText(tic));
    AddColumn(row, TicFlagOf(design, scale, tic));
    AddColumn(row, Trimmed(LabelTextOf(design, scale, tic)));
    AddColumn(row, LabelFlagOf(design, scale, tic));
    return row;
}

std::vector<TicPercent> TicPercents(const DesignRecord& design, int scale) {
    std::vector<TicPercent> tics;
    const int last = std::min(LastTicOf(design, scale), kLastTic);
    for (int tic = 0; tic <= last; ++tic) {
        tics.push_back({static_cast<float>(PercentOf(design, scale, tic)), {}});
    }
    std::vector<std::string> labels(tics.size());
    WalkLabels(design, scale, LabelFlags::Ignored, [&labels](const TicLabel& label) {
        labels.at(static_cast<std::size_t>(label.number)) = " (" + label.text + ")";
    });
    for (std::size_t tic = 0; tic < tics.size(); ++tic) {
        std::string percent;
        FormatByMagnitude(double{tics[tic].percent}, percent);
        tics[tic].text =
            "Tic " + NumberText(static_cast<int>(tic)) + labels[tic] + ": " + percent + " %";
    }
    return tics;
}

std::string InformationRow(const DesignRecord& design, int scale, int tic) {
    std::string row;
    AddColumn(row, "Scale " + NumberText(scale));
    AddColumn(row, NumberText(tic), kTicSaves);
    AddColumn(row, Trimmed(LabelTextOf(design, scale, tic)), kLabelSaves);
    std::string percent;
    FormatByMagnitude(PercentOf(design, scale, tic), percent);
    row += percent;
    PadToTen(row, 1); // whatever the percentage's length
    return row;
}

std::optional<SelectedTic> TicOfRow(const DesignRecord& design, int row) {
    int before = 0;
    for (int scale = 1; scale <= design.NumberOfScales; ++scale) {
        const int tics = LastTicOf(design, scale) + 1;
        const int tic = row - before - 1;
        if (tic >= 0 && tic < tics) {
            return SelectedTic{.scale = static_cast<std::int16_t>(scale),
                               .tic = static_cast<std::int16_t>(tic),
                               .ticFlag = TicFlagOf(design, scale, tic),
                               .label = std::string(Trimmed(LabelTextOf(design, scale, tic))),
                               .labelFlag = LabelFlagOf(design, scale, tic)};
        }
        before += std::max(tics, 0);
    }
    return {};
}

SelectedTic ReadSelectionRow(const std::string& row) {
    return {.scale = NumberIn(row, 6, 4),
            .tic = NumberIn(row, 10, 5),
            .ticFlag = Column(row, 18, 5),
            .label = Column(row, 29, 8),
            .labelFlag = Column(row, 38, 4)};
}

} // namespace vernacle
