// The list of all tics, in which single tics and labels are switched off and on.
#pragma once

#include "desktop/kit/form.h"

class QLabel;
class QLayout;

namespace vernacle {

class TicList;

class frmSelectTics : public ModalForm {
    Q_OBJECT

public:
    frmSelectTics();

private:
    struct Option;
    static const Option kOptions[];

    void Build();
    QLayout* MakeDetails();
    QLayout* MakeFlagLine(const char* label, const char* frame);
    QWidget* MakeFlagFrame(const char* name);

    void FillTicList();

    void RowChosen(int index);
    void OptionClicked(const Option& option);
    void cmdAcceptClicked();
    void cmdExitClicked();

    void ShowLabelOptions(bool shown);
    void SetDetailsVisible(bool visible);
    void Select(const char* option);
    QWidget& Control(const char* name) const;
    QLabel& Label(const char* name) const;

    TicList* lstTicsData_ = nullptr;
};

} // namespace vernacle
