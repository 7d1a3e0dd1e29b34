// The setup of a decibel or VU scale: the value at full scale, the number of tics, and the user's
// choices for each.
#pragma once

#include <optional>
#include <string>
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
        std::string shown; // for the number that is held, to the last bit
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

    struct Spread;
    static const Spread kSpreads[];

    void Build();
    QLayout* MakeEntries();
    QWidget* MakeQuestion(const Question& question);
    QWidget* MakeEvery();
    QLayout* MakeButtons();
    void GrowTo(int rows);
    static TicRow MakeRow(int row);

    void ComputeDecibelTics();
    bool Enter();
    void SpreadClicked(const Spread& spread);
    int EveryHowMany();

    void ReadFields(DecibelEntries& entries);
    void ReadChoices(DecibelEntries& entries);
    void ShowExactly();
    void ShowChoices();
    void ShowEntries();
    void ShowRows();
    void ShowRowsTo(int last);
    void ShowNumbers(int tic); // those of its row
    TicRow& Row(int tic) { return rows_.at(static_cast<std::size_t>(tic)); }

    DecibelEntries entries_;
    std::optional<DecibelReading> reading_; // where a scale is given back exactly
    std::vector<EntryField> fields_;
    Field* every_ = nullptr; // none where all are chosen one by one
    RowChoice bottom_;
    RowChoice plus_;
    RowTable* table_ = nullptr;
    std::vector<TicRow> rows_; // as many as were needed so far
};

} // namespace vernacle
