// The setup of a scale that the user types tic by tic.
#pragma once

#include <array>
#include <optional>

#include "desktop/setups/rowtable.h"
#include "desktop/setups/setuppage.h"
#include "engine/setups/special.h"

namespace vernacle {

class frmSpecialScale : public SetupPage {
    Q_OBJECT

public:
    frmSpecialScale();

protected:
    void ReadBack() override;
    void ShowStored() override;
    void Compute() override { ApplySpecialTable(); }
    bool CheckEntries(SetupMoment moment) override;

private:
    // What stands in a row of the table.
    struct TicRow {
        QLabel* tic = nullptr;
        EntryBox* deflection = nullptr;
        EntryBox* label = nullptr;
        RowChoice major = {};

        SpecialRow Contents() const;
    };

    // A row as it was read back, and the tic that it showed.
    struct ReadRow {
        SpecialRow shown;
        KeptTic tic;
    };

    void Build();
    RowTable* MakeTable();
    static TicRow MakeRow(int row);

    void ApplySpecialTable();
    void CheckRow(int tic, SetupMoment moment);
    SpecialRow Entered(int tic);
    std::array<SpecialRow, kSpecialRows> EnteredRows();

    void ShowRows();
    TicRow& Row(int tic) { return rows_.at(static_cast<std::size_t>(tic)); }

    float ticmarks_ = 0; // as last read
    Field* ticmarksField_ = nullptr;
    std::array<TicRow, kSpecialRows> rows_;
    std::array<std::optional<ReadRow>, kSpecialRows> read_; // where tics are given back exactly
};

} // namespace vernacle
