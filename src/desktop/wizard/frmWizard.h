// The wizard's first page: eighteen values, one after the other, each with a prompt and a picture
// of what it means.
#pragma once

#include <vector>

#include "desktop/kit/form.h"

class QGridLayout;
class QLabel;
class QPushButton;

namespace vernacle {

class EntryBox;
class Field;
class PictureBox;

class frmWizard : public Page {
    Q_OBJECT

public:
    frmWizard();

protected:
    void CloseBoxClicked() override;

private:
    // What stands in the row of a step.
    struct StepRow {
        Field* field = nullptr;
        QPushButton* enter = nullptr;
    };

    void Build();
    void AddStep(QGridLayout& grid, int step);

    void ShowPrompt(); // for Design.HelpTopic
    void EnterClicked(int step);
    void cmdAcceptClicked();
    void cmdExitClicked();

    void ShowStep(int step);
    const StepRow& Row(int step) const { return rows_.at(static_cast<std::size_t>(step)); }
    EntryBox& BoxOf(int step) const;

    std::vector<StepRow> rows_; // in the order of the steps
    PictureBox* schematic_ = nullptr;
    QLabel* Label1_ = nullptr; // the prompt
    QLabel* Label2_ = nullptr; // what the last step tells
};

} // namespace vernacle
