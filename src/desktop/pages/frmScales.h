// The scales page: which scale is edited, its range, tics, labels, title and place, with the plate
// drawn anew at every change.
#pragma once

#include <vector>

#include "desktop/pages/drawingpage.h"
#include "desktop/pages/numberframe.h"
#include "engine/core/fieldplace.h"

class QBoxLayout;
class QGroupBox;
class QLayout;

namespace vernacle {

class Field;

class frmScales : public DrawingPage {
    Q_OBJECT

public:
    frmScales();

    // Illustrate an entry; no control leads there.
    void cmdBottomToTitleClicked();
    void cmdBottomToScaleCeilingClicked();

protected:
    void Redraw() override;

private:
    struct Button;
    static const Button kButtons[];

    // Building
    void Build();
    QLayout* MakeFields();
    QLayout* MakeFrames();
    OptionButton* MakeOption(const char* name, const char* caption, void (frmScales::*selected)(),
                             QBoxLayout& line);
    QLayout* MakeButtons();

    // Loading
    void Load();
    void ShowScaleOptions();
    Field& Of(FieldPlace place) const;
    void Fill(const Field& field);
    void FillPartner();
    void ShowPrintTics();
    void EnableStandardEntries();
    void GreyWhatDoesNotApply();

    // Handlers
    void Changed(const Field& field);
    void TakeExponent();
    void TakeExponentAboveZero();
    void txtRelFontSizeUpDownChanged();
    void ScaleClicked(int scale);
    void Option7Clicked();
    void Option8Clicked();
    void Option9Clicked();
    void Option10Clicked();
    void cmdGetColorClicked();
    void cmdRevertToStandardClicked();
    void cmddBsetupClicked();
    void cmdSelectTicsClicked();
    void cmdSelectTicsHelpClicked();
    void cmdLinearityExponentClicked();

    std::vector<Field*> fields_;
    Field* exponent_ = nullptr;
    Field* relativeSize_ = nullptr;
    NumberFrame scales_;
    QGroupBox* fraPrintTics_ = nullptr;
    QLabel* special_ = nullptr; // none where no scale is special
    OptionButton* Option7_ = nullptr;
    OptionButton* Option8_ = nullptr;
    OptionButton* Option9_ = nullptr;
    OptionButton* Option10_ = nullptr;
    float typedExponent_ = 0; // before its limits
};

} // namespace vernacle
