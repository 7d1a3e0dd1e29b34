#include "pages/frmScalesRows.h"

#include <limits>

#include <QGridLayout>
#include <QHBoxLayout>

#include "core/design.h"
#include "platform/entrybox.h"
#include "platform/formkit.h"
#include "platform/optionbutton.h"
#include "platform/picturebox.h"

namespace vernacle {

namespace {

using D = DesignRecord;

constexpr double kNoLimit = std::numeric_limits<double>::infinity();
constexpr LogicalArea kPlateArea{-400, 900, 7600, 7000}; // trim marks of the widest aspect too
constexpr QColor kPaper(0xF4, 0xF4, 0xF4);
constexpr QColor kFadedInk(0x90, 0x90, 0x90);

// Paper and ink, whatever the desktop's colours are.
QPalette PaperPalette() {
    QPalette colours;
    colours.setColor(QPalette::Window, kPaper);
    colours.setColor(QPalette::WindowText, Qt::black);
    colours.setColor(QPalette::Base, Qt::white); // the options' marks
    colours.setColor(QPalette::Text, Qt::black);
    colours.setColor(QPalette::Disabled, QPalette::WindowText, kFadedInk);
    return colours;
}

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
    {"txtScaleLeftEnd",          "lblScaleLeftEnd",          "Scale left end (units):",    "0",   At<&D::ScaleLeftEnd>,         -kNoLimit, kNoLimit, nullptr,                       {},          &frmScales::NumberChanged},
    {"txtScaleLength",           "lblScaleLength",           "Scale length (units):",      "100", At<&D::ScaleLengthUnits>,     -kNoLimit, kNoLimit, nullptr,                       {},          &frmScales::NumberChanged},
    {"txtBottomToScaleCeiling",  "lblBottomToScaleCeiling",  "Bottom to scale ceiling:",   "50",  At<&D::BottomToScaleCeiling>, -200,      200,      "UpDownBottomToScaleCeiling",  {0, 180},    &frmScales::NumberChanged},
    {"txtBottomToTitle",         "lblBottomToTitle",         "Bottom to title:",           "25",  At<&D::BottomToTitle>,        -200,      200,      "UpDownBottomToTitle",         {0, 180},    &frmScales::NumberChanged},
    {"txtNumberOfTics",          "lblNumberOfTics",          "Number of tics",             "50",  At<&D::NrOfTicmarks>,         1,         360,      "UpDown3",                     {0, 360},    &frmScales::NumberChanged},
    {"txtMajorTicsEveryHowMany", "lblMajorTicsEveryHowMany", "Major tics every how many",  "5",   At<&D::MajorEveryHowMany>,    1,         360,      "UpDown4",                     {1, 50},     &frmScales::NumberChanged},
    {"txtLabelsEveryHowMany",    "lblLabelsEveryHowMany",    "Labels every how many",      "10",  At<&D::LabelsEveryHowMany>,   1,         360,      "UpDown5",                     {1, 50},     &frmScales::NumberChanged},
    {"txtLinearityExponent",     "lblLinearityExponent",     "Linearity exponent",         "1",   At<&D::LinearityExponent>,    -4,        4,        nullptr,                       {},          &frmScales::txtLinearityExponentChanged, nullptr, &kExponentHelp},
    {"txtRelFontsize",           "lblRelFontsize",           "Relative fontsize:",         "1",   At<&D::RelativeFontSize>,     0.5,       1.5,      "UpDown6",                     {5, 15},     &frmScales::txtRelFontsizeChanged, "txtRelFontSizeUpDown"},
    {"txtOffset",                "lblOffset",                "Actual/virtual offset:",     "",    At<&D::ActualVirtualOffset>,  0,         1000,     "UpDown7",                     {0, 100000}, &frmScales::NumberChanged},
    {"txtScaleTitle",            "lblScaleTitle",            "Scale title:",               "",    At<&D::ScaleTitle>,           0,         0,        nullptr,                       {},          &frmScales::txtScaleTitleChanged},
};
// clang-format on

std::span<const frmScales::Entry> frmScales::Entries() {
    return kEntries;
}

void frmScales::Build() {
    plate_ = new PictureBox("picPlate", kPlateArea, UnitShape::OfScreen);
    plate_->setAccessibleName(QStringLiteral("Drawing of the plate"));
    auto* entries = new QVBoxLayout;
    entries->setSpacing(10);
    entries->addWidget(MakeHeading("lblHeading", QStringLiteral("Scale design")));
    entries->addWidget(MakeScaleNumbers());
    entries->addLayout(MakeEntries());
    entries->addLayout(MakeFrames());
    entries->addLayout(MakeButtons());
    entries->addStretch();
    auto* halves = new QHBoxLayout;
    halves->setSpacing(16);
    halves->addWidget(plate_, 1);
    halves->addLayout(entries);
    Body().addLayout(halves, 1);
}

QGroupBox* frmScales::MakeScaleNumbers() {
    QGroupBox* frame = MakeFrame("fraScaleNumber", QStringLiteral("Edit"));
    frame->setToolTip(QStringLiteral("Select the scale to edit"));
    auto* line = new QHBoxLayout(frame);
    line->addWidget(MakeLabel("lblScaleNumber", QStringLiteral("Scale #:")));
    auto* paper = new QFrame; // the numbers wear the colours of their scales, made for paper
    paper->setObjectName(QStringLiteral("fraScaleNumberPaper"));
    paper->setAutoFillBackground(true);
    paper->setPalette(PaperPalette());
    auto* options = new QHBoxLayout(paper);
    options->setContentsMargins(6, 3, 6, 3);
    for (int scale = 1; scale <= kScales; ++scale) {
        const QString number = QString::number(scale);
        auto* option = new OptionButton(OptionName(scale).c_str(), number);
        option->setToolTip(QStringLiteral("Edit scale #") + number);
        option->setAccessibleName(QStringLiteral("Scale #") + number);
        option->OnSelect([this, scale] { ScaleClicked(scale); });
        options->addWidget(option);
    }
    line->addWidget(paper, 1);
    return frame;
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
    const QString caption = QString::fromUtf8(entry.caption);
    auto* box = new EntryBox(entry.box, caption); // its layout places it in the order of Tab
    box->setText(QString::fromUtf8(entry.text));
    box->OnChange([this, &entry] { (this->*entry.changed)(entry); });
    QLabel* label = MakeLabel(entry.label, caption);
    label->setBuddy(box);
    if (std::holds_alternative<std::string*>(entry.field(1, 0))) {
        auto* line = new QHBoxLayout; // a text takes what the columns of numbers leave
        line->addWidget(label);
        line->addWidget(box, 1);
        grid.addLayout(line, row, 0, 1, 3);
        return;
    }
    grid.addWidget(label, row, 0);
    if (entry.arrows) {
        auto* arrows = new UpDown(entry.arrows, caption);
        grid.addLayout(MakeStepped(*box, arrows), row, 1);
        arrows->AttachTo(entry.partner ? MakePartner(entry) : *box, entry.range);
        box->SetArrows(arrows);
    } else {
        grid.addLayout(MakeStepped(*box, nullptr), row, 1);
    }
    if (entry.help) {
        grid.addWidget(MakeButtonOf(*entry.help), row, 2);
    }
}

// A box that is not shown: the arrows of another box step it, in units of its own.
EntryBox& frmScales::MakePartner(const Entry& entry) {
    auto* partner = new EntryBox(entry.partner, QString::fromUtf8(entry.caption), this);
    partner->OnChange([this] { txtRelFontSizeUpDownChanged(); });
    partner->hide();
    return *partner;
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
