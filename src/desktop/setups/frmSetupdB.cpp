#include "desktop/setups/frmSetupdB.h"

#include <algorithm>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/kit/entrybox.h"
#include "desktop/kit/formkit.h"
#include "desktop/kit/optionbutton.h"
#include "desktop/setups/rowtable.h"
#include "engine/base/numbertext.h"
#include "engine/core/design.h"
#include "engine/core/entry.h"
#include "engine/setups/decibel.h"

namespace vernacle {

namespace {

constexpr SetupPageTraits kTraits = {.form = "frmSetupdB",
                                     .title = "Vernacle - dB setup",
                                     .heading = "dB setup",
                                     .acceptCaption = "Accept and return to Scale Design page",
                                     .ignoreCaption = "Ignore; just return to Scale Design page",
                                     .computes = kAtLoad | kAtPreview,
                                     .readsBack = true};

struct Entry {
    const char* label = nullptr;
    const char* caption = nullptr;
    const char* box = nullptr;
    const char* start = nullptr;
    EntryLimits limits = {};
    const char* unit = nullptr;
};

// clang-format off
constexpr Entry kEntries[] = {
    {"lblFullScaledB",         "Full-scale dB value:",  "txtFullScaledB",         "0",  kFullScaleLimits,  "dB"},
    {"lblNrOfTicmarks",        "Number of ticmarks:",   "txtNrOfTicmarks",        "11", kTicmarksLimits,   "ticmarks"},
    {"lblLinearityExponent",   "Linearity exponent:",   "txtLinearityExponent",   "1",  kExponentLimits,   ""},
    {"lblFullscaleMultiplier", "Fullscale multiplier:", "txtFullscaleMultiplier", "1",  kMultiplierLimits, ""},
};
// clang-format on

// Both start with Yes.
struct Question {
    const char* frame;
    const char* text;
    const char* yes;
    const char* no;
};

constexpr Question kQuestions[] = {
    {"fraUnlabelledAtBottom", "Unlabelled ticmark at zero deflection?", "optUnlabelledAtBottomYes",
     "optUnlabelledAtBottomNo"},
    {"fraPrefix", "Prefix  '+'  to positive decibel labels?", "optY", "optN"},
};

constexpr const char* kHeadings[] = {
    "Tic#:", "Deflection:", "Label:", "Print label?", "Major/minor?", "Print tic?"};

constexpr const char* kHiddenParts[] = {"fraTics", "fraMajorMinor", "Value", "fraPrintLabel",
                                        "DeflectLabel"};

QWidget* MakeQuestion(const Question& question) {
    QGroupBox* frame = MakeFrame(question.frame, QString::fromUtf8(question.text));
    auto* line = new QHBoxLayout(frame);
    auto* yes = new OptionButton(question.yes, QStringLiteral("Yes"));
    yes->ShowSelected();
    line->addWidget(yes);
    line->addWidget(new OptionButton(question.no, QStringLiteral("No")));
    line->addStretch();
    return frame;
}

} // namespace

frmSetupdB::frmSetupdB() : SetupPage(kTraits) {
    Build();
    EnterSetup();
}

void frmSetupdB::Build() {
    auto* halves = new QHBoxLayout;
    halves->setSpacing(16);
    auto* column = new QVBoxLayout;
    column->setSpacing(10);
    column->addLayout(MakeEntries());
    for (const Question& question : kQuestions) {
        column->addWidget(MakeQuestion(question));
    }
    column->addLayout(MakeButtons());
    column->addStretch();
    halves->addLayout(column);
    halves->addWidget(MakeTable(), 1);
    Body().addLayout(halves, 1);
}

QLayout* frmSetupdB::MakeEntries() {
    auto* grid = new QGridLayout;
    grid->setSpacing(kEntrySpacing);
    for (const Entry& entry : kEntries) {
        EntryBox* box = AddEntry(*grid, entry.label, entry.caption, entry.box);
        box->TellRange(RangeText(entry.limits, entry.unit));
        box->Show(entry.start);
    }
    return grid;
}

QLayout* frmSetupdB::MakeButtons() {
    auto* column = new QVBoxLayout;
    QPushButton* enter = MakeButton("cmdEnter", QStringLiteral("Enter"));
    QPushButton* preview = MakeButton("cmdPreview", QStringLiteral("Preview"));
    connect(enter, &QPushButton::clicked, this, &frmSetupdB::ComputeDecibelTics);
    connect(preview, &QPushButton::clicked, this, &frmSetupdB::ShowSetupPreview);
    for (QPushButton* button : {enter, preview, MakeIgnore(), MakeAccept()}) {
        column->addWidget(button);
    }
    return column;
}

RowTable* frmSetupdB::MakeTable() {
    auto* table = new RowTable("tblTics", kHeadings);
    for (int row = 0; row < kDecibelRows; ++row) {
        const auto label = [row](const char* name) { return MakeRowLabel(name, row); };
        const auto choice = [row](const char* frame, const char* question, const RowOption& first,
                                  const RowOption& second) {
            return MakeRowChoice(frame, question, first, second, row);
        };
        table->AddRow(
            {label("Tic"), label("DeflectLabel"), label("Value"),
             choice("fraPrintLabel", "Print label", {"PrintLabelYes", "Yes"},
                    {"PrintLabelNo", "No"}),
             choice("fraMajorMinor", "Class of tic", {"Major", "Major"}, {"Minor", "Minor"}),
             choice("fraTics", "Print tic", {"PrintTicYes", "Yes"}, {"PrintTicNo", "No"})});
    }
    for (int row = 0; row < kDecibelRows; ++row) {
        table->findChild<OptionButton*>(QString::fromStdString(RowName("PrintTicYes", row)))
            ->ShowSelected();
    }
    table->findChild<OptionButton*>(QStringLiteral("Major0"))->ShowSelected();
    table->AlignHeadings();
    return table;
}

// A number whose text is too long for an entry is kept as it is read here.
void frmSetupdB::ReadBack() {
    const int scale = Scale();
    constexpr double kLargest = 1e30;
    const double fullScale = NumericValue(Design.TicLabelText[scale][0]);
    entries_.fullScale = static_cast<float>(std::clamp(fullScale, -kLargest, kLargest));
    entries_.exponent = Design.LinearityExponent[scale];
    entries_.multiplier = Design.FullscaleMultiplier[scale];
    Box("txtNrOfTicmarks").Write(PlainNumber(std::int32_t{Design.SpecialNrOfTicmarks[scale]}));
    Box("txtFullScaledB").Write(PlainNumber(entries_.fullScale));
    Box("txtLinearityExponent").Write(PlainNumber(entries_.exponent));
    Box("txtFullscaleMultiplier").Write(PlainNumber(entries_.multiplier));
    for (int row = 0; row < kDecibelRows; ++row) {
        SelectIf("PrintTicYes", "PrintTicNo", row, Design.TicPrintYN[scale][row] != "N");
        SelectIf("Major", "Minor", row, Design.TicMajorYN[scale][row] != "N");
        SelectIf("PrintLabelYes", "PrintLabelNo", row, Design.TicLabelYN[scale][row] != "N");
        SetText("Value", row, Design.TicLabelText[scale][row]);
        SetText("DeflectLabel", row, PlainNumber(Design.TicDeflection[scale][row]));
    }
}

void frmSetupdB::ComputeDecibelTics() {
    ReadEntries();
    vernacle::ComputeDecibelTics(Scale(), entries_);
    ShowNumbers();
    ShowRows();
}

void frmSetupdB::ReadEntries() {
    const auto read = [this](const char* box, float& number) {
        std::string text = Box(box).Text();
        ParseEntry(text, number);
    };
    read("txtFullScaledB", entries_.fullScale);
    read("txtNrOfTicmarks", entries_.ticmarks);
    read("txtLinearityExponent", entries_.exponent);
    read("txtFullscaleMultiplier", entries_.multiplier);
    entries_.plusSigns = AnswerOf("optY");
    entries_.unlabelledBottomTic = AnswerOf("optUnlabelledAtBottomYes");
    for (int row = 0; row < kDecibelRows; ++row) {
        entries_.tics.at(static_cast<std::size_t>(row)) = {
            .printed = AnswerOf(RowName("PrintTicYes", row)),
            .major = AnswerOf(RowName("Major", row)),
            .labelled = AnswerOf(RowName("PrintLabelYes", row))};
    }
}

// The exponent goes on showing what was typed.
void frmSetupdB::ShowNumbers() {
    std::string text;
    FormatByMagnitude(double{entries_.fullScale}, text);
    Box("txtFullScaledB").Write(text);
    FormatByMagnitude(double{entries_.ticmarks}, text);
    Box("txtNrOfTicmarks").Write(text);
    Box("txtFullscaleMultiplier").Write(PlainNumber(entries_.multiplier));
}

// The row behind the last tic is the bottom tic's, also where that is switched off.
void frmSetupdB::ShowRows() {
    const int last = Design.SpecialNrOfTicmarks[Scale()];
    for (int row = 0; row < kDecibelRows; ++row) {
        for (const char* text : {"Tic", "Value", "DeflectLabel"}) {
            SetText(text, row, {});
        }
        for (const char* part : kHiddenParts) {
            Control(RowName(part, row).c_str()).setVisible(row <= last);
        }
    }
    for (int row = 0; row < last; ++row) {
        ShowRow(row);
    }
    if (Design.UnlabelledBottomTic[Scale()] == "Y") {
        SetText("Tic", last, "(bottom)");
        SetText("DeflectLabel", last, "0");
    }
}

void frmSetupdB::ShowRow(int row) {
    SetText("Tic", row, PlainNumber(std::int32_t{row}) + (row == 0 ? " (top)" : ""));
    SetText("Value", row, Design.TicLabelText[Scale()][row]);
    SetText("DeflectLabel", row, PlainNumber(Design.TicDeflection[Scale()][row]));
}

void frmSetupdB::SetText(const char* label, int row, const std::string& text) {
    findChild<QLabel*>(QString::fromStdString(RowName(label, row)))
        ->setText(QString::fromStdString(text));
}

void frmSetupdB::SelectIf(const char* option, const char* other, int row, bool selected) {
    Option(RowName(selected ? option : other, row).c_str()).ShowSelected();
}

Answer frmSetupdB::AnswerOf(const std::string& option) const {
    return AnswerIf(Option(option.c_str()).isChecked());
}

} // namespace vernacle
