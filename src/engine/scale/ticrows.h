// The rows in which the list pages show every tic of every scale, and the way back from a row to
// its tic.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "engine/core/design.h"

namespace vernacle {

// The tables of a scale: those of a special one, whose colour is negative, are its own.
int LastTicOf(const DesignRecord& design, int scale);
std::string& TicFlagOf(DesignRecord& design, int scale, int tic);
const std::string& TicFlagOf(const DesignRecord& design, int scale, int tic);
std::string& LabelFlagOf(DesignRecord& design, int scale, int tic);
const std::string& LabelFlagOf(const DesignRecord& design, int scale, int tic);
const std::string& LabelTextOf(const DesignRecord& design, int scale, int tic);
// A fraction, before any movement correction.
float DeflectionOf(const DesignRecord& design, int scale, int tic);

// Rows 1 to the count; row 0 is empty. The bound is four scales of 361 rows; all six where several
// scales are in service.
class TicRows {
public:
    static constexpr int kMost = 1444;
    static constexpr int kMostOfAll = kScales * (kLastTic + 1);
    using RowText = std::function<std::string(const DesignRecord& design, int scale, int tic)>;

    // Takes the row of every tic of every scale. One row too many is a run-time error.
    void Fill(const DesignRecord& design, const RowText& row);

    int Count() const { return count_; }
    const std::string& operator[](int row) const { return rows_[row]; }

private:
    Table<std::string, kMostOfAll> rows_;
    int count_ = 0;
};

// Has CurrentScale and TicLoop stand behind the last scale and tic, where filling a list leaves
// them.
void StandBehindRows(DesignRecord& design);

// Scale, tic, tic flag, label and label flag, each ten characters wide and more if its text is.
std::string SelectionRow(const DesignRecord& design, int scale, int tic);

// Scale, tic, label and deflection in percent.
std::string InformationRow(const DesignRecord& design, int scale, int tic);

// A tic as a choice: "Tic 12 (3): 24 %", where its label is 3.
struct TicPercent {
    float percent = 0; // of the full deflection, before any movement correction
    std::string text;
};

// All tics of a scale whose tables are computed, in their order.
std::vector<TicPercent> TicPercents(const DesignRecord& design, int scale);

// What stands at a selection row's fixed places, whatever the lengths of its texts.
struct SelectedTic {
    std::int16_t scale = 0;
    std::int16_t tic = 0;
    std::string ticFlag;
    std::string label; // its first six characters
    std::string labelFlag;
};

SelectedTic ReadSelectionRow(const std::string& row);

// The same of a row by its number, from 1, as the design has it; none of a number without a row.
std::optional<SelectedTic> TicOfRow(const DesignRecord& design, int row);

} // namespace vernacle
