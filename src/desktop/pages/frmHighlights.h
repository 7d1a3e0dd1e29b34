// The highlights page: ten coloured bands along the scale, by percent and millimetres.
#pragma once

#include "desktop/pages/drawingpage.h"
#include "desktop/pages/numberframe.h"

class QLabel;
class QLayout;
class QPushButton;

namespace vernacle {

class Field;
class TicChoice;

class frmHighlights : public TextKeepingPage {
    Q_OBJECT

public:
    frmHighlights();

protected:
    void Redraw() override;

private:
    void Build();
    void Load();
    void DisableEntries();

    void FillHighlightEntry();

    void OptionClicked(int highlight);
    void Changed(const Field& field);
    void txtLength10Changed();
    void cmdGetColorClicked();
    void cmdShowTicInfoClicked();

    void ShowTenfoldLength();

    // The choice of tics, where highlights are in service
    QLayout* MakeTicChoices();
    void OfferTics();
    void ShowChosenTics();

    NumberFrame numbers_;
    std::vector<Field*> fields_;
    Field* length_ = nullptr;
    QPushButton* cmdGetColor_ = nullptr;
    QLabel* lblTics_ = nullptr; // none out of service, as the next ones
    TicChoice* fromTic_ = nullptr;
    TicChoice* toTic_ = nullptr;
    std::int16_t CurrentHighlight_ = 0; // none is selected
};

} // namespace vernacle
