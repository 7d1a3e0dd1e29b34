#include "desktop/pages/frmScalesRows.h"

#include <QGridLayout>
#include <QHBoxLayout>

#include "desktop/kit/entrybox.h"
#include "desktop/kit/formkit.h"
#include "desktop/kit/optionbutton.h"
#include "desktop/pages/numberframe.h"
#include "engine/core/design.h"

namespace vernacle {

namespace {

using D = DesignRecord;

constexpr NumberFrameTraits kNumbers = {.frame = "fraScaleNumber",
                                        .label = "lblScaleNumber",
                                        .labelText = "Scale #:",
                                        .spoken = "Scale #",
                                        .options = kScales,
                                        .tips = kScales};

} // namespace

// clang-format off
const frmScales::Button frmScales::kButtons[] = {
    {"cmdGetColor",         "Foreground color",              "Select the color for this scale and its label", ScalesButton::Greyed, &frmScales::cmdGetColorClicked},
    {"cmdRevertToStandard", "Revert to standard scale",      "",                                              ScalesButton::Greyed, &frmScales::cmdRevertToStandardClicked},
    {"cmddBsetup",          "Create or edit  special scale", "",                                              ScalesButton::Greyed, &frmScales::cmddBsetupClicked},
    {"cmdSelectTics",       "Select tics",                   "",                                              ScalesButton::Greyed, &frmScales::cmdSelectTicsClicked},
};
// clang-format on

const frmScales::Button frmScales::kTicsHelp = {"cmdSelectTicsHelp", "Select tics", "",
                                                ScalesButton::Illustration,
                                                &frmScales::cmdSelectTicsHelpClicked};
const frmScales::Button frmScales::kExponentHelp = {
    "cmdLinearityExponent", "Linearity exponent", "Show linearity graphic",
    ScalesButton::Illustration, &frmScales::cmdLinearityExponentClicked};

// clang-format off
const frmScales::Entry frmScales::kEntries[] = {
    {{"txtScaleLeftEnd",          "lblScaleLeftEnd",          "Scale left end (units):",    nullptr,                      {},          {},          ""},                                     "0",   At<&D::ScaleLeftEnd>,         &frmScales::NumberChanged},
    {{"txtScaleLength",           "lblScaleLength",           "Scale length (units):",      nullptr,                      {},          {},          ""},                                     "100", At<&D::ScaleLengthUnits>,     &frmScales::NumberChanged},
    {{"txtBottomToScaleCeiling",  "lblBottomToScaleCeiling",  "Bottom to scale ceiling:",   "UpDownBottomToScaleCeiling", {0, 180},    {-200, 200}, "mm"},                                   "50",  At<&D::BottomToScaleCeiling>, &frmScales::NumberChanged},
    {{"txtBottomToTitle",         "lblBottomToTitle",         "Bottom to title:",           "UpDownBottomToTitle",        {0, 180},    {-200, 200}, "mm"},                                   "25",  At<&D::BottomToTitle>,        &frmScales::NumberChanged},
    {{"txtNumberOfTics",          "lblNumberOfTics",          "Number of tics",             "UpDown3",                    {0, 360},    {1, 360},    "tics"},                                 "50",  At<&D::NrOfTicmarks>,         &frmScales::NumberChanged},
    {{"txtMajorTicsEveryHowMany", "lblMajorTicsEveryHowMany", "Major tics every how many",  "UpDown4",                    {1, 50},     {1, 360},    "tics"},                                 "5",   At<&D::MajorEveryHowMany>,    &frmScales::NumberChanged},
    {{"txtLabelsEveryHowMany",    "lblLabelsEveryHowMany",    "Labels every how many",      "UpDown5",                    {1, 50},     {1, 360},    "tics"},                                 "10",  At<&D::LabelsEveryHowMany>,   &frmScales::NumberChanged},
    {{"txtLinearityExponent",     "lblLinearityExponent",     "Linearity exponent",         nullptr,                      {},          {-4, 4},     ""},                                     "1",   At<&D::LinearityExponent>,    &frmScales::txtLinearityExponentChanged, &kExponentHelp},
    {{"txtRelFontsize",           "lblRelFontsize",           "Relative fontsize:",         "UpDown6",                    {5, 15},     {0.5, 1.5},  "times the font size", "txtRelFontSizeUpDown"}, "1",   At<&D::RelativeFontSize>,     &frmScales::txtRelFontsizeChanged},
    {{"txtOffset",                "lblOffset",                "Actual/virtual offset:",     "UpDown7",                    {0, 100000}, {0, 1000},   "mm"},                                   "",    At<&D::ActualVirtualOffset>,  &frmScales::NumberChanged},
    {{"txtScaleTitle",            "lblScaleTitle",            "Scale title:",               nullptr,                      {},          {},          ""},                                     "",    At<&D::ScaleTitle>,           &frmScales::txtScaleTitleChanged},
};
// clang-format on

std::span<const frmScales::Entry> frmScales::Entries() {
    return kEntries;
}

void frmScales::Build() {
    Column().addWidget(MakeNumberFrame(kNumbers, [this](int scale) { ScaleClicked(scale); }));
    Column().addLayout(MakeEntries());
    Column().addLayout(MakeFrames());
    Column().addLayout(MakeButtons());
}

QLayout* frmScales::MakeEntries() {
    auto* grid = new QGridLayout;
    grid->setSpacing(kEntrySpacing);
    grid->setColumnStretch(0, 1);
    int row = 0;
    for (const Entry& entry : Entries()) {
        AddEntry(entry, *grid, row++);
    }
    return grid;
}

void frmScales::AddEntry(const Entry& entry, QGridLayout& grid, int row) {
    const bool isText = std::holds_alternative<std::string*>(entry.field.In(Design, 1));
    const EntryControls controls =
        isText ? AddTextRow(entry.row, grid, row) : AddEntryRow(entry.row, grid, row, *this);
    controls.box.setText(QString::fromUtf8(entry.text));
    connect(&controls.box, &EntryBox::Changed, this,
            [this, &entry] { (this->*entry.changed)(entry); });
    if (controls.partner) {
        connect(controls.partner, &EntryBox::Changed, this,
                &frmScales::txtRelFontSizeUpDownChanged);
    }
    if (entry.help) {
        grid.addWidget(MakeButtonOf(*entry.help), row, 2);
    }
}

QLayout* frmScales::MakeFrames() {
    fraPrintTics_ =
        MakeYesNo("fraPrintTics", "Print tics and arcs:", {"Option7", &frmScales::Option7Clicked},
                  {"Option8", &frmScales::Option8Clicked});
    auto* frames = new QHBoxLayout;
    frames->addWidget(fraPrintTics_);
    frames->addWidget(MakeYesNo("fraPrintArcs",
                                "Allow arcs:", {"Option9", &frmScales::Option9Clicked},
                                {"Option10", &frmScales::Option10Clicked}));
    return frames;
}

QGroupBox* frmScales::MakeYesNo(const char* name, const char* title, const Option& yes,
                                const Option& no) {
    QGroupBox* frame = MakeFrame(name, QString::fromUtf8(title));
    auto* line = new QHBoxLayout(frame);
    const auto add = [&](const Option& option, const QString& caption) {
        auto* button = new OptionButton(option.name, caption);
        button->OnSelect([this, selected = option.selected] { (this->*selected)(); });
        line->addWidget(button);
    };
    add(yes, QStringLiteral("Yes"));
    add(no, QStringLiteral("No"));
    line->addStretch();
    return frame;
}

QLayout* frmScales::MakeButtons() {
    auto* grid = new QGridLayout;
    grid->setSpacing(kEntrySpacing);
    int place = 0;
    for (const Button& button : kButtons) {
        grid->addWidget(MakeButtonOf(button), place / 2, place % 2);
        ++place;
    }
    grid->addWidget(MakeButtonOf(kTicsHelp), 1, 2); // beside cmdSelectTics
    return grid;
}

QPushButton* frmScales::MakeButtonOf(const Button& button) {
    const QString caption = QString::fromUtf8(button.caption);
    QPushButton* made = button.kind == ScalesButton::Illustration
                            ? MakeHelpButton(button.name, caption)
                            : MakeButton(button.name, caption);
    made->setToolTip(QString::fromUtf8(button.tip));
    made->setEnabled(button.kind != ScalesButton::Greyed);
    connect(made, &QPushButton::clicked, this, button.clicked);
    return made;
}

} // namespace vernacle
