// The setup of a scale that the user types tic by tic.
#pragma once

#include "desktop/setups/setuppage.h"
#include "engine/setups/special.h"

namespace vernacle {

class RowTable;

class frmSpecialScale : public SetupPage {
    Q_OBJECT

public:
    frmSpecialScale();

protected:
    void ReadBack() override;
    void ShowStored() override;
    void Compute() override { ApplySpecialTable(); }
    void CheckEntries(SetupMoment moment) override;

private:
    void Build();
    RowTable* MakeTable();

    void ApplySpecialTable();

    SpecialRow RowAt(int row) const;
    void ShowRows();

    float ticmarks_ = 0; // as last read
};

} // namespace vernacle
