#include "desktop/wizard/frmWizardPart2.h"

#include <algorithm>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/kit/formkit.h"
#include "desktop/kit/picturebox.h"
#include "desktop/kit/updown.h"
#include "desktop/navigation/navigator.h"
#include "desktop/navigation/session.h"
#include "engine/base/hostservices.h"
#include "engine/base/numbertext.h"
#include "engine/base/runtimeerror.h"
#include "engine/core/design.h"
#include "engine/core/service.h"
#include "engine/render/drawing.h"
#include "engine/wizard/nudges.h"

namespace vernacle {

namespace {

constexpr LogicalArea kArea{2300, 700, 7400, 7900}; // the plate and its marks
constexpr int kNumberCharacters = 12;
constexpr int kArrowsHeight = 26; // pixels

// A name alone would be said in place of the number.
void SpeakNumber(QLabel& number, const QString& caption) {
    number.setAccessibleName(caption + number.text().trimmed());
}

} // namespace

frmWizardPart2::frmWizardPart2() : Page("frmWizardPart2") {
    setWindowTitle(QStringLiteral("Vernacle - Design Wizard Part 2"));
    Build();
    Load();
}

void frmWizardPart2::Build() {
    Body().addWidget(MakeHeading("lblHeading", QStringLiteral("Design Wizard - Part 2")));
    QLabel* text = MakeLabel("Label1", QStringLiteral("You now have a basic design and can modify "
                                                      "and adjust it and add on to it using all of "
                                                      "Vernacle's tools."));
    text->setWordWrap(true);
    Body().addWidget(text);
    auto* grid = new QGridLayout;
    grid->setSpacing(kEntrySpacing);
    for (const Nudge& nudge : Nudges()) {
        AddNudge(nudge, *grid, grid->rowCount());
    }
    QPushButton* accept = MakeButton("cmdAccept", QStringLiteral("Accept and preview"));
    connect(accept, &QPushButton::clicked, this, &frmWizardPart2::cmdAcceptClicked);
    auto* column = new QVBoxLayout;
    column->addLayout(grid);
    column->addWidget(accept);
    column->addStretch();
    plate_ = new PictureBox("picPlate", kArea, UnitShape::OfScreen);
    plate_->setAccessibleName(QStringLiteral("Drawing of the plate"));
    auto* halves = new QHBoxLayout;
    halves->setSpacing(16);
    halves->addLayout(column);
    halves->addWidget(plate_, 1);
    Body().addLayout(halves, 1);
}

void frmWizardPart2::AddNudge(const Nudge& nudge, QGridLayout& grid, int row) {
    const QString caption = QString::fromUtf8(nudge.caption);
    const std::string captionName = std::string(nudge.label) + "Caption";
    QLabel* number = MakeLabel(nudge.label, QString::fromStdString(NudgeValue(Design, nudge)));
    number->setMinimumWidth(kNumberCharacters * number->fontMetrics().averageCharWidth());
    SpeakNumber(*number, caption);
    auto* arrows = new UpDown(nudge.upDown, caption);
    arrows->setToolTip(QString::fromUtf8(nudge.tip));
    arrows->setMinimumHeight(kArrowsHeight); // a label is lower than a box
    arrows->TakeKeys();
    connect(arrows, &UpDown::Stepped, this,
            [this, &nudge, number](int by) { Step(nudge, *number, by); });
    grid.addWidget(MakeLabel(captionName.c_str(), caption), row, 0);
    grid.addWidget(number, row, 1);
    grid.addWidget(arrows, row, 2);
}

void frmWizardPart2::Load() {
    if (Design.FontSize <= 0) {
        Design.FontSize = 8;
    }
    Design.CurrentScale = 1;
    Design.LinearityExponent[1] = 1;
    Design.RelativeFontSize[1] = 1;
    Design.PlateStyle = 0;
    copies_ = {Design.FontSize, Design.LabelSpacing};
    Redraw();
}

// From the number that the label shows, inside the range of the arrows.
void frmWizardPart2::Step(const Nudge& nudge, QLabel& number, double by) {
    const double from = NumericValue(number.text().toStdString());
    const double to = std::clamp(from + by, nudge.stepsLowest, nudge.stepsHighest);
    number.setText(QString::fromStdString(PlainNumber(static_cast<float>(to))));
    const NudgeResult result = ApplyNudge(Design, nudge, number.text().toStdString());
    if (result == NudgeResult::Corrected) {
        number.setText(QString::fromStdString(NudgeValue(Design, nudge)));
    }
    SpeakNumber(number, QString::fromUtf8(nudge.caption));
    if (result == NudgeResult::Accepted) {
        TakeSize(nudge);
        Redraw();
    }
}

// What the drawing works with: a spacing that is not accepted does not reach it.
void frmWizardPart2::TakeSize(const Nudge& nudge) {
    const FieldPointer stepped = nudge.field.In(Design, 1);
    if (stepped == FieldPointer(&Design.LabelSpacing)) {
        copies_.labelSpacing = Design.LabelSpacing;
    } else if (stepped == FieldPointer(&Design.FontSize)) {
        copies_.fontSize = Design.FontSize;
    }
}

// What was overtyped on the page before need be no scale.
void frmWizardPart2::Redraw() {
    try {
        if (Service.truePlate) {
            plate_->ShowPage(TrueArea(Design));
        }
        DrawPage(Design, plate_->Surface(), WizardTraits(), copies_, Drawing);
    } catch (const RunTimeError&) {
        ReportFailure("The scale cannot be drawn: it has more ticmarks than a scale can hold, or a "
                      "plate without a height.");
    }
}

void frmWizardPart2::cmdAcceptClicked() {
    GoToPage("frmPreview");
}

void frmWizardPart2::CloseBoxClicked() {
    SaveSessionAndEnd();
}

} // namespace vernacle
