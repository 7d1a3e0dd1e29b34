// The text page: ten free texts with their places, sizes and colours.
#pragma once

#include "desktop/pages/drawingpage.h"
#include "desktop/pages/numberframe.h"

class QLabel;
class QPushButton;

namespace vernacle {

class Field;

class frmText : public TextKeepingPage {
    Q_OBJECT

public:
    frmText();

private:
    void Build();
    void Load();
    void DisableEntries();

    void FillTextEntry();
    void MeasureTextWidth(int entry);

    void OptionClicked(int entry);
    void txtTextChanged();
    void txtLeftToTextChanged();
    void txtBottomToTextChanged();
    void txtRelSizeChanged();
    void txtRelSizeUpDownChanged();
    void cmdCenterTextClicked();
    void cmdGetColorClicked();

    float DrawnWidthMm(int entry) const;

    NumberFrame numbers_;
    std::vector<Field*> fields_;
    Field* text_ = nullptr;
    Field* left_ = nullptr;
    Field* bottom_ = nullptr;
    Field* size_ = nullptr;
    QLabel* lblTextWidthmm_ = nullptr;
    QPushButton* cmdCenterText_ = nullptr;
    QPushButton* cmdGetColor_ = nullptr;
    std::int16_t CurrentTextEntry_ = 1;
    int textsAtLoad_ = 0;              // that are not empty
    Table<float, kTexts> TextWidthMm_; // as last computed
};

} // namespace vernacle
