// The highlights page: ten coloured bands along the scale, by percent and millimetres.
#pragma once

#include "desktop/pages/drawingpage.h"
#include "desktop/pages/numberframe.h"

class QPushButton;

namespace vernacle {

class Field;

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

    NumberFrame numbers_;
    std::vector<Field*> fields_;
    Field* length_ = nullptr;
    QPushButton* cmdGetColor_ = nullptr;
    std::int16_t CurrentHighlight_ = 0; // none is selected
};

} // namespace vernacle
