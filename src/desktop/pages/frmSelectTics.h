// The list of all tics, in which single tics and labels are switched off and on.
#pragma once

#include <string>

#include "desktop/kit/form.h"
#include "engine/core/design.h"

class QGroupBox;
class QLabel;
class QLayout;
class QPushButton;

namespace vernacle {

class OptionButton;
class TicList;
struct SelectedTic;

class frmSelectTics : public ModalForm {
    Q_OBJECT

public:
    frmSelectTics();

private:
    using FlagFinder = std::string&(DesignRecord& design, int scale, int tic);

    // A flag of a tic, as the page shows it.
    struct Flag {
        QGroupBox* frame = nullptr;
        OptionButton* yes = nullptr;
        OptionButton* no = nullptr;
    };

    void Build();
    QLayout* MakeDetails();
    static QLayout* FlagLine(QLabel& label, const Flag& flag);
    Flag MakeFlag(const char* frame, const char* yes, const char* no, FlagFinder* flag);

    void FillTicList();

    void RowChosen(int index);
    void ShowTic(const SelectedTic& chosen);
    void OptionClicked(FlagFinder& flag, const char* value);
    void cmdAcceptClicked();
    void cmdExitClicked();

    void ShowLabelOptions(bool shown);
    void SetDetailsVisible(bool visible);
    static void Select(OptionButton& option);

    TicList* lstTicsData_ = nullptr;
    QLabel* lblData1_ = nullptr;
    QLabel* lblData2_ = nullptr;
    QLabel* lblData3_ = nullptr;
    QLabel* lblData4_ = nullptr;
    QLabel* lblData5_ = nullptr;
    QLabel* Label3_ = nullptr;
    QLabel* Label4_ = nullptr;
    Flag tic_;
    Flag label_;
    QPushButton* cmdAccept_ = nullptr;
};

} // namespace vernacle
