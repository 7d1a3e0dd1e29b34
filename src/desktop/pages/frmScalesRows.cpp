// The rows of which the scales page is made.
#include <QGridLayout>
#include <QHBoxLayout>

#include "desktop/kit/field.h"
#include "desktop/kit/formkit.h"
#include "desktop/kit/optionbutton.h"
#include "desktop/pages/frmScales.h"
#include "engine/core/design.h"
#include "engine/core/service.h"

namespace vernacle {

namespace {

using D = DesignRecord;

constexpr NumberFrameTraits kScalesNumbers = {.frame = "fraScaleNumber",
                                              .label = "lblScaleNumber",
                                              .labelText = "Scale #:",
                                              .spoken = "Scale #",
                                              .options = kScales,
                                              .tips = kScales};

// clang-format off
constexpr FieldRow kScalesFields[] = {
    {.box = "txtScaleLeftEnd",          .caption = "Scale left end (units):",   .place = At<&D::ScaleLeftEnd>,         .text = "0"},
    {.box = "txtScaleLength",           .caption = "Scale length (units):",     .place = At<&D::ScaleLengthUnits>,     .text = "100"},
    {.box = "txtBottomToScaleCeiling",  .caption = "Bottom to scale ceiling:",  .place = At<&D::BottomToScaleCeiling>, .limits = {-200, 200}, .unit = "mm", .arrows = {"UpDownBottomToScaleCeiling", {0, 180}}, .text = "50"},
    {.box = "txtBottomToTitle",         .caption = "Bottom to title:",          .place = At<&D::BottomToTitle>,        .limits = {-200, 200}, .unit = "mm", .arrows = {"UpDownBottomToTitle", {0, 180}}, .text = "25"},
    {.box = "txtNumberOfTics",          .caption = "Number of tics",            .place = At<&D::NrOfTicmarks>,         .limits = {1, 360}, .unit = "tics", .arrows = {"UpDown3", {0, 360}}, .text = "50"},
    {.box = "txtMajorTicsEveryHowMany", .caption = "Major tics every how many", .place = At<&D::MajorEveryHowMany>,    .limits = {1, 360}, .unit = "tics", .arrows = {"UpDown4", {1, 50}}, .text = "5"},
    {.box = "txtLabelsEveryHowMany",    .caption = "Labels every how many",     .place = At<&D::LabelsEveryHowMany>,   .limits = {1, 360}, .unit = "tics", .arrows = {"UpDown5", {1, 50}}, .text = "10"},
    {.box = "txtLinearityExponent",     .caption = "Linearity exponent",        .place = At<&D::LinearityExponent>,    .limits = {-4, 4}, .topic = 28, .topicTip = "Show linearity graphic", .text = "1", .wider = {&ServiceState::exponent, {.lowest = 0, .highest = 4, .lowestIsOpen = true}}},
    {.box = "txtRelFontsize",           .caption = "Relative fontsize:",        .place = At<&D::RelativeFontSize>,     .limits = {0.5, 1.5}, .unit = "times the font size", .arrows = {"UpDown6", {5, 15}, "txtRelFontSizeUpDown"}, .text = "1", .showing = Showing::Held},
    {.box = "txtOffset",                .caption = "Actual/virtual offset:",    .place = At<&D::ActualVirtualOffset>,  .limits = {0, 1000}, .unit = "mm", .arrows = {"UpDown7", {0, 100000}}},
    {.box = "txtScaleTitle",            .caption = "Scale title:",              .place = At<&D::ScaleTitle>,           .reading = Reading::Text, .longest = 60},
};
// clang-format on

// The entries that the illustrated help shows; the everyday page leads to none of them.
struct IllustratedEntry {
    FieldPlace place;
    std::int16_t topic;
};

constexpr IllustratedEntry kIllustrated[] = {
    {At<&D::BottomToScaleCeiling>, 24},
    {At<&D::BottomToTitle>, 23},
    {At<&D::RelativeFontSize>, 15},
    {At<&D::ActualVirtualOffset>, 7},
};

FieldRow WithTopic(FieldRow row) {
    for (const IllustratedEntry& entry : kIllustrated) {
        if (Service.illustratedHelp && row.place.find == entry.place.find) {
            row.topic = entry.topic;
        }
    }
    return row;
}

} // namespace

// In the everyday program nothing enables them.
struct frmScales::Button {
    const char* name;
    const char* caption;
    const char* tip;
    void (frmScales::*clicked)();
};

// clang-format off
const frmScales::Button frmScales::kButtons[] = {
    {"cmdGetColor",         "Foreground color",              "Select the color for this scale and its label", &frmScales::cmdGetColorClicked},
    {"cmdRevertToStandard", "Revert to standard scale",      "",                                              &frmScales::cmdRevertToStandardClicked},
    {"cmddBsetup",          "Create or edit  special scale", "",                                              &frmScales::cmddBsetupClicked},
    {"cmdSelectTics",       "Select tics",                   "",                                              &frmScales::cmdSelectTicsClicked},
};
// clang-format on

void frmScales::Build() {
    if (Service.specialScales) {
        special_ = MakeLabel("lblSpecialScale", QStringLiteral("Special scale"));
        Column().addWidget(special_);
    }
    scales_ = MakeNumberFrame(kScalesNumbers, [this](int scale) { ScaleClicked(scale); });
    Column().addWidget(scales_.frame);
    Column().addLayout(MakeFields());
    Column().addLayout(MakeFrames());
    Column().addLayout(MakeButtons());
}

QLayout* frmScales::MakeFields() {
    auto* grid = new QGridLayout;
    grid->setSpacing(kEntrySpacing);
    grid->setColumnStretch(0, 1);
    for (const FieldRow& row : kScalesFields) {
        auto* field = new Field(WithTopic(row), *this);
        field->AddTo(*grid, static_cast<int>(fields_.size()));
        connect(field->box, &EntryBox::Changed, this, [this, field] { Changed(*field); });
        fields_.push_back(field);
    }
    exponent_ = &Of(At<&D::LinearityExponent>);
    for (const Field* field : fields_) {
        if (field->help && field != exponent_) {
            connect(field->help, &QPushButton::clicked, this,
                    [topic = field->row.topic] { Illustrate(topic); });
        }
    }
    relativeSize_ = &Of(At<&D::RelativeFontSize>);
    connect(exponent_->help, &QPushButton::clicked, this, &frmScales::cmdLinearityExponentClicked);
    connect(relativeSize_->partner, &EntryBox::Changed, this,
            &frmScales::txtRelFontSizeUpDownChanged);
    return grid;
}

QLayout* frmScales::MakeFrames() {
    fraPrintTics_ = MakeFrame("fraPrintTics", QStringLiteral("Print tics and arcs:"));
    auto* tics = new QHBoxLayout(fraPrintTics_);
    Option7_ = MakeOption("Option7", "Yes", &frmScales::Option7Clicked, *tics);
    Option8_ = MakeOption("Option8", "No", &frmScales::Option8Clicked, *tics);
    tics->addStretch();
    QGroupBox* fraPrintArcs = MakeFrame("fraPrintArcs", QStringLiteral("Allow arcs:"));
    auto* arcs = new QHBoxLayout(fraPrintArcs);
    Option9_ = MakeOption("Option9", "Yes", &frmScales::Option9Clicked, *arcs);
    Option10_ = MakeOption("Option10", "No", &frmScales::Option10Clicked, *arcs);
    arcs->addStretch();
    auto* frames = new QHBoxLayout;
    frames->addWidget(fraPrintTics_);
    frames->addWidget(fraPrintArcs);
    return frames;
}

OptionButton* frmScales::MakeOption(const char* name, const char* caption,
                                    void (frmScales::*selected)(), QBoxLayout& line) {
    auto* option = new OptionButton(name, QString::fromUtf8(caption));
    connect(option, &OptionButton::Selected, this, selected);
    line.addWidget(option);
    return option;
}

QLayout* frmScales::MakeButtons() {
    auto* grid = new QGridLayout;
    grid->setSpacing(kEntrySpacing);
    int place = 0;
    for (const Button& row : kButtons) {
        QPushButton* button =
            MakeButton(row.name, QString::fromUtf8(row.caption), QString::fromUtf8(row.tip));
        button->setEnabled(Service.specialScales);
        connect(button, &QPushButton::clicked, this, row.clicked);
        grid->addWidget(button, place / 2, place % 2);
        ++place;
    }
    QPushButton* help = MakeHelpButton("cmdSelectTicsHelp", QStringLiteral("Select tics"));
    connect(help, &QPushButton::clicked, this, &frmScales::cmdSelectTicsHelpClicked);
    grid->addWidget(help, 1, 2); // beside cmdSelectTics
    return grid;
}

} // namespace vernacle
