#include "desktop/setups/frmSpecialScale.h"

#include <algorithm>
#include <array>
#include <string>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/kit/entrybox.h"
#include "desktop/kit/formkit.h"
#include "desktop/kit/optionbutton.h"
#include "desktop/setups/rowtable.h"
#include "engine/base/hostservices.h"
#include "engine/base/numbertext.h"
#include "engine/core/design.h"
#include "engine/core/entry.h"

namespace vernacle {

namespace {

constexpr SetupPageTraits kTraits = {.form = "frmSpecialScale",
                                     .title = "Vernacle - Special scale setup",
                                     .heading = "Special scale setup",
                                     .acceptCaption = "Accept and return to Scales page",
                                     .ignoreCaption = "Ignore and return to Scales page",
                                     .computes = kAtLoad | kAtPreview | kAtAccept,
                                     .readsBack = true};

constexpr const char* kHeadings[] = {"Tic#:", "Deflection:", "Label:", "Major/minor?"};

constexpr const char* kRange = "The value for deflection must be 0 minimum to 1.0 maximum";

// The two paths say it differently.
std::string MessageOf(DeflectionFault fault, SetupMoment moment) {
    const bool stopped = fault == DeflectionFault::Above && moment == kAtPreview;
    return kRange + std::string(stopped ? "." : "");
}

} // namespace

frmSpecialScale::frmSpecialScale() : SetupPage(kTraits) {
    Build();
    EnterSetup();
}

void frmSpecialScale::Build() {
    auto* count = new QGridLayout;
    EntryBox* last = AddEntry(*count, "lblNrOfTicmarks", "Number of ticmarks:", "txtNrOfTicmarks");
    last->TellRange(RangeText(kLastRowLimits, "ticmarks"));
    last->OnChange([this] { ApplySpecialTable(); });
    QLabel* note = MakeLabel(
        "lblFullScale",
        QStringLiteral("Full-scale deflection is 1.0; for a \"blank\" label, use a space."));
    note->setWordWrap(true);
    QPushButton* preview = MakeButton("cmdPreview", QStringLiteral("Preview"));
    connect(preview, &QPushButton::clicked, this, &frmSpecialScale::ShowSetupPreview);
    auto* column = new QVBoxLayout;
    column->setSpacing(10);
    column->addLayout(count);
    column->addWidget(note);
    QPushButton* accept = MakeAccept();
    for (QPushButton* button : {preview, MakeIgnore(), accept}) {
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
    auto* table = new RowTable("tblTics", kHeadings);
    for (int row = 0; row < kSpecialRows; ++row) {
        const QString number = QString::number(row);
        auto* deflection = new EntryBox(RowName("txtDeflection", row).c_str(),
                                        QStringLiteral("Deflection of tic ") + number);
        deflection->TellRange(RangeText(kDeflectionLimits, "of full scale"));
        table->AddRow({MakeRowLabel("Tic", row), deflection,
                       new EntryBox(RowName("txtLabel", row).c_str(),
                                    QStringLiteral("Label of tic ") + number),
                       MakeRowChoice("fraMajorMinor", "Class of tic", {"Major", "Major"},
                                     {"Minor", "Minor"}, row)});
    }
    table->AlignHeadings();
    return table;
}

void frmSpecialScale::ReadBack() {
    const int scale = Scale();
    const int last = std::min<int>(Design.SpecialNrOfTicmarks[scale], kSpecialRows - 1);
    for (int row = 0; row <= last; ++row) {
        const bool major = Design.TicMajorYN[scale][row] == "Y";
        Option(RowName(major ? "Major" : "Minor", row).c_str()).ShowSelected();
        MendEmptyLabel(scale, row);
        Box(RowName("txtLabel", row).c_str()).Write(Design.TicLabelText[scale][row]);
        Box(RowName("txtDeflection", row).c_str())
            .Write(PlainNumber(Design.TicDeflection[scale][row]));
    }
}

void frmSpecialScale::ShowStored() {
    const std::int16_t last = Design.SpecialNrOfTicmarks[Scale()];
    Box("txtNrOfTicmarks").Write(PlainNumber(std::int32_t{last}));
}

void frmSpecialScale::CheckEntries(SetupMoment moment) {
    for (int row = 0; row <= Design.SpecialNrOfTicmarks[Scale()]; ++row) {
        EntryBox& box = Box(RowName("txtDeflection", row).c_str());
        std::string text = box.Text();
        const DeflectionFault fault = CheckDeflection(Scale(), row, text);
        box.Write(text);
        if (fault != DeflectionFault::None) {
            Host.informationBox(MessageOf(fault, moment));
        }
    }
}

void frmSpecialScale::ApplySpecialTable() {
    std::string text = Box("txtNrOfTicmarks").Text();
    ParseEntry(text, ticmarks_);
    std::array<SpecialRow, kSpecialRows> rows;
    for (int row = 0; row < kSpecialRows; ++row) {
        rows.at(static_cast<std::size_t>(row)) = RowAt(row);
    }
    vernacle::ApplySpecialTable(Scale(), ticmarks_, rows);
    FormatByMagnitude(double{ticmarks_}, text);
    Box("txtNrOfTicmarks").Write(text);
    ShowRows();
}

SpecialRow frmSpecialScale::RowAt(int row) const {
    return {.deflection = Box(RowName("txtDeflection", row).c_str()).Text(),
            .label = Box(RowName("txtLabel", row).c_str()).Text(),
            .major = AnswerIf(Option(RowName("Major", row).c_str()).isChecked())};
}

void frmSpecialScale::ShowRows() {
    const int last = Design.SpecialNrOfTicmarks[Scale()];
    for (int row = 0; row < kSpecialRows; ++row) {
        for (const char* part : {"fraMajorMinor", "txtLabel", "txtDeflection"}) {
            Control(RowName(part, row).c_str()).setVisible(row <= last);
        }
        QString text = row <= last ? QString::number(row) : QString();
        if (row == last) {
            text += QStringLiteral(" (top)");
        }
        findChild<QLabel*>(QString::fromStdString(RowName("Tic", row)))->setText(text);
    }
}

} // namespace vernacle
