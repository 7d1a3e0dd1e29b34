#include "desktop/pages/frmCalibrate.h"

#include <algorithm>

#include <QFormLayout>
#include <QGridLayout>

#include "desktop/kit/field.h"
#include "desktop/kit/formkit.h"
#include "desktop/system/printers.h"
#include "engine/base/numbertext.h"
#include "engine/core/design.h"
#include "engine/output/calibrate.h"

namespace vernacle {

namespace {

// A measure as it is read from a ruler, with a decimal point or comma.
double Measured(const EntryBox& box) {
    std::string text = box.Text();
    std::replace(text.begin(), text.end(), ',', '.');
    return NumericValue(text);
}

// The sides that correct the factor.
FieldRow MeasureRow(const char* box, const char* caption, float factor) {
    return {.box = box, .caption = caption, .limits = MeasureLimits(factor), .unit = "mm"};
}

} // namespace

frmCalibrate::frmCalibrate()
    : ModalForm("frmCalibrate", QStringLiteral("Vernacle - Calibration routine")) {
    width_ = new Field(MeasureRow("txtActualWidth", "Width, mm", Design.CalibrationX), *this);
    height_ = new Field(MeasureRow("txtActualHeight", "Height, mm", Design.CalibrationY), *this);
    QPushButton* print = MakeButton("cmdPrint", QStringLiteral("Print test square"));
    QPushButton* back = MakeButton("cmdReturn", QStringLiteral("Return"));
    connect(print, &QPushButton::clicked, this, &frmCalibrate::cmdPrintClicked);
    connect(back, &QPushButton::clicked, this, &frmCalibrate::cmdReturnClicked);

    auto* grid = new QGridLayout(this);
    grid->setSpacing(12);
    grid->addWidget(MakeHeading("lblHeading", QStringLiteral("Printer/Program calibration")), 0, 0,
                    1, 2);
    AddStep(1, print, *grid);
    AddStep(2,
            MakeLabel("lblMeasure", QStringLiteral("Now measure the width and height of the "
                                                   "printed box, in millimeters.")),
            *grid);
    AddStep(3, MakeMeasures(), *grid);
    AddStep(4, back, *grid);
    nextSteps_.removeOne(back); // the way back is always there
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(grid->rowCount(), 1);
    setMinimumSize(sizeHint()); // with all steps
    for (QWidget* step : nextSteps_) {
        step->hide();
    }
}

void frmCalibrate::AddStep(int number, QWidget* content, QGridLayout& grid) {
    QLabel* label = MakeLabel(("lblStep" + std::to_string(number)).c_str(),
                              QStringLiteral("Step %1").arg(number));
    grid.addWidget(label, number, 0, Qt::AlignTop);
    grid.addWidget(content, number, 1, Qt::AlignLeft);
    if (number > 1) {
        nextSteps_ << label << content;
    }
}

QWidget* frmCalibrate::MakeMeasures() {
    auto* measures = new QWidget;
    measures->setObjectName(QStringLiteral("fraMeasures"));
    auto* form = new QFormLayout(measures);
    form->setContentsMargins({});
    form->addRow(MakeLabel("lblEnter", QStringLiteral("Enter the actual width and height into the "
                                                      "boxes below:")));
    form->addRow(width_->label, width_->box);
    form->addRow(height_->label, height_->box);
    return measures;
}

void frmCalibrate::cmdPrintClicked() {
    AskForPrinterAndPrint(
        this,
        [this](PrinterSurface& printer) {
            if (PrintTestSquare(Design, printer)) {
                ShowNextSteps();
            }
        },
        QStringLiteral("Calibration square"));
}

void frmCalibrate::ShowNextSteps() {
    for (QWidget* step : nextSteps_) {
        step->show();
    }
    width_->box->setFocus();
}

void frmCalibrate::cmdReturnClicked() {
    Recalibrate(Design.CalibrationX, Measured(*width_->box));
    Recalibrate(Design.CalibrationY, Measured(*height_->box));
    WriteCalibrate(Design);
    accept();
}

} // namespace vernacle
