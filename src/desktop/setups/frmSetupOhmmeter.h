// The setup of a series ohmmeter's scale: resistances are turned into deflections one by one and
// join a list.
#pragma once

#include <array>
#include <string>

#include "desktop/setups/rowtable.h"
#include "desktop/setups/setuppage.h"
#include "engine/setups/ohmmeter.h"

namespace vernacle {

class frmSetupOhmmeter : public SetupPage {
    Q_OBJECT

public:
    frmSetupOhmmeter();

protected:
    void ReadBack() override;
    void StartAnew() override;
    void ShowStored() override { LayOutResistanceRows(); }
    void Compute() override { StoreResistanceList(); }
    void ShowSetupPreview() override;
    bool CheckEntries(SetupMoment moment) override;

private:
    static constexpr int kRows = 31; // the last is never shown: a removed row takes its contents

    // What stands in a row of the list.
    struct ListRow {
        QPushButton* tic = nullptr;
        QLabel* deflection = nullptr;
        EntryBox* label = nullptr;
        RowChoice ticClass = {};
        ResistanceRow written = {}; // what it shows until something is touched

        void Write(const ResistanceRow& contents);
        ResistanceRow Contents() const;
        TicClass Class() const;
    };

    void Build();
    QLayout* MakeEntries();
    RowTable* MakeTable();
    ListRow MakeRow(int row);

    void ComputeResistanceDeflection();
    void LayOutResistanceRows();
    void StoreResistanceList();

    void txtEnterMidscaleChanged();
    void txtEnterResistanceChanged();
    void cmdComputeDeflectionClicked();
    void cmdAddToListClicked();
    void cmdIgnoreEntryClicked();
    void TicClicked(int row);
    void ResistanceReturned();

    void AddRow();
    void ForgetResult();
    ListRow& Row(int row) { return rows_.at(static_cast<std::size_t>(row)); }

    std::int16_t ListCount_ = -1; // number of the last row in use
    float EnteredMidscale_ = 0;
    float EnteredResistance_ = 0;
    float ResultingDeflection_ = 0;
    std::string ResultingDeflectionText_;
    Field* midscale_ = nullptr;
    Field* resistance_ = nullptr;
    QPushButton* cmdComputeDeflection_ = nullptr;
    QLabel* lblResultingDeflection_ = nullptr;
    QPushButton* cmdAddToList_ = nullptr;
    QPushButton* cmdIgnoreEntry_ = nullptr;
    std::array<ListRow, kRows> rows_;
};

} // namespace vernacle
