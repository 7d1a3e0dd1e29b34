// The options of the plate page, in their frames.
#include <QGroupBox>
#include <QHBoxLayout>

#include "desktop/kit/formkit.h"
#include "desktop/kit/optionbutton.h"
#include "desktop/pages/frmPlate.h"
#include "engine/core/design.h"
#include "engine/core/service.h"
#include "engine/scale/newscale.h"

namespace vernacle {

enum class frmPlate::Group { Sound, Graphic, Arcs, LabelRotation, Style, Number, Plate, Labels };

// An option of a group: what selecting it does, and whether the design stands so.
struct frmPlate::Option {
    Group group = {};
    const char* name = nullptr;
    const char* caption = nullptr;
    void (*select)(frmPlate& page) = nullptr;
    bool (*holds)() = nullptr;
    OptionButton* frmPlate::*kept = nullptr; // where the page holds it
    LiftedBy liftedBy = nullptr;             // there is none without it in service
};

namespace {

void TakeScales(std::int16_t count) {
    if (Service.severalScales) {
        RaiseScales(Design, count);
    } else {
        Design.NumberOfScales = count;
    }
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
    {Group::LabelRotation, "optLabelRotationRadius",     "Radius",      [](frmPlate&) { Design.LabelRotation = "V"; },                               [] { return Design.LabelRotation == "V"; }, nullptr, &ServiceState::truePlate},
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

enum class frmPlate::Frame { Shown, Hidden };

enum class frmPlate::Help { Enabled, Greyed };

// A frame of options, and where it stands on the page's grid. Its first options are enabled.
struct frmPlate::OptionFrame {
    Group group = {};
    const char* name = nullptr;
    const char* title = nullptr;
    int row = 0;
    int column = 0;
    int columns = 1;
    int enabledOptions = 2;
    Frame frame = Frame::Shown;
    const char* before = ""; // texts around the options
    const char* behind = "";
    const char* helpButton = nullptr; // with an illustration of the options
    void (frmPlate::*help)() = nullptr;
    Help helpState = Help::Enabled;
    QGroupBox* frmPlate::*kept = nullptr; // where the page holds it
    LiftedBy liftedBy = nullptr;          // with it in service all is shown and enabled
};

// clang-format off
const frmPlate::OptionFrame frmPlate::kFrames[] = {
    {.group = Group::Arcs,          .name = "fraArcs",          .title = "Arcs",         .row = 0, .column = 0},
    {.group = Group::Labels,        .name = "fraLabels",        .title = "Labels",       .row = 0, .column = 1},
    {.group = Group::LabelRotation, .name = "fraLabelRotation", .title = "Label rotate", .row = 1, .column = 0, .helpButton = "cmdRotateHelp", .help = &frmPlate::cmdRotateHelpClicked},
    {.group = Group::Style,         .name = "fraStyle",         .title = "Style",        .row = 1, .column = 1, .enabledOptions = 0, .helpButton = "cmdStyleHelp", .help = &frmPlate::cmdStyleHelpClicked, .helpState = Help::Greyed, .liftedBy = &ServiceState::styles},
    {.group = Group::Number,        .name = "fraNumber",        .title = "Number",       .row = 2, .column = 0, .columns = 2, .enabledOptions = 1, .before = "of", .behind = "scales", .liftedBy = &ServiceState::severalScales},
    {.group = Group::Plate,         .name = "fraPlate",         .title = "Plate",        .row = 3, .column = 0, .frame = Frame::Hidden, .liftedBy = &ServiceState::styles},
    {.group = Group::Graphic,       .name = "fraGraphic",       .title = "Graphic",      .row = 3, .column = 1, .frame = Frame::Hidden, .kept = &frmPlate::fraGraphic_, .liftedBy = &ServiceState::reserveStages},
    {.group = Group::Sound,         .name = "fraSound",         .title = "Sound",        .row = 4, .column = 0, .frame = Frame::Hidden, .liftedBy = &ServiceState::reserveStages},
};
// clang-format on

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
    const bool isLifted = IsLifted(frame.liftedBy);
    int place = 0;
    for (const Option& option : kOptions) {
        if (option.group == frame.group && (!option.liftedBy || IsLifted(option.liftedBy))) {
            OptionButton* button = MakeOption(option);
            button->setEnabled(place++ < frame.enabledOptions || isLifted || option.liftedBy);
            line->addWidget(button);
        }
    }
    if (*frame.behind != '\0') {
        line->addWidget(MakeLabel("lblNumberBehind", QString::fromUtf8(frame.behind)));
    }
    line->addStretch();
    if (frame.helpButton) {
        QPushButton* help = MakeHelpButton(frame.helpButton, box->title());
        help->setEnabled(frame.helpState == Help::Enabled || isLifted);
        connect(help, &QPushButton::clicked, this, frame.help);
        line->addWidget(help);
    }
    if (frame.frame == Frame::Hidden && !isLifted) {
        box->hide();
    }
    if (frame.kept) {
        this->*frame.kept = box;
    }
    return box;
}

OptionButton* frmPlate::MakeOption(const Option& option) {
    auto* button = new OptionButton(option.name, QString::fromUtf8(option.caption));
    connect(button, &OptionButton::Selected, this, [this, &option] { option.select(*this); });
    options_.emplace(&option, button);
    if (option.kept) {
        this->*option.kept = button;
    }
    return button;
}

void frmPlate::ShowSound() {
    for (const Option& option : kOptions) {
        if (option.group == Group::Sound && option.holds()) {
            options_.at(&option)->Select();
        }
    }
}

void frmPlate::ShowOptions() {
    for (const Option& option : kOptions) {
        const auto made = options_.find(&option);
        if (made != options_.end() && option.group != Group::Sound && option.holds()) {
            made->second->Select();
        }
    }
}

void frmPlate::optStyleClicked(std::int16_t style) {
    Design.PlateStyle = style;
    WarnOfQuadrant();
    EnableBearing();
}

void frmPlate::optGraphicClicked(const char* yesNo, OptionButton& cleared) {
    Design.DrawGraphic = yesNo;
    if (!Service.reserveStages) {
        cleared.Unselect();
    }
}

} // namespace vernacle
