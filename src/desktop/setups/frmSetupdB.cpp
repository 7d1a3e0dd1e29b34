#include "desktop/setups/frmSetupdB.h"

#include <algorithm>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/kit/field.h"
#include "desktop/kit/formkit.h"
#include "desktop/kit/optionbutton.h"
#include "desktop/setups/rowtable.h"
#include "engine/base/numbertext.h"
#include "engine/core/design.h"
#include "engine/core/entry.h"
#include "engine/setups/decibel.h"

namespace vernacle {

namespace {

constexpr SetupPageTraits kSetupdBTraits = {
    .form = "frmSetupdB",
    .title = "Vernacle - dB setup",
    .heading = "dB setup",
    .acceptCaption = "Accept and return to Scale Design page",
    .ignoreCaption = "Ignore; just return to Scale Design page",
    .computes = kAtLoad | kAtPreview,
    .readsBack = true};

constexpr const char* kSetupdBHeadings[] = {
    "Tic#:", "Deflection:", "Label:", "Print label?", "Major/minor?", "Print tic?"};

} // namespace

// How a number is shown again once it is held to its limits.
enum class ShownAgain { ByMagnitude, Plainly, AsTyped };

struct frmSetupdB::Entry {
    FieldRow row = {};
    float DecibelEntries::*number = nullptr;
    ShownAgain again = ShownAgain::ByMagnitude;
};

// clang-format off
const frmSetupdB::Entry frmSetupdB::kEntries[] = {
    {{.box = "txtFullScaledB",         .caption = "Full-scale dB value:",  .limits = kFullScaleLimits,  .unit = "dB",       .text = "0"},  &DecibelEntries::fullScale},
    {{.box = "txtNrOfTicmarks",        .caption = "Number of ticmarks:",   .limits = kTicmarksLimits,   .unit = "ticmarks", .text = "11"}, &DecibelEntries::ticmarks},
    {{.box = "txtLinearityExponent",   .caption = "Linearity exponent:",   .limits = kExponentLimits,   .text = "1"},  &DecibelEntries::exponent,   ShownAgain::AsTyped},
    {{.box = "txtFullscaleMultiplier", .caption = "Fullscale multiplier:", .limits = kMultiplierLimits, .text = "1"},  &DecibelEntries::multiplier, ShownAgain::Plainly},
};
// clang-format on

// Both start with Yes.
struct frmSetupdB::Question {
    const char* frame;
    const char* text;
    const char* yes;
    const char* no;
    OptionButton* frmSetupdB::*control; // that for Yes
};

const frmSetupdB::Question frmSetupdB::kQuestions[] = {
    {"fraUnlabelledAtBottom", "Unlabelled ticmark at zero deflection?", "optUnlabelledAtBottomYes",
     "optUnlabelledAtBottomNo", &frmSetupdB::optUnlabelledAtBottomYes_},
    {"fraPrefix", "Prefix  '+'  to positive decibel labels?", "optY", "optN", &frmSetupdB::optY_},
};

frmSetupdB::frmSetupdB() : SetupPage(kSetupdBTraits) {
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
        auto* field = new Field(entry.row, *this);
        field->AddBoxTo(*grid, grid->rowCount());
        fields_.push_back({entry, *field});
    }
    return grid;
}

QWidget* frmSetupdB::MakeQuestion(const Question& question) {
    QGroupBox* frame = MakeFrame(question.frame, QString::fromUtf8(question.text));
    auto* line = new QHBoxLayout(frame);
    auto* yes = new OptionButton(question.yes, QStringLiteral("Yes"));
    yes->ShowSelected();
    this->*question.control = yes;
    line->addWidget(yes);
    line->addWidget(new OptionButton(question.no, QStringLiteral("No")));
    line->addStretch();
    return frame;
}

QLayout* frmSetupdB::MakeButtons() {
    auto* column = new QVBoxLayout;
    QPushButton* enter = MakeButton("cmdEnter", QStringLiteral("Enter"));
    connect(enter, &QPushButton::clicked, this, &frmSetupdB::ComputeDecibelTics);
    for (QPushButton* button : {enter, MakePreview(), MakeIgnore(), MakeAccept()}) {
        column->addWidget(button);
    }
    return column;
}

RowTable* frmSetupdB::MakeTable() {
    auto* table = new RowTable("tblTics", kSetupdBHeadings);
    for (int row = 0; row < kDecibelRows; ++row) {
        const TicRow& made = Row(row) = MakeRow(row);
        made.printed.Show(Answer::Yes);
        table->AddRow({made.tic, made.deflection, made.value, made.labelled.frame, made.major.frame,
                       made.printed.frame});
    }
    Row(0).major.Show(Answer::Yes);
    table->AlignHeadings();
    return table;
}

frmSetupdB::TicRow frmSetupdB::MakeRow(int row) {
    return {.tic = MakeRowLabel("Tic", row),
            .deflection = MakeRowLabel("DeflectLabel", row),
            .value = MakeRowLabel("Value", row),
            .labelled = MakeRowChoice("fraPrintLabel", "Print label", {"PrintLabelYes", "Yes"},
                                      {"PrintLabelNo", "No"}, row),
            .major = MakeRowChoice("fraMajorMinor", "Class of tic", {"Major", "Major"},
                                   {"Minor", "Minor"}, row),
            .printed = MakeRowChoice("fraTics", "Print tic", {"PrintTicYes", "Yes"},
                                     {"PrintTicNo", "No"}, row)};
}

// A number whose text is too long for an entry is kept as it is read here.
void frmSetupdB::ReadBack() {
    const int scale = Scale();
    constexpr double kLargest = 1e30;
    const double fullScale = NumericValue(Design.TicLabelText[scale][0]);
    entries_.fullScale = static_cast<float>(std::clamp(fullScale, -kLargest, kLargest));
    entries_.ticmarks = Design.SpecialNrOfTicmarks[scale];
    entries_.exponent = Design.LinearityExponent[scale];
    entries_.multiplier = Design.FullscaleMultiplier[scale];
    for (const auto& [entry, field] : fields_) {
        field.Fill(&(entries_.*entry.number));
    }
    for (int tic = 0; tic < kDecibelRows; ++tic) {
        const TicRow& row = Row(tic);
        row.printed.Show(AnswerIf(Design.TicPrintYN[scale][tic] != "N"));
        row.major.Show(AnswerIf(Design.TicMajorYN[scale][tic] != "N"));
        row.labelled.Show(AnswerIf(Design.TicLabelYN[scale][tic] != "N"));
        ShowNumbers(tic);
    }
}

void frmSetupdB::ComputeDecibelTics() {
    ReadEntries();
    vernacle::ComputeDecibelTics(Design, Scale(), entries_);
    ShowEntries();
    ShowRows();
}

void frmSetupdB::ReadEntries() {
    for (const auto& [entry, field] : fields_) {
        field.Read(&(entries_.*entry.number));
    }
    entries_.plusSigns = AnswerIf(optY_->isChecked());
    entries_.unlabelledBottomTic = AnswerIf(optUnlabelledAtBottomYes_->isChecked());
    std::ranges::transform(rows_, entries_.tics.begin(), [](const TicRow& row) {
        return DecibelTic{.printed = row.printed.Chosen(),
                          .major = row.major.Chosen(),
                          .labelled = row.labelled.Chosen()};
    });
}

void frmSetupdB::ShowEntries() {
    for (const auto& [entry, field] : fields_) {
        if (entry.again == ShownAgain::Plainly) {
            field.Fill(&(entries_.*entry.number));
        } else if (entry.again == ShownAgain::ByMagnitude) {
            std::string text;
            FormatByMagnitude(double{entries_.*entry.number}, text);
            field.box->Write(text);
        }
    }
}

// The row behind the last tic is the bottom tic's, also where that is switched off.
void frmSetupdB::ShowRows() {
    const int last = Design.SpecialNrOfTicmarks[Scale()];
    for (int tic = 0; tic < kDecibelRows; ++tic) {
        const TicRow& row = Row(tic);
        for (QLabel* text : {row.tic, row.value, row.deflection}) {
            text->clear();
        }
        for (QWidget* part :
             std::initializer_list<QWidget*>{row.printed.frame, row.major.frame, row.labelled.frame,
                                             row.value, row.deflection}) {
            part->setVisible(tic <= last);
        }
    }
    for (int tic = 0; tic < last; ++tic) {
        Row(tic).tic->setText(QString::number(tic) + QLatin1String(tic == 0 ? " (top)" : ""));
        ShowNumbers(tic);
    }
    if (Design.UnlabelledBottomTic[Scale()] == "Y") {
        Row(last).tic->setText(QStringLiteral("(bottom)"));
        Row(last).deflection->setText(QStringLiteral("0"));
    }
}

void frmSetupdB::ShowNumbers(int tic) {
    const TicRow& row = Row(tic);
    row.value->setText(QString::fromStdString(Design.TicLabelText[Scale()][tic]));
    row.deflection->setText(
        QString::fromStdString(PlainNumber(Design.TicDeflection[Scale()][tic])));
}

} // namespace vernacle
