#include "desktop/setups/frmSpecialScale.h"

#include <algorithm>
#include <array>
#include <string>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/kit/field.h"
#include "desktop/kit/formkit.h"
#include "desktop/kit/optionbutton.h"
#include "desktop/setups/rowtable.h"
#include "engine/base/hostservices.h"
#include "engine/base/numbertext.h"
#include "engine/core/design.h"
#include "engine/core/entry.h"
#include "engine/core/service.h"

namespace vernacle {

namespace {

constexpr SetupPageTraits kSpecialScaleTraits = {
    .kind = kArbitraryKind,
    .form = "frmSpecialScale",
    .title = "Vernacle - Special scale setup",
    .heading = "Special scale setup",
    .acceptCaption = "Accept and return to Scales page",
    .ignoreCaption = "Ignore and return to Scales page",
    .computes = kAtLoad | kAtPreview | kAtAccept,
    .readsBack = true};

constexpr FieldRow kTicmarks = {.box = "txtNrOfTicmarks",
                                .caption = "Number of ticmarks:",
                                .limits = kLastRowLimits,
                                .unit = "ticmarks"};

constexpr const char* kSpecialScaleHeadings[] = {"Tic#:", "Deflection:", "Label:", "Major/minor?"};

constexpr const char* kRange = "The value for deflection must be 0 minimum to 1.0 maximum";

// The two paths say it differently.
std::string MessageOf(DeflectionFault fault, SetupMoment moment) {
    const bool stopped = fault == DeflectionFault::Above && moment == kAtPreview;
    return kRange + std::string(stopped ? "." : "");
}

} // namespace

frmSpecialScale::frmSpecialScale() : SetupPage(kSpecialScaleTraits) {
    Build();
    EnterSetup();
}

void frmSpecialScale::Build() {
    auto* count = new QGridLayout;
    ticmarksField_ = new Field(kTicmarks, *this);
    ticmarksField_->AddBoxTo(*count, count->rowCount());
    connect(ticmarksField_->box, &EntryBox::Changed, this,
            [this] { StoreOrReport([this] { ApplySpecialTable(); }); });
    QLabel* note = MakeLabel(
        "lblFullScale",
        QStringLiteral("Full-scale deflection is 1.0; for a \"blank\" label, use a space."));
    note->setWordWrap(true);
    auto* column = new QVBoxLayout;
    column->setSpacing(10);
    column->addLayout(count);
    column->addWidget(note);
    for (QPushButton* button : {MakePreview(), MakeIgnore(), MakeAccept()}) {
        column->addWidget(button);
    }
    column->addStretch();
    auto* halves = new QHBoxLayout;
    halves->setSpacing(16);
    halves->addLayout(column);
    halves->addWidget(MakeTable(), 1);
    Body().addLayout(halves, 1);
}

RowTable* frmSpecialScale::MakeTable() {
    auto* table = new RowTable("tblTics", kSpecialScaleHeadings);
    for (int row = 0; row < kSpecialRows; ++row) {
        const TicRow& made = Row(row) = MakeRow(row);
        table->AddRow({made.tic, made.deflection, made.label, made.major.frame});
    }
    table->AlignHeadings();
    return table;
}

frmSpecialScale::TicRow frmSpecialScale::MakeRow(int row) {
    const QString number = QString::number(row);
    TicRow made{.tic = MakeRowLabel("Tic", row),
                .deflection = new EntryBox(RowName("txtDeflection", row).c_str(),
                                           QStringLiteral("Deflection of tic ") + number),
                .label = new EntryBox(RowName("txtLabel", row).c_str(),
                                      QStringLiteral("Label of tic ") + number),
                .major = MakeRowChoice("fraMajorMinor", "Class of tic", {"Major", "Major"},
                                       {"Minor", "Minor"}, row)};
    made.deflection->TellRange(RangeText(kDeflectionLimits, "of full scale"));
    GuardNumber(*made.deflection);
    GuardLabel(*made.label);
    return made;
}

SpecialRow frmSpecialScale::TicRow::Contents() const {
    return {.deflection = deflection->Text(), .label = label->Text(), .major = major.Chosen()};
}

void frmSpecialScale::ReadBack() {
    const int scale = Scale();
    const int last = std::min<int>(Design.SpecialNrOfTicmarks[scale], kSpecialRows - 1);
    for (int tic = 0; tic <= last; ++tic) {
        const TicRow& row = Row(tic);
        const KeptTic stored = TicOf(Design, scale, tic);
        row.major.Show(AnswerIf(stored.major == "Y"));
        if (!Service.specialScales) {
            MendEmptyLabel(Design, scale, tic);
        }
        row.label->Write(Design.TicLabelText[scale][tic]);
        row.deflection->Write(Service.specialScales ? EntryText(stored.deflection)
                                                    : PlainNumber(stored.deflection));
        if (Service.specialScales) {
            read_.at(static_cast<std::size_t>(tic)) = {row.Contents(), stored};
        }
    }
}

void frmSpecialScale::ShowStored() {
    ticmarksField_->Fill(&Design.SpecialNrOfTicmarks[Scale()]);
}

bool frmSpecialScale::CheckEntries(SetupMoment moment) {
    const int last = Design.SpecialNrOfTicmarks[Scale()];
    if (Service.specialScales && !ComputeOrReport([&] { CheckRows(last, EnteredRows()); })) {
        return false;
    }
    for (int tic = 0; tic <= last; ++tic) {
        if (!Entered(tic).exact) {
            CheckRow(tic, moment);
        }
    }
    return true;
}

void frmSpecialScale::CheckRow(int tic, SetupMoment moment) {
    std::string text = Row(tic).deflection->Text();
    const DeflectionFault fault = CheckDeflection(Design, Scale(), tic, text);
    Row(tic).deflection->Write(text);
    if (fault != DeflectionFault::None) {
        Host.informationBox(MessageOf(fault, moment));
    }
}

// With what it gives back of the tic that was read into it.
SpecialRow frmSpecialScale::Entered(int tic) {
    SpecialRow row = Row(tic).Contents();
    if (const auto& read = read_.at(static_cast<std::size_t>(tic))) {
        if (row.deflection == read->shown.deflection) {
            row.exact = read->tic.deflection;
        }
        if (row.exact && row.label == read->shown.label && row.major == read->shown.major) {
            row.untouched = read->tic;
        }
    }
    return row;
}

std::array<SpecialRow, kSpecialRows> frmSpecialScale::EnteredRows() {
    std::array<SpecialRow, kSpecialRows> rows;
    for (int tic = 0; tic < kSpecialRows; ++tic) {
        rows.at(static_cast<std::size_t>(tic)) = Entered(tic);
    }
    return rows;
}

void frmSpecialScale::ApplySpecialTable() {
    ticmarksField_->Read(&ticmarks_);
    vernacle::ApplySpecialTable(Design, Scale(), ticmarks_, EnteredRows());
    std::string text;
    FormatByMagnitude(double{ticmarks_}, text);
    ticmarksField_->box->Write(text);
    ShowRows();
}

void frmSpecialScale::ShowRows() {
    const int last = Design.SpecialNrOfTicmarks[Scale()];
    for (int tic = 0; tic < kSpecialRows; ++tic) {
        const TicRow& row = Row(tic);
        for (QWidget* part :
             std::initializer_list<QWidget*>{row.major.frame, row.label, row.deflection}) {
            part->setVisible(tic <= last);
        }
        const QString number = tic <= last ? QString::number(tic) : QString();
        row.tic->setText(number + QLatin1String(tic == last ? " (top)" : ""));
    }
}

} // namespace vernacle
