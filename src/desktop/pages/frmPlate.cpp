#include "desktop/pages/frmPlate.h"

#include <QGridLayout>
#include <QHBoxLayout>

#include "desktop/kit/field.h"
#include "desktop/kit/formkit.h"
#include "desktop/kit/optionbutton.h"
#include "desktop/kit/picturebox.h"
#include "desktop/navigation/navigator.h"
#include "desktop/system/dialogs.h"
#include "engine/base/hostservices.h"
#include "engine/base/numbertext.h"
#include "engine/base/text.h"
#include "engine/core/design.h"
#include "engine/illustrations/schematic.h"
#include "surfaces/colours.h"

namespace vernacle {

namespace {

using D = DesignRecord;

constexpr int kMeasuresPerColumn = 7;
constexpr int kFontNameWidth = 16; // characters
constexpr std::int16_t kQuadrant = 1;
constexpr QSize kSwatchSize(48, 22);
constexpr QColor kWarning(0xFF, 0xEE, 0xEE);

constexpr PageTraits kTraits = {
    .form = "frmPlate", .title = "Plate design", .helpTopic = "vplate.htm"};

// The measures. Each has an illustration, which its H button shows and what is typed too.
// clang-format off
constexpr FieldRow kMeasures[] = {
    {.box = "txtPlateWidth",          .caption = "Plate width, mm",           .place = At<&D::PlateWidth>,          .limits = {20, 180},            .unit = "mm",           .arrows = {"UpDownPlateWidth", {20, 180}},              .topic = 1},
    {.box = "txtPlateHeight",         .caption = "Plate height, mm",          .place = At<&D::PlateHeight>,         .limits = {10, 180},            .unit = "mm",           .arrows = {"UpDownPlateHeight", {10, 180}},             .topic = 2},
    {.box = "txtBottomToBearing",     .caption = "Bottom to bearing, mm",     .place = At<&D::BottomToBearing>,     .limits = {-100000, 100000},    .unit = "mm",           .arrows = {"UpDownBottomToBearing", {-100000, 100000}}, .topic = 3},
    {.box = "txtBottomToHoles",       .caption = "Bottom to mounting, mm",    .place = At<&D::BottomToHoles>,       .limits = {-1000, 150},         .unit = "mm",           .arrows = {"UpDownBottomToHoles", {-1000, 150}},        .topic = 4},
    {.box = "txtHoleSeparation",      .caption = "Hole separation, mm",       .place = At<&D::HoleSeparation>,      .limits = {5, 180},             .unit = "mm",           .arrows = {"UpDownHoleSeparation", {5, 180}},           .topic = 5},
    {.box = "txtPointerDeflection",   .caption = "Pointer deflection, deg ",  .place = At<&D::PointerDeflection>,   .limits = {0.1, 360},           .unit = "degrees",      .arrows = {"UpDownPointerDeflection", {1, 360}},        .topic = 6},
    {.box = "txtActualVirtualOffset", .caption = "Actual/virtual offset, mm", .place = At<&D::ActualVirtualOffset>, .limits = {.highest = 1000000}, .unit = "mm",           .arrows = {"UpDownActualVirtualOffset", {0, 100000}},   .topic = 7},
    {.box = "txtMinorTicLength",      .caption = "Minor tic length, mm",      .place = At<&D::MinorTicLength>,      .limits = {0.5, 15},            .unit = "mm",           .arrows = {"UpDownMinorTicLength", {1, 15}},            .topic = 9},
    {.box = "txtMajorTicLength",      .caption = "Major tic length, mm",      .place = At<&D::MajorTicLength>,      .limits = {0.5, 15},            .unit = "mm",           .arrows = {"UpDownMajorTicLength", {1, 15}},            .topic = 10},
    {.box = "txtMinorTicWidth",       .caption = "Minor tic width, .1 mm",    .place = At<&D::MinorTicWidth>,       .limits = {1, 20},              .unit = "tenths of mm", .arrows = {"UpDownMinorTicWidth", {1, 20}},             .topic = 11},
    {.box = "txtMajorTicWidth",       .caption = "Major tic width, .1 mm",    .place = At<&D::MajorTicWidth>,       .limits = {1, 20},              .unit = "tenths of mm", .arrows = {"UpDownMajorTicWidth", {0, 10}},             .topic = 12},
    {.box = "txtFontSize",            .caption = "Font size",                 .place = At<&D::FontSize>,            .limits = {2, 20},              .unit = "points",       .arrows = {"UpDownFontSize", {2, 20}},                  .topic = 13},
    {.box = "txtLabelSpacing",        .caption = "Label-arc spacing, mm",     .place = At<&D::LabelSpacing>,        .limits = {-200, 200},          .unit = "mm",           .arrows = {"UpDownLabelSpacing", {-200, 200}},          .topic = 14},
    {.box = "txtArcWidth",            .caption = "Arc thickness, mm",         .place = At<&D::ArcWidth>,            .limits = {0.5, 20},            .unit = "tenths of mm", .arrows = {"UpDownArcWidth", {1, 20}},                  .topic = 25},
};
// clang-format on

enum class Group { Sound, Graphic, Arcs, LabelRotation, Style, Number, Plate, Labels };

} // namespace

// An option of a group: what selecting it does, and whether the design stands so.
struct frmPlate::Option {
    Group group;
    const char* name;
    const char* caption;
    void (*select)(frmPlate& page);
    bool (*holds)();
    OptionButton* frmPlate::*kept = nullptr; // where the page holds it
};

namespace {

void TakeScales(std::int16_t count) {
    Design.NumberOfScales = count;
    Design.ActiveScale = 1;
}

} // namespace

// In the order in which a load sets them: the graphic's options clear those of the labels, which
// come last to show the field.
// clang-format off
const frmPlate::Option frmPlate::kOptions[] = {
    {Group::Sound,         "optSoundOff",                "Off",         [](frmPlate&) { Design.MessageLevel = 0; },                                  [] { return Design.MessageLevel == 0; }},
    {Group::Sound,         "optSoundWarn",               "Warn",        [](frmPlate&) { Design.MessageLevel = 1; },                                  [] { return Design.MessageLevel == 1; }},
    {Group::Sound,         "optSoundAll",                "All",         [](frmPlate&) { Design.MessageLevel = 2; },                                  [] { return Design.MessageLevel == 2; }},
    {Group::Graphic,       "optGraphicYes",              "Yes",         [](frmPlate& page) { page.optGraphicClicked("Y", *page.optPrintTextNo_); },  [] { return Design.DrawGraphic == "Y"; }},
    {Group::Graphic,       "optGraphicNo",               "No",          [](frmPlate& page) { page.optGraphicClicked("N", *page.optPrintTextYes_); }, [] { return Design.DrawGraphic == "N"; }},
    {Group::Arcs,          "optArcsYes",                 "Yes",         [](frmPlate&) { Design.DrawArcs = "Y"; },                                    [] { return Design.DrawArcs == "Y"; }},
    {Group::Arcs,          "optArcsNo",                  "No",          [](frmPlate&) { Design.DrawArcs = "N"; },                                    [] { return Design.DrawArcs == "N"; }},
    {Group::LabelRotation, "optLabelRotationHorizontal", "Horizontal",  [](frmPlate&) { Design.LabelRotation = "H"; },                               [] { return Design.LabelRotation == "H"; }},
    {Group::LabelRotation, "optLabelRotationBearing",    "Bearing",     [](frmPlate&) { Design.LabelRotation = "B"; },                               [] { return Design.LabelRotation == "B"; }},
    {Group::Style,         "optNormal",                  "Standard",    [](frmPlate& page) { page.optStyleClicked(0); },                             [] { return Design.PlateStyle == 0; }},
    {Group::Style,         "optDINquad",                 "Quadrant",    [](frmPlate& page) { page.optStyleClicked(kQuadrant); },                     [] { return Design.PlateStyle == kQuadrant; }},
    {Group::Number,        "Option1",                    "1",           [](frmPlate&) { TakeScales(1); },                                            [] { return Design.NumberOfScales == 1; }},
    {Group::Number,        "Option2",                    "2",           [](frmPlate&) { TakeScales(2); },                                            [] { return Design.NumberOfScales == 2; }},
    {Group::Number,        "Option3",                    "3",           [](frmPlate&) { TakeScales(3); },                                            [] { return Design.NumberOfScales == 3; }},
    {Group::Number,        "Option4",                    "4",           [](frmPlate&) { TakeScales(4); },                                            [] { return Design.NumberOfScales == 4; }},
    {Group::Number,        "Option5",                    "5",           [](frmPlate&) { TakeScales(5); },                                            [] { return Design.NumberOfScales == 5; }},
    {Group::Number,        "Option6",                    "6",           [](frmPlate&) { TakeScales(6); },                                            [] { return Design.NumberOfScales == 6; }},
    {Group::Plate,         "optCircular",                "Circular",    [](frmPlate&) { Design.PlateOutlineCircular = 1; },                          [] { return Design.PlateOutlineCircular == 1; }},
    {Group::Plate,         "optRectangular",             "Rectangular", [](frmPlate&) { Design.PlateOutlineCircular = 0; },                          [] { return Design.PlateOutlineCircular == 0; }},
    {Group::Labels,        "optPrintTextYes",            "Yes",         [](frmPlate&) { Design.PrintText = "Y"; },                                   [] { return Design.PrintText == "Y"; }, &frmPlate::optPrintTextYes_},
    {Group::Labels,        "optPrintTextNo",             "No",          [](frmPlate&) { Design.PrintText = "N"; },                                   [] { return Design.PrintText == "N"; }, &frmPlate::optPrintTextNo_},
};
// clang-format on

namespace {

enum class Frame { Shown, Hidden };

enum class Help { Enabled, Greyed };

} // namespace

// A frame of options, and where it stands on the page's grid. Its first options are enabled.
struct frmPlate::OptionFrame {
    Group group;
    const char* name;
    const char* title;
    int row;
    int column;
    int columns = 1;
    int enabledOptions = 2;
    Frame frame = Frame::Shown;
    const char* before = ""; // texts around the options
    const char* behind = "";
    const char* helpButton = nullptr; // with an illustration of the options
    void (frmPlate::*help)() = nullptr;
    Help helpState = Help::Enabled;
    QGroupBox* frmPlate::*kept = nullptr; // where the page holds it
};

// clang-format off
const frmPlate::OptionFrame frmPlate::kFrames[] = {
    {.group = Group::Arcs,          .name = "fraArcs",          .title = "Arcs",         .row = 0, .column = 0},
    {.group = Group::Labels,        .name = "fraLabels",        .title = "Labels",       .row = 0, .column = 1},
    {.group = Group::LabelRotation, .name = "fraLabelRotation", .title = "Label rotate", .row = 1, .column = 0, .helpButton = "cmdRotateHelp", .help = &frmPlate::cmdRotateHelpClicked},
    {.group = Group::Style,         .name = "fraStyle",         .title = "Style",        .row = 1, .column = 1, .enabledOptions = 0, .helpButton = "cmdStyleHelp", .help = &frmPlate::cmdStyleHelpClicked, .helpState = Help::Greyed},
    {.group = Group::Number,        .name = "fraNumber",        .title = "Number",       .row = 2, .column = 0, .columns = 2, .enabledOptions = 1, .before = "of", .behind = "scales"},
    {.group = Group::Plate,         .name = "fraPlate",         .title = "Plate",        .row = 3, .column = 0, .frame = Frame::Hidden},
    {.group = Group::Graphic,       .name = "fraGraphic",       .title = "Graphic",      .row = 3, .column = 1, .frame = Frame::Hidden, .kept = &frmPlate::fraGraphic_},
    {.group = Group::Sound,         .name = "fraSound",         .title = "Sound",        .row = 4, .column = 0, .frame = Frame::Hidden},
};
// clang-format on

namespace {

// A file's name behind its last folder.
QString ShortName(const std::string& path) {
    return QString::fromStdString(path.substr(path.rfind('\\') + 1));
}

void SetIfEmpty(std::string& field, const char* value) {
    if (field.empty()) {
        field = value;
    }
}

} // namespace

frmPlate::frmPlate() : DesignPage(kTraits) {
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
    QGridLayout* grid = nullptr;
    int place = 0;
    for (const FieldRow& row : kMeasures) {
        if (place % kMeasuresPerColumn == 0) {
            grid = new QGridLayout;
            grid->setSpacing(kEntrySpacing);
            grid->setColumnStretch(1, 1);
            columns->addLayout(grid);
        }
        auto* measure = new Field(row, *this);
        measure->AddTo(*grid, place++ % kMeasuresPerColumn);
        connect(measure->box, &EntryBox::Changed, this, [this, measure] { Changed(*measure); });
        connect(measure->help, &QPushButton::clicked, this,
                [this, measure] { Illustrate(*measure); });
        measures_.push_back(measure);
    }
    return columns;
}

QLayout* frmPlate::MakeFrames() {
    auto* grid = new QGridLayout;
    grid->setSpacing(kEntrySpacing);
    for (const OptionFrame& frame : kFrames) {
        grid->addWidget(MakeOptionFrame(frame), frame.row, frame.column, 1, frame.columns);
    }
    return grid;
}

QGroupBox* frmPlate::MakeOptionFrame(const OptionFrame& frame) {
    QGroupBox* box = MakeFrame(frame.name, QString::fromUtf8(frame.title));
    auto* line = new QHBoxLayout(box);
    if (*frame.before != '\0') {
        line->addWidget(MakeLabel("lblNumberBefore", QString::fromUtf8(frame.before)));
    }
    int place = 0;
    for (const Option& option : kOptions) {
        if (option.group == frame.group) {
            OptionButton* button = MakeOption(option);
            button->setEnabled(place++ < frame.enabledOptions);
            line->addWidget(button);
        }
    }
    if (*frame.behind != '\0') {
        line->addWidget(MakeLabel("lblNumberBehind", QString::fromUtf8(frame.behind)));
    }
    line->addStretch();
    if (frame.helpButton) {
        QPushButton* help = MakeHelpButton(frame.helpButton, box->title());
        help->setEnabled(frame.helpState == Help::Enabled);
        connect(help, &QPushButton::clicked, this, frame.help);
        line->addWidget(help);
    }
    if (frame.frame == Frame::Hidden) {
        box->hide();
    }
    if (frame.kept) {
        this->*frame.kept = box;
    }
    return box;
}

OptionButton* frmPlate::MakeOption(const Option& option) {
    auto* button = new OptionButton(option.name, QString::fromUtf8(option.caption));
    button->OnSelect([this, &option] { option.select(*this); });
    options_.emplace(&option, button);
    if (option.kept) {
        this->*option.kept = button;
    }
    return button;
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
    for (QPushButton* greyed : {linearity, font, background}) {
        greyed->setEnabled(false);
    }
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
    ShowOptions([](const Option& option) { return option.group == Group::Sound; });
    WarnOfQuadrant();
    Design.NumberOfScales = 1;
    NormalizeDesign(Design);
    FillMeasures();
    SetIfEmpty(Design.DrawArcs, "Y");
    SetIfEmpty(Design.LabelRotation, "H");
    SetIfEmpty(Design.PrintText, "Y");
    SetIfEmpty(Design.DrawHighlights, "Y");
    SetIfEmpty(Design.DrawGraphic, "N");
    ShowOptions([](const Option& option) { return option.group != Group::Sound; });
    schematic_->Surface().Clear();
}

void frmPlate::FillMeasures() {
    for (const Field* measure : measures_) {
        const auto value = static_cast<float>(NumberIn(measure->row.place.In(Design)));
        measure->box->Write(SignedNumber(value));
    }
}

void frmPlate::ShowOptions(bool (*wanted)(const Option& option)) {
    for (const Option& option : kOptions) {
        if (wanted(option) && option.holds()) {
            options_.at(&option)->Select();
        }
    }
}

void frmPlate::Changed(const Field& measure) {
    measure.Take(measure.row.place.In(Design));
    WarnOfQuadrant();
    Illustrate(measure);
}

void frmPlate::Illustrate(const Field& measure) {
    Design.HelpTopic = measure.row.topic;
    RedrawSchematic();
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

void frmPlate::optStyleClicked(std::int16_t style) {
    Design.PlateStyle = style;
    WarnOfQuadrant();
}

void frmPlate::optGraphicClicked(const char* yesNo, OptionButton& cleared) {
    Design.DrawGraphic = yesNo;
    cleared.Unselect();
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
    Design.PlateBackground = AskForColour(this, "Get plate background color", kWhite);
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
