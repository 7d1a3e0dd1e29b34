// The setup of a decibel or VU scale: the value at full scale, the number of tics, and the user's
// choices for each.
#pragma once

#include <array>
#include <vector>

#include "desktop/setups/rowtable.h"
#include "desktop/setups/setuppage.h"
#include "engine/setups/decibel.h"

namespace vernacle {

class frmSetupdB : public SetupPage {
    Q_OBJECT

public:
    frmSetupdB();

protected:
    void ReadBack() override;
    void Compute() override { ComputeDecibelTics(); }

private:
    struct Entry;
    static const Entry kEntries[];

    struct EntryField {
        const Entry& entry;
        Field& field;
    };

    // What stands in a row of the table.
    struct TicRow {
        QLabel* tic = nullptr;
        QLabel* deflection = nullptr;
        QLabel* value = nullptr;
        RowChoice labelled = {};
        RowChoice major = {};
        RowChoice printed = {};
    };

    struct Question;
    static const Question kQuestions[];

    void Build();
    QLayout* MakeEntries();
    QWidget* MakeQuestion(const Question& question);
    QLayout* MakeButtons();
    RowTable* MakeTable();
    static TicRow MakeRow(int row);

    void ComputeDecibelTics();

    void ReadEntries();
    void ShowEntries();
    void ShowRows();
    void ShowNumbers(int tic); // those of its row
    TicRow& Row(int tic) { return rows_.at(static_cast<std::size_t>(tic)); }

    DecibelEntries entries_;
    std::vector<EntryField> fields_;
    OptionButton* optUnlabelledAtBottomYes_ = nullptr;
    OptionButton* optY_ = nullptr;
    std::array<TicRow, kDecibelRows> rows_;
};

} // namespace vernacle
