#include "desktop/pages/frmPlate.h"

#include <algorithm>

#include <QGridLayout>
#include <QHBoxLayout>

#include "desktop/kit/field.h"
#include "desktop/kit/formkit.h"
#include "desktop/kit/picturebox.h"
#include "desktop/navigation/navigator.h"
#include "desktop/system/dialogs.h"
#include "engine/base/hostservices.h"
#include "engine/base/numbertext.h"
#include "engine/base/text.h"
#include "engine/core/design.h"
#include "engine/core/repair.h"
#include "engine/core/service.h"
#include "engine/illustrations/schematic.h"
#include "surfaces/colours.h"

namespace vernacle {

namespace {

using D = DesignRecord;

constexpr int kFontNameWidth = 16; // characters
constexpr QSize kSwatchSize(48, 22);
constexpr QColor kWarning(0xFF, 0xEE, 0xEE);

constexpr PageTraits kPlateTraits = {
    .form = "frmPlate", .title = "Plate design", .helpTopic = "vplate.htm"};

constexpr WiderLimits kTrueWidths = {&ServiceState::truePlate, {0.5, 20}, {0.5, 20, 0.5}};

// The measures, in two columns. What is typed shows the same illustration as the H button.
// clang-format off
constexpr FieldRow kPlateMeasures[] = {
    {.box = "txtPlateWidth",          .caption = "Plate width, mm",           .place = At<&D::PlateWidth>,          .limits = {20, 180},            .unit = "mm",           .arrows = {"UpDownPlateWidth", {20, 180}},              .topic = 1},
    {.box = "txtPlateHeight",         .caption = "Plate height, mm",          .place = At<&D::PlateHeight>,         .limits = {10, 180},            .unit = "mm",           .arrows = {"UpDownPlateHeight", {10, 180}},             .topic = 2},
    {.box = "txtBottomToBearing",     .caption = "Bottom to bearing, mm",     .place = At<&D::BottomToBearing>,     .limits = {-100000, 100000},    .unit = "mm",           .arrows = {"UpDownBottomToBearing", {-100000, 100000}}, .topic = 3},
    {.box = "txtLeftToBearing",       .caption = "Left to bearing, mm",       .place = At<&D::LeftToBearing>,       .limits = {0, 180},             .unit = "mm",           .arrows = {"UpDownLeftToBearing", {0, 180}},            .unset = "middle", .liftedBy = &ServiceState::styles},
    {.box = "txtBottomToHoles",       .caption = "Bottom to mounting, mm",    .place = At<&D::BottomToHoles>,       .limits = {-1000, 150},         .unit = "mm",           .arrows = {"UpDownBottomToHoles", {-1000, 150}},        .topic = 4},
    {.box = "txtHoleSeparation",      .caption = "Hole separation, mm",       .place = At<&D::HoleSeparation>,      .limits = {5, 180},             .unit = "mm",           .arrows = {"UpDownHoleSeparation", {5, 180}},           .topic = 5},
    {.box = "txtPointerDeflection",   .caption = "Pointer deflection, deg ",  .place = At<&D::PointerDeflection>,   .limits = {0.1, 360},           .unit = "degrees",      .arrows = {"UpDownPointerDeflection", {1, 360}},        .topic = 6},
    {.box = "txtActualVirtualOffset", .caption = "Actual/virtual offset, mm", .place = At<&D::ActualVirtualOffset>, .limits = {.highest = 1000000}, .unit = "mm",           .arrows = {"UpDownActualVirtualOffset", {0, 100000}},   .topic = 7},
    {.box = "txtMinorTicLength",      .caption = "Minor tic length, mm",      .place = At<&D::MinorTicLength>,      .limits = {0.5, 15},            .unit = "mm",           .arrows = {"UpDownMinorTicLength", {1, 15}},            .topic = 9},
    {.box = "txtMajorTicLength",      .caption = "Major tic length, mm",      .place = At<&D::MajorTicLength>,      .limits = {0.5, 15},            .unit = "mm",           .arrows = {"UpDownMajorTicLength", {1, 15}},            .topic = 10},
    {.box = "txtMinorTicWidth",       .caption = "Minor tic width, .1 mm",    .place = At<&D::MinorTicWidth>,       .limits = {1, 20},              .unit = "tenths of mm", .arrows = {"UpDownMinorTicWidth", {1, 20}},             .topic = 11, .wider = kTrueWidths},
    {.box = "txtMajorTicWidth",       .caption = "Major tic width, .1 mm",    .place = At<&D::MajorTicWidth>,       .limits = {1, 20},              .unit = "tenths of mm", .arrows = {"UpDownMajorTicWidth", {0, 10}},             .topic = 12, .wider = kTrueWidths},
    {.box = "txtFontSize",            .caption = "Font size",                 .place = At<&D::FontSize>,            .limits = {2, 20},              .unit = "points",       .arrows = {"UpDownFontSize", {2, 20}},                  .topic = 13},
    {.box = "txtLabelSpacing",        .caption = "Label-arc spacing, mm",     .place = At<&D::LabelSpacing>,        .limits = {-200, 200},          .unit = "mm",           .arrows = {"UpDownLabelSpacing", {-200, 200}},          .topic = 14},
    {.box = "txtArcWidth",            .caption = "Arc thickness, mm",         .place = At<&D::ArcWidth>,            .limits = {0.5, 20},            .unit = "tenths of mm", .arrows = {"UpDownArcWidth", {1, 20}},                  .topic = 25, .wider = kTrueWidths},
};
// clang-format on

bool IsOnPage(const FieldRow& row) {
    return !row.liftedBy || IsLifted(row.liftedBy);
}

// What the options need before they show the design.
constexpr Repair kSwitches[] = {
    {.place = At<&D::DrawArcs>, .when = When::Empty, .text = "Y"},
    {.place = At<&D::LabelRotation>, .when = When::Empty, .text = "H"},
    {.place = At<&D::PrintText>, .when = When::Empty, .text = "Y"},
    {.place = At<&D::DrawHighlights>, .when = When::Empty, .text = "Y"},
    {.place = At<&D::DrawGraphic>, .when = When::Empty, .text = "N"},
};

// A file's name behind its last folder.
QString ShortName(const std::string& path) {
    return QString::fromStdString(path.substr(path.rfind('\\') + 1));
}

} // namespace

frmPlate::frmPlate() : DesignPage(kPlateTraits) {
    Build();
    Load();
}

void frmPlate::Build() {
    auto* entries = new QVBoxLayout;
    entries->setSpacing(12);
    entries->addWidget(MakeHeading("lblHeading", QStringLiteral("Plate design")));
    entries->addLayout(MakeMeasures());
    entries->addLayout(MakeFrames());
    entries->addLayout(MakeTools());
    entries->addStretch();
    schematic_ = new PictureBox("picSchematic", SchematicArea(), UnitShape::Square);
    schematic_->setAccessibleName(QStringLiteral("Illustration of the measure"));
    auto* halves = new QHBoxLayout;
    halves->setSpacing(16);
    halves->addLayout(entries);
    halves->addWidget(schematic_, 1);
    Body().addLayout(halves, 1);
}

QLayout* frmPlate::MakeMeasures() {
    auto* columns = new QHBoxLayout;
    columns->setSpacing(20);
    const auto count = static_cast<int>(std::ranges::count_if(kPlateMeasures, IsOnPage));
    const int perColumn = (count + 1) / 2;
    QGridLayout* grid = nullptr;
    int place = 0;
    for (const FieldRow& row : kPlateMeasures) {
        if (!IsOnPage(row)) {
            continue;
        }
        if (place % perColumn == 0) {
            grid = new QGridLayout;
            grid->setSpacing(kEntrySpacing);
            grid->setColumnStretch(1, 1);
            columns->addLayout(grid);
            if (count % 2 != 0) { // the second is shorter
                columns->setAlignment(grid, Qt::AlignTop);
            }
        }
        auto* measure = new Field(row, *this);
        measure->AddTo(*grid, place++ % perColumn);
        connect(measure->box, &EntryBox::Changed, this, [this, measure] { Changed(*measure); });
        if (measure->help) {
            connect(measure->help, &QPushButton::clicked, this,
                    [this, measure] { Illustrate(*measure); });
        }
        measures_.push_back(measure);
    }
    return columns;
}

QLayout* frmPlate::MakeTools() {
    const auto add = [this](const char* name, const char* caption, void (frmPlate::*clicked)()) {
        QPushButton* button = MakeButton(name, QString::fromUtf8(caption));
        connect(button, &QPushButton::clicked, this, clicked);
        return button;
    };
    auto* grid = new QGridLayout;
    grid->setSpacing(kEntrySpacing);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    QPushButton* calibrate = add("cmdCalibrate", "Calibrate", &frmPlate::cmdCalibrateClicked);
    calibrate->setToolTip(QStringLiteral("Go to printer calibration routine"));
    QPushButton* linearity =
        add("cmdLinearity", "Movement linearity", &frmPlate::cmdLinearityClicked);
    QPushButton* font = add("cmdGetFont", "Get font", &frmPlate::cmdGetFontClicked);
    QPushButton* background =
        add("cmdGetBackgroundColor", "Background", &frmPlate::cmdGetBackgroundColorClicked);
    linearity->setEnabled(Service.curveInFile);
    font->setEnabled(Service.styles);
    background->setEnabled(Service.styles);
    lblShowFont_ = MakeLabel("lblShowFont", {});
    swatch_ = MakeLabel("lblShowBackground", {});
    swatch_->setFrameStyle(QFrame::Box | QFrame::Plain);
    swatch_->setAutoFillBackground(true);
    swatch_->setFixedSize(kSwatchSize);
    swatch_->setAccessibleName(QStringLiteral("Plate background colour"));
    grid->addWidget(calibrate, 0, 0);
    grid->addWidget(linearity, 0, 1);
    grid->addWidget(font, 1, 0);
    grid->addWidget(lblShowFont_, 1, 1);
    grid->addWidget(background, 2, 0);
    grid->addWidget(swatch_, 2, 1, Qt::AlignLeft);
    return grid;
}

void frmPlate::Load() {
    fraGraphic_->setToolTip(ShortName(Design.GraphicFileName));
    ShowFont();
    ShowBackground();
    ShowSound();
    WarnOfQuadrant();
    if (!Service.severalScales) {
        Design.NumberOfScales = 1;
    }
    NormalizeDesign(Design);
    FillMeasures();
    RepairFields(Design, kSwitches);
    ShowOptions();
    EnableBearing();
    schematic_->Surface().Clear();
}

void frmPlate::FillMeasures() {
    for (const Field* measure : measures_) {
        const FieldPointer place = measure->row.place.In(Design);
        const auto value = static_cast<float>(NumberIn(place));
        measure->box->Write(measure->IsUnset(place) ? std::string() : SignedNumber(value));
    }
}

void frmPlate::Changed(const Field& measure) {
    measure.Take(measure.row.place.In(Design));
    WarnOfQuadrant();
    Illustrate(measure);
}

void frmPlate::Illustrate(const Field& measure) {
    if (!measure.help) {
        return; // nothing illustrates it
    }
    Design.HelpTopic = measure.row.topic;
    RedrawSchematic();
}

// The bearing of other plates stands in the middle.
void frmPlate::EnableBearing() {
    for (const Field* measure : measures_) {
        if (measure->row.unset && Design.PlateStyle == kQuadrant) {
            measure->Enable();
        } else if (measure->row.unset) {
            measure->Disable();
        }
    }
}

// A quadrant plate needs 90 degrees and no offset; the colour says so without stopping the user.
void frmPlate::WarnOfQuadrant() {
    const bool quadrant = Design.PlateStyle == kQuadrant;
    const auto show = [&](FieldPlace place, bool doubtful) {
        FieldOf(measures_, place)
            .box->SetBackground(quadrant && doubtful ? kWarning : QColor(Qt::white));
    };
    show(At<&D::PointerDeflection>, Design.PointerDeflection != 90);
    show(At<&D::ActualVirtualOffset>, Design.ActualVirtualOffset != 0);
}

void frmPlate::RedrawSchematic() {
    DrawSchematic(schematic_->Surface(), Design.HelpTopic, kPlatePageLook);
}

void frmPlate::cmdCalibrateClicked() {
    ShowModal("frmCalibrate");
}

void frmPlate::cmdLinearityClicked() {
    ShowModal("frmCorrectionEntry");
}

void frmPlate::cmdRotateHelpClicked() {
    ShowModal("frmRotateIllustration");
}

void frmPlate::cmdStyleHelpClicked() {
    ShowModal("frmStyleHelp");
}

void frmPlate::cmdGetFontClicked() {
    Design.FontName = Trimmed(AskForFont(this, "Get font", std::string(Trimmed(Design.FontName))));
    if (Design.FontName.empty()) {
        Design.FontName = "Arial";
        Host.informationBox("No font was selected; Arial is being used");
    }
    ShowFont();
}

void frmPlate::ShowFont() {
    const QString name = QString::fromUtf8(Trimmed(Design.FontName));
    lblShowFont_->setText(name.rightJustified(kFontNameWidth));
}

void frmPlate::cmdGetBackgroundColorClicked() {
    const Colour start = Service.carefulFiles ? Design.PlateBackground : kWhite;
    Design.PlateBackground = AskForColour(this, "Get plate background color", start);
    if (Design.PlateBackground == 0) {
        Design.PlateBackground = 1; // black stays distinct from unset
    }
    ShowBackground();
}

void frmPlate::ShowBackground() {
    QPalette colours = swatch_->palette();
    colours.setColor(QPalette::Window, ToQColor(Design.PlateBackground));
    colours.setColor(QPalette::WindowText, Qt::black);
    swatch_->setPalette(colours);
}

} // namespace vernacle
