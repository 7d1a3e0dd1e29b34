// The setup of a decibel or VU scale: the value at full scale, the number of tics, and the user's
// choices for each.
#pragma once

#include "desktop/setups/setuppage.h"
#include "engine/setups/decibel.h"

class QLabel;

namespace vernacle {

class RowTable;

class frmSetupdB : public SetupPage {
    Q_OBJECT

public:
    frmSetupdB();

protected:
    void ReadBack() override;
    void Compute() override { ComputeDecibelTics(); }

private:
    void Build();
    QLayout* MakeEntries();
    QLayout* MakeButtons();
    RowTable* MakeTable();

    void ComputeDecibelTics();

    void ReadEntries();
    void ShowNumbers();
    void ShowRows();
    void ShowRow(int row);

    void SetText(const char* label, int row, const std::string& text);
    void SelectIf(const char* option, const char* other, int row, bool selected);
    Answer AnswerOf(const std::string& option) const;

    DecibelEntries entries_;
};

} // namespace vernacle
