#include "desktop/pages/frmCalibrate.h"

#include <algorithm>

#include <QFormLayout>
#include <QGridLayout>

#include "desktop/kit/entrybox.h"
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

void AddMeasure(const char* label, EntryBox& box, QFormLayout& form) {
    QLabel* caption = MakeLabel(label, box.accessibleName());
    caption->setBuddy(&box);
    form.addRow(caption, &box);
}

} // namespace

frmCalibrate::frmCalibrate()
    : ModalForm("frmCalibrate", QStringLiteral("Vernacle - Calibration routine")) {
    txtActualWidth_ = new EntryBox("txtActualWidth", QStringLiteral("Width, mm"));
    txtActualHeight_ = new EntryBox("txtActualHeight", QStringLiteral("Height, mm"));
    txtActualWidth_->TellRange(RangeText(MeasureLimits(Design.CalibrationX), "mm"));
    txtActualHeight_->TellRange(RangeText(MeasureLimits(Design.CalibrationY), "mm"));
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
    AddMeasure("lblActualWidth", *txtActualWidth_, *form);
    AddMeasure("lblActualHeight", *txtActualHeight_, *form);
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
    txtActualWidth_->setFocus();
}

void frmCalibrate::cmdReturnClicked() {
    Recalibrate(Design.CalibrationX, Measured(*txtActualWidth_));
    Recalibrate(Design.CalibrationY, Measured(*txtActualHeight_));
    WriteCalibrate(Design);
    accept();
}

} // namespace vernacle
