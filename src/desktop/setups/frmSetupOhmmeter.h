// The setup of a series ohmmeter's scale: resistances are turned into deflections one by one and
// join a list.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "desktop/setups/setuppage.h"
#include "engine/setups/ohmmeter.h"

class QLabel;
class QPushButton;

namespace vernacle {

class RowTable;

class frmSetupOhmmeter : public SetupPage {
    Q_OBJECT

public:
    frmSetupOhmmeter();

protected:
    void ReadBack() override;
    void StartAnew() override;
    void ShowStored() override { LayOutResistanceRows(); }
    void Compute() override { StoreResistanceList(); }

private:
    void Build();
    QLayout* MakeEntries();
    RowTable* MakeTable();

    void ComputeResistanceDeflection();
    void LayOutResistanceRows();
    void StoreResistanceList();

    void txtEnterMidscaleChanged();
    void txtEnterResistanceChanged();
    void cmdComputeDeflectionClicked();
    void cmdAddToListClicked();
    void cmdIgnoreEntryClicked();
    void cmdPreviewClicked();
    void TicClicked(int row);

    void AddRow();
    void SetRow(int row, const ResistanceRow& contents);
    ResistanceRow RowAt(int row) const;
    void SetRowVisible(int row, bool visible);
    void SetEnabled(std::initializer_list<const char*> controls, bool enabled);
    QPushButton& TicOf(int row) const;
    QLabel& DeflectionOf(int row) const;
    EntryBox& LabelOf(int row) const;

    std::int16_t ListCount_ = -1; // number of the last row in use
    float EnteredMidscale_ = 0;
    float EnteredResistance_ = 0;
    std::string ResultingDeflectionText_;
    QLabel* lblResultingDeflection_ = nullptr;
};

} // namespace vernacle
