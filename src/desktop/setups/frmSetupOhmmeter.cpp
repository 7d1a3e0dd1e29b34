#include "desktop/setups/frmSetupOhmmeter.h"

#include <algorithm>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/kit/entrybox.h"
#include "desktop/kit/formkit.h"
#include "desktop/kit/optionbutton.h"
#include "desktop/setups/rowtable.h"
#include "engine/base/hostservices.h"
#include "engine/base/numbertext.h"
#include "engine/base/text.h"
#include "engine/core/design.h"
#include "engine/core/entry.h"
#include "engine/setups/setup.h"

namespace vernacle {

namespace {

constexpr int kRows = 31;    // the last is never shown: a removed row takes its contents
constexpr int kLastRow = 29; // that can be used
constexpr int kLastRemovable = 28;

constexpr SetupPageTraits kTraits = {.form = "frmSetupOhmmeter",
                                     .title = "Vernacle - ohmmeter setup",
                                     .heading = "Ohmmeter setup",
                                     .acceptCaption = "Accept and return to Scale Design page",
                                     .ignoreCaption = "Ignore; just return to Scale Design page",
                                     .ignoreName = "cmdIgnoreAndReturn",
                                     .computes = kAtPreview | kAtAccept,
                                     .marking = Marking::ByComputing,
                                     .readsBack = true};

constexpr const char* kHeadings[] = {"Tic#:", "Deflection:", "Label:", "Major/minor?"};

// The number as text that is an entry again: in its short form where all digits are too long.
std::string EntryTextOf(float number) {
    constexpr std::size_t kLongestEntry = 10;
    std::string text = PlainNumber(number);
    if (text.size() > kLongestEntry) {
        FormatByMagnitude(double{number}, text);
    }
    return text;
}

} // namespace

frmSetupOhmmeter::frmSetupOhmmeter() : SetupPage(kTraits) {
    Build();
    EnterSetup();
}

void frmSetupOhmmeter::Build() {
    auto* column = new QVBoxLayout;
    column->setSpacing(10);
    column->addLayout(MakeEntries());
    QPushButton* preview = MakeButton("cmdPreview", QStringLiteral("Preview"));
    connect(preview, &QPushButton::clicked, this, &frmSetupOhmmeter::cmdPreviewClicked);
    QPushButton* accept = MakeAccept();
    for (QPushButton* button : {preview, MakeIgnore(), accept}) {
        column->addWidget(button);
    }
    column->addStretch();
    auto* list = new QVBoxLayout;
    list->addWidget(
        MakeLabel("lblClickToRemoveItem", QStringLiteral("To remove an item click on its Tic#.")));
    list->addWidget(
        MakeLabel("lblRemoveLabel", QStringLiteral("Each label may be edited or removed")));
    list->addWidget(MakeTable(), 1);
    auto* halves = new QHBoxLayout;
    halves->setSpacing(16);
    halves->addLayout(column);
    halves->addLayout(list, 1);
    Body().addLayout(halves, 1);
    SetEnabled({"lblEnterResistance", "txtEnterResistance", "cmdComputeDeflection",
                "lblResultingDeflection", "cmdAddToList", "cmdIgnoreEntry", "cmdAccept"},
               false);
}

QLayout* frmSetupOhmmeter::MakeEntries() {
    auto* grid = new QGridLayout;
    grid->setSpacing(kEntrySpacing);
    const auto addButton = [this, grid](const char* name, const char* caption, auto clicked) {
        QPushButton* button = MakeButton(name, QString::fromUtf8(caption));
        connect(button, &QPushButton::clicked, this, clicked);
        grid->addWidget(button, grid->rowCount(), 0, 1, 2);
    };
    AddEntry(*grid, "lblEnterMidscale", "Enter midscale resistance value:", "txtEnterMidscale")
        ->OnChange([this] { txtEnterMidscaleChanged(); });
    AddEntry(*grid, "lblEnterResistance",
             "Enter resistance to get deflection:", "txtEnterResistance")
        ->OnChange([this] { txtEnterResistanceChanged(); });
    addButton("cmdComputeDeflection", "Compute deflection",
              &frmSetupOhmmeter::cmdComputeDeflectionClicked);
    lblResultingDeflection_ = MakeLabel("lblResultingDeflection", {});
    grid->addWidget(lblResultingDeflection_, grid->rowCount(), 0, 1, 2);
    addButton("cmdAddToList", "Add to list", &frmSetupOhmmeter::cmdAddToListClicked);
    addButton("cmdIgnoreEntry", "Ignore", &frmSetupOhmmeter::cmdIgnoreEntryClicked);
    return grid;
}

RowTable* frmSetupOhmmeter::MakeTable() {
    auto* table = new RowTable("tblTics", kHeadings);
    for (int row = 0; row < kRows; ++row) {
        QPushButton* tic = MakeButton(RowName("Tic", row).c_str(), QString::number(row));
        tic->setAccessibleName(QStringLiteral("Remove item %1").arg(row));
        connect(tic, &QPushButton::clicked, this, [this, row] { TicClicked(row); });
        auto* label = new EntryBox(RowName("txtLabel", row).c_str(),
                                   QStringLiteral("Label of item %1").arg(row));
        table->AddRow({tic, MakeRowLabel("lblDeflection", row), label,
                       MakeRowChoice("fraMajorMinor", "Class of item", {"Major", "Major"},
                                     {"Minor", "Minor"}, row)});
    }
    for (int row = 0; row < kRows; ++row) {
        table->findChild<OptionButton*>(QString::fromStdString(RowName("Minor", row)))
            ->ShowSelected();
    }
    table->AlignHeadings();
    return table;
}

// Zero ohms at full deflection, and what the user replaces by a mark for no connection at none.
void frmSetupOhmmeter::StartAnew() {
    ListCount_ = 1;
    SetRow(0, {.deflection = "1", .label = "0", .ticClass = TicClass::Major});
    SetRow(1, {.deflection = "0", .label = "1", .ticClass = TicClass::Major});
    for (int row = 0; row <= ListCount_; ++row) {
        TicOf(row).setText(QString::number(row));
    }
}

void frmSetupOhmmeter::ReadBack() {
    const int scale = Scale();
    Design.LinearityExponent[scale] = 1;
    ListCount_ = std::clamp<std::int16_t>(Design.SpecialNrOfTicmarks[scale], -1, kLastRow);
    for (int row = 0; row <= ListCount_; ++row) {
        MendEmptyLabel(scale, row);
        const bool major = Design.TicMajorYN[scale][row] == "Y";
        TicOf(row).setText(QString::number(row));
        SetRow(row, {.deflection = EntryTextOf(Design.TicDeflection[scale][row]),
                     .label = Design.TicLabelText[scale][row],
                     .ticClass = major ? TicClass::Major : TicClass::Minor});
    }
}

void frmSetupOhmmeter::ComputeResistanceDeflection() {
    std::string text = Box("txtEnterMidscale").Text();
    ParseEntry(text, EnteredMidscale_);
    text = Box("txtEnterResistance").Text();
    ParseEntry(text, EnteredResistance_);
    const float deflection =
        vernacle::ComputeResistanceDeflection(EnteredMidscale_, EnteredResistance_);
    FormatByMagnitude(double{deflection}, ResultingDeflectionText_);
    ResultingDeflectionText_ = Trimmed(ResultingDeflectionText_);
    lblResultingDeflection_->setText(
        QString::fromStdString("Deflection:  " + ResultingDeflectionText_));
    SetEnabled({"cmdAddToList", "cmdIgnoreEntry"}, true);
}

void frmSetupOhmmeter::LayOutResistanceRows() {
    for (int row = 0; row < kRows; ++row) {
        SetRowVisible(row, row <= ListCount_);
    }
}

void frmSetupOhmmeter::StoreResistanceList() {
    std::vector<ResistanceRow> rows;
    for (int row = 0; row <= ListCount_; ++row) {
        rows.push_back(RowAt(row));
    }
    vernacle::StoreResistanceList(Scale(), rows);
}

void frmSetupOhmmeter::txtEnterMidscaleChanged() {
    SetEnabled({"lblEnterResistance", "txtEnterResistance", "lblResultingDeflection"}, true);
}

// What was computed is not that resistance's any more.
void frmSetupOhmmeter::txtEnterResistanceChanged() {
    lblResultingDeflection_->clear();
    SetEnabled({"cmdComputeDeflection"}, true);
    SetEnabled({"cmdAddToList", "cmdIgnoreEntry"}, false);
}

void frmSetupOhmmeter::cmdComputeDeflectionClicked() {
    lblResultingDeflection_->clear();
    SetEnabled({"cmdAddToList", "cmdIgnoreEntry"}, false); // until there is a result again
    ComputeOrReport([this] { ComputeResistanceDeflection(); });
}

void frmSetupOhmmeter::cmdAddToListClicked() {
    ++ListCount_;
    if (ListCount_ <= kLastRow) {
        AddRow();
        return;
    }
    ListCount_ = kLastRow;
    Host.informationBox("Only 29 ticmarks are allowed in this routine");
}

void frmSetupOhmmeter::AddRow() {
    TicOf(ListCount_).setText(QString::number(ListCount_));
    DeflectionOf(ListCount_).setText(QString::fromStdString(ResultingDeflectionText_));
    LabelOf(ListCount_).Write(Box("txtEnterResistance").Text());
    Box("txtEnterResistance").Write({});
    lblResultingDeflection_->clear();
    SetEnabled({"cmdComputeDeflection", "cmdAddToList", "cmdIgnoreEntry"}, false);
    SetEnabled({"cmdAccept"}, true);
    LayOutResistanceRows();
}

void frmSetupOhmmeter::cmdIgnoreEntryClicked() {
    Box("txtEnterResistance").Write({});
    lblResultingDeflection_->clear();
}

void frmSetupOhmmeter::cmdPreviewClicked() {
    ShowSetupPreview();
    SetEnabled({"cmdAccept"}, true);
}

// The numbers move along with their rows: the place counts, the number only tells.
void frmSetupOhmmeter::TicClicked(int row) {
    if (row > kLastRemovable) {
        Host.informationBox("With 29 items please do not delete the last item.");
        return;
    }
    for (int moved = row; moved <= ListCount_; ++moved) {
        TicOf(moved).setText(TicOf(moved + 1).text());
        SetRow(moved, RowAt(moved + 1));
    }
    SetRowVisible(ListCount_, false);
    --ListCount_;
    LayOutResistanceRows();
}

void frmSetupOhmmeter::SetRow(int row, const ResistanceRow& contents) {
    DeflectionOf(row).setText(QString::fromStdString(contents.deflection));
    LabelOf(row).Write(contents.label);
    Option(RowName("Major", row).c_str()).Unselect();
    Option(RowName("Minor", row).c_str()).Unselect();
    if (contents.ticClass != TicClass::Undecided) {
        const char* option = contents.ticClass == TicClass::Major ? "Major" : "Minor";
        Option(RowName(option, row).c_str()).ShowSelected();
    }
}

ResistanceRow frmSetupOhmmeter::RowAt(int row) const {
    const auto isSelected = [this, row](const char* option) {
        return Option(RowName(option, row).c_str()).isChecked();
    };
    TicClass ticClass = TicClass::Undecided;
    if (isSelected("Major")) {
        ticClass = TicClass::Major;
    } else if (isSelected("Minor")) {
        ticClass = TicClass::Minor;
    }
    return {.deflection = DeflectionOf(row).text().toStdString(),
            .label = LabelOf(row).Text(),
            .ticClass = ticClass};
}

void frmSetupOhmmeter::SetRowVisible(int row, bool visible) {
    for (const char* part : {"Tic", "lblDeflection", "fraMajorMinor", "txtLabel"}) {
        Control(RowName(part, row).c_str()).setVisible(visible);
    }
}

void frmSetupOhmmeter::SetEnabled(std::initializer_list<const char*> controls, bool enabled) {
    for (const char* control : controls) {
        Control(control).setEnabled(enabled);
    }
}

QPushButton& frmSetupOhmmeter::TicOf(int row) const {
    return *findChild<QPushButton*>(QString::fromStdString(RowName("Tic", row)));
}

QLabel& frmSetupOhmmeter::DeflectionOf(int row) const {
    return *findChild<QLabel*>(QString::fromStdString(RowName("lblDeflection", row)));
}

EntryBox& frmSetupOhmmeter::LabelOf(int row) const {
    return Box(RowName("txtLabel", row).c_str());
}

} // namespace vernacle
