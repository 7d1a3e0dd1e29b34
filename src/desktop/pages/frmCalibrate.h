// The calibration page: prints a square of 100 mm, takes its measured sides, and keeps the factor
// of each axis.
#pragma once

#include "desktop/kit/form.h"

class QGridLayout;
class QLabel;

namespace vernacle {

class Field;

class frmCalibrate : public ModalForm {
    Q_OBJECT

public:
    frmCalibrate();

private:
    void AddStep(int number, QWidget* content, QGridLayout& grid);
    QWidget* MakeMeasures();

    void cmdPrintClicked();
    void cmdReturnClicked();

    void ShowNextSteps();

    Field* width_ = nullptr;
    Field* height_ = nullptr;
    QList<QWidget*> nextSteps_; // shown once the square is printed
};

} // namespace vernacle
