#include "desktop/setups/frmSetupdB.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

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
#include "engine/core/service.h"
#include "engine/setups/decibel.h"

namespace vernacle {

namespace {

constexpr SetupPageTraits kSetupdBTraits = {
    .kind = kDecibelKind,
    .form = "frmSetupdB",
    .title = "Vernacle - dB setup",
    .heading = "dB setup",
    .acceptCaption = "Accept and return to Scale Design page",
    .ignoreCaption = "Ignore; just return to Scale Design page",
    .computes = kAtLoad | kAtPreview,
    .computesInService = kAtAccept,
    .readsBack = true};

constexpr FieldRow kEvery = {.box = "txtEveryHowMany",
                             .caption = "Every how many tics (n):",
                             .limits = {1, kLastTic},
                             .unit = "tics",
                             .text = "5"};

constexpr const char* kSetupdBHeadings[] = {
    "Tic#:", "Deflection:", "Label:", "Print label?", "Major/minor?", "Print tic?"};

} // namespace

// How a number is shown again once it is held to its limits.
enum class ShownAgain { ByMagnitude, Plainly, AsTyped };

struct frmSetupdB::Entry {
    FieldRow row = {};
    float DecibelEntries::*number = nullptr;
    ShownAgain again = ShownAgain::ByMagnitude;
    EntryLimits (*limits)() = nullptr; // in place of the row's, where they depend on the service
    LiftedBy standsWith = nullptr;     // always there if null
};

// clang-format off
const frmSetupdB::Entry frmSetupdB::kEntries[] = {
    {{.box = "txtFullScaledB",         .caption = "Full-scale dB value:",  .limits = kFullScaleLimits,  .unit = "dB",       .text = "0"},  &DecibelEntries::fullScale},
    {{.box = "txtStep",                .caption = "Step between tics:",    .limits = kStepLimits,       .unit = "dB",       .text = "1"},  &DecibelEntries::step,       ShownAgain::Plainly, nullptr, &ServiceState::specialScales},
    {{.box = "txtNrOfTicmarks",        .caption = "Number of ticmarks:",   .unit = "ticmarks", .text = "11"},                             &DecibelEntries::ticmarks,   ShownAgain::ByMagnitude, TicmarksLimits},
    {{.box = "txtLinearityExponent",   .caption = "Linearity exponent:",   .text = "1"},                                                  &DecibelEntries::exponent,   ShownAgain::AsTyped, ExponentLimits},
    {{.box = "txtFullscaleMultiplier", .caption = "Fullscale multiplier:", .limits = kMultiplierLimits, .text = "1"},                      &DecibelEntries::multiplier, ShownAgain::Plainly},
};
// clang-format on

// Both start with Yes.
struct frmSetupdB::Question {
    const char* frame;
    const char* text;
    const char* yes;
    const char* no;
    RowChoice frmSetupdB::*answer;
};

const frmSetupdB::Question frmSetupdB::kQuestions[] = {
    {"fraUnlabelledAtBottom", "Unlabelled ticmark at zero deflection?", "optUnlabelledAtBottomYes",
     "optUnlabelledAtBottomNo", &frmSetupdB::bottom_},
    {"fraPrefix", "Prefix  '+'  to positive decibel labels?", "optY", "optN", &frmSetupdB::plus_},
};

// Answers one question for all tics: yes for every nth, or for all.
struct frmSetupdB::Spread {
    const char* button;
    const char* caption;
    RowChoice TicRow::*choice;
    enum class Which { All, EveryNth } which;
};

const frmSetupdB::Spread frmSetupdB::kSpreads[] = {
    {"cmdLabelAll", "Label all tics", &TicRow::labelled, Spread::Which::All},
    {"cmdLabelEvery", "Label every nth tic", &TicRow::labelled, Spread::Which::EveryNth},
    {"cmdMajorEvery", "Make every nth tic major", &TicRow::major, Spread::Which::EveryNth},
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
    if (Service.specialScales) {
        column->addWidget(MakeEvery());
    }
    column->addLayout(MakeButtons());
    column->addStretch();
    halves->addLayout(column);
    table_ = new RowTable("tblTics", kSetupdBHeadings);
    GrowTo(kDecibelRows);
    halves->addWidget(table_, 1);
    Body().addLayout(halves, 1);
}

QLayout* frmSetupdB::MakeEntries() {
    auto* grid = new QGridLayout;
    grid->setSpacing(kEntrySpacing);
    for (const Entry& entry : kEntries) {
        if (entry.standsWith && !IsLifted(entry.standsWith)) {
            continue;
        }
        auto* field = new Field(entry.row, *this);
        if (entry.limits) {
            field->box->TellRange(RangeText(entry.limits(), entry.row.unit));
        }
        GuardNumber(*field->box);
        field->AddBoxTo(*grid, grid->rowCount());
        fields_.push_back({entry, *field, {}});
    }
    return grid;
}

QWidget* frmSetupdB::MakeQuestion(const Question& question) {
    QGroupBox* frame = MakeFrame(question.frame, QString::fromUtf8(question.text));
    auto* line = new QHBoxLayout(frame);
    const RowChoice answer{frame, new OptionButton(question.yes, QStringLiteral("Yes")),
                           new OptionButton(question.no, QStringLiteral("No"))};
    answer.Show(Answer::Yes);
    line->addWidget(answer.first);
    line->addWidget(answer.second);
    line->addStretch();
    this->*question.answer = answer;
    return frame;
}

QWidget* frmSetupdB::MakeEvery() {
    QGroupBox* frame = MakeFrame("fraEvery", QStringLiteral("Labels and major tics:"));
    auto* grid = new QGridLayout(frame);
    grid->setSpacing(kEntrySpacing);
    every_ = new Field(kEvery, *this);
    every_->AddBoxTo(*grid, 0);
    for (const Spread& spread : kSpreads) {
        QPushButton* button = MakeButton(spread.button, QString::fromUtf8(spread.caption));
        connect(button, &QPushButton::clicked, this, [this, &spread] { SpreadClicked(spread); });
        grid->addWidget(button, grid->rowCount(), 0, 1, 2);
    }
    return frame;
}

QLayout* frmSetupdB::MakeButtons() {
    auto* column = new QVBoxLayout;
    QPushButton* enter = MakeButton("cmdEnter", QStringLiteral("Enter"));
    connect(enter, &QPushButton::clicked, this, &frmSetupdB::Enter);
    for (QPushButton* button : {enter, MakePreview(), MakeIgnore(), MakeAccept()}) {
        column->addWidget(button);
    }
    return column;
}

void frmSetupdB::GrowTo(int rows) {
    if (rows <= static_cast<int>(rows_.size())) {
        return;
    }
    for (int row = static_cast<int>(rows_.size()); row < rows; ++row) {
        const TicRow& made = rows_.emplace_back(MakeRow(row));
        made.printed.Show(Answer::Yes);
        table_->AddRow({made.tic, made.deflection, made.value, made.labelled.frame,
                        made.major.frame, made.printed.frame});
    }
    Row(0).major.Show(Answer::Yes);
    table_->AlignHeadings();
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
    DecibelReading reading = ReadDecibels(Design, Scale());
    entries_ = reading.entries;
    GrowTo(static_cast<int>(TicmarksLimits().Held(entries_.ticmarks)) + 1);
    ShowChoices();
    if (Service.specialScales) {
        reading_ = std::move(reading);
        bottom_.Show(entries_.unlabelledBottomTic);
        plus_.Show(entries_.plusSigns);
        ShowExactly();
        ShowRows();
        return;
    }
    for (const EntryField& shown : fields_) {
        shown.field.Fill(&(entries_.*shown.entry.number));
    }
}

void frmSetupdB::ShowChoices() {
    int tic = 0;
    for (const TicRow& row : rows_) {
        const DecibelTic& choice = entries_.tics.at(static_cast<std::size_t>(tic));
        row.printed.Show(choice.printed);
        row.major.Show(choice.major);
        row.labelled.Show(choice.labelled);
        ShowNumbers(tic);
        ++tic;
    }
}

// Of entries that give no scale nothing is taken.
void frmSetupdB::ComputeDecibelTics() {
    DecibelEntries entries = entries_;
    ReadFields(entries);
    GrowTo(static_cast<int>(TicmarksLimits().Held(std::abs(entries.ticmarks))) + 1);
    ReadChoices(entries);
    vernacle::ComputeDecibelTics(Design, Scale(), entries, reading_ ? &*reading_ : nullptr);
    entries_ = entries;
    ShowEntries();
    ShowRows();
}

bool frmSetupdB::Enter() {
    return StoreOrReport([this] { ComputeDecibelTics(); });
}

void frmSetupdB::SpreadClicked(const Spread& spread) {
    if (!Enter()) { // which makes the rows
        return;
    }
    const int every = spread.which == Spread::Which::All ? 1 : EveryHowMany();
    const int from = TicCountedFrom(entries_);
    for (int tic = 0; tic < Design.SpecialNrOfTicmarks[Scale()]; ++tic) {
        (Row(tic).*spread.choice).Show(AnswerIf((tic - from) % every == 0));
    }
    Enter();
}

int frmSetupdB::EveryHowMany() {
    float every = 1;
    every_->Read(&every);
    every = std::floor(every_->row.limits.Held(every));
    every_->box->Write(EntryText(every));
    return static_cast<int>(every);
}

// A number whose text was not touched stays as it is, to the last bit.
void frmSetupdB::ReadFields(DecibelEntries& entries) {
    for (const auto& [entry, field, shown] : fields_) {
        if (shown.empty() || field.box->Text() != shown) {
            field.Read(&(entries.*entry.number));
        }
    }
}

void frmSetupdB::ReadChoices(DecibelEntries& entries) {
    entries.plusSigns = plus_.Chosen();
    entries.unlabelledBottomTic = bottom_.Chosen();
    std::ranges::transform(rows_, entries.tics.begin(), [](const TicRow& row) {
        return DecibelTic{.printed = row.printed.Chosen(),
                          .major = row.major.Chosen(),
                          .labelled = row.labelled.Chosen()};
    });
}

void frmSetupdB::ShowExactly() {
    for (EntryField& field : fields_) {
        field.shown = EntryText(entries_.*field.entry.number);
        field.field.box->Write(field.shown);
    }
}

void frmSetupdB::ShowEntries() {
    if (Service.specialScales) {
        ShowExactly();
        return;
    }
    for (const EntryField& shown : fields_) {
        const float number = entries_.*shown.entry.number;
        if (shown.entry.again == ShownAgain::Plainly) {
            shown.field.Fill(&(entries_.*shown.entry.number));
        } else if (shown.entry.again == ShownAgain::ByMagnitude) {
            std::string text;
            FormatByMagnitude(double{number}, text);
            shown.field.box->Write(text);
        }
    }
}

// The row behind the last tic is the bottom tic's, on the everyday page also where that is switched
// off.
void frmSetupdB::ShowRows() {
    const int last = std::max<int>(Design.SpecialNrOfTicmarks[Scale()], 0);
    const bool hasBottom = Design.UnlabelledBottomTic[Scale()] == "Y";
    const int lastShown = hasBottom || !Service.specialScales ? last : last - 1;
    table_->ChangeRows([&] { ShowRowsTo(lastShown); });
    for (int tic = 0; tic < last; ++tic) {
        Row(tic).tic->setText(QString::number(tic) + QLatin1String(tic == 0 ? " (top)" : ""));
        ShowNumbers(tic);
    }
    if (hasBottom) {
        Row(last).tic->setText(QStringLiteral("(bottom)"));
        Row(last).deflection->setText(QStringLiteral("0"));
    }
}

// Without their texts.
void frmSetupdB::ShowRowsTo(int last) {
    for (int tic = 0; tic < static_cast<int>(rows_.size()); ++tic) {
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
}

void frmSetupdB::ShowNumbers(int tic) {
    const TicRow& row = Row(tic);
    row.value->setText(QString::fromStdString(Design.TicLabelText[Scale()][tic]));
    const float deflection = Design.TicDeflection[Scale()][tic];
    row.deflection->setText(QString::fromStdString(
        Service.specialScales ? EntryText(deflection) : PlainNumber(deflection)));
}

} // namespace vernacle
