#include "desktop/setups/frmSetupOhmmeter.h"

#include <algorithm>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/kit/field.h"
#include "desktop/kit/formkit.h"
#include "desktop/kit/optionbutton.h"
#include "desktop/setups/rowtable.h"
#include "engine/base/hostservices.h"
#include "engine/base/numbertext.h"
#include "engine/base/text.h"
#include "engine/core/design.h"
#include "engine/core/entry.h"
#include "engine/core/service.h"
#include "engine/setups/setup.h"

namespace vernacle {

namespace {

constexpr int kLastRow = 29; // that can be used
constexpr int kLastRemovable = 28;

constexpr SetupPageTraits kSetupOhmmeterTraits = {
    .kind = kOhmmeterKind,
    .form = "frmSetupOhmmeter",
    .title = "Vernacle - ohmmeter setup",
    .heading = "Ohmmeter setup",
    .acceptCaption = "Accept and return to Scale Design page",
    .ignoreCaption = "Ignore; just return to Scale Design page",
    .ignoreName = "cmdIgnoreAndReturn",
    .computes = kAtPreview | kAtAccept,
    .marking = Marking::ByComputing,
    .readsBack = true};

constexpr FieldRow kMidscale = {.box = "txtEnterMidscale",
                                .caption = "Enter midscale resistance value:"};
constexpr FieldRow kResistance = {.box = "txtEnterResistance",
                                  .caption = "Enter resistance to get deflection:"};

constexpr const char* kSetupOhmmeterHeadings[] = {"Tic#:", "Deflection:", "Label:", "Major/minor?"};

// The number as text that is an entry again: in its short form where all digits are too long.
std::string DeflectionText(float number) {
    if (Service.specialScales) {
        return EntryText(number);
    }
    constexpr std::size_t kLongestEntry = 10;
    std::string text = PlainNumber(number);
    if (text.size() > kLongestEntry) {
        FormatByMagnitude(double{number}, text);
    }
    return text;
}

void Enable(std::initializer_list<QWidget*> controls) {
    for (QWidget* control : controls) {
        control->setEnabled(true);
    }
}

void Disable(std::initializer_list<QWidget*> controls) {
    for (QWidget* control : controls) {
        control->setEnabled(false);
    }
}

} // namespace

frmSetupOhmmeter::frmSetupOhmmeter() : SetupPage(kSetupOhmmeterTraits) {
    Build();
    EnterSetup();
}

void frmSetupOhmmeter::Build() {
    auto* column = new QVBoxLayout;
    column->setSpacing(10);
    column->addLayout(MakeEntries());
    for (QPushButton* button : {MakePreview(), MakeIgnore(), MakeAccept()}) {
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
    resistance_->Disable();
    Disable({cmdComputeDeflection_, lblResultingDeflection_, cmdAddToList_, cmdIgnoreEntry_});
    if (!Service.specialScales) { // else what is edited can be accepted as it stands
        Disable({&Accept()});
    }
}

QLayout* frmSetupOhmmeter::MakeEntries() {
    auto* grid = new QGridLayout;
    grid->setSpacing(kEntrySpacing);
    const auto addButton = [this, grid](const char* name, const char* caption, auto clicked) {
        QPushButton* button = MakeButton(name, QString::fromUtf8(caption));
        connect(button, &QPushButton::clicked, this, clicked);
        grid->addWidget(button, grid->rowCount(), 0, 1, 2);
        return button;
    };
    const auto addField = [this, grid](const FieldRow& row, auto changed) {
        auto* field = new Field(row, *this);
        field->AddBoxTo(*grid, grid->rowCount());
        connect(field->box, &EntryBox::Changed, this, changed);
        GuardNumber(*field->box);
        return field;
    };
    midscale_ = addField(kMidscale, &frmSetupOhmmeter::txtEnterMidscaleChanged);
    resistance_ = addField(kResistance, &frmSetupOhmmeter::txtEnterResistanceChanged);
    if (Service.specialScales) {
        connect(midscale_->box, &EntryBox::returnPressed, resistance_->box,
                [this] { resistance_->box->setFocus(); });
        connect(resistance_->box, &EntryBox::returnPressed, this,
                &frmSetupOhmmeter::ResistanceReturned);
    }
    cmdComputeDeflection_ = addButton("cmdComputeDeflection", "Compute deflection",
                                      &frmSetupOhmmeter::cmdComputeDeflectionClicked);
    lblResultingDeflection_ = MakeLabel("lblResultingDeflection", {});
    grid->addWidget(lblResultingDeflection_, grid->rowCount(), 0, 1, 2);
    cmdAddToList_ =
        addButton("cmdAddToList", "Add to list", &frmSetupOhmmeter::cmdAddToListClicked);
    cmdIgnoreEntry_ =
        addButton("cmdIgnoreEntry", "Ignore", &frmSetupOhmmeter::cmdIgnoreEntryClicked);
    return grid;
}

RowTable* frmSetupOhmmeter::MakeTable() {
    auto* table = new RowTable("tblTics", kSetupOhmmeterHeadings);
    for (int row = 0; row < kRows; ++row) {
        const ListRow& made = Row(row) = MakeRow(row);
        GuardLabel(*made.label);
        made.ticClass.second->ShowSelected();
        table->AddRow({made.tic, made.deflection, made.label, made.ticClass.frame});
    }
    table->AlignHeadings();
    return table;
}

frmSetupOhmmeter::ListRow frmSetupOhmmeter::MakeRow(int row) {
    ListRow made{.tic = MakeButton(RowName("Tic", row).c_str(), QString::number(row)),
                 .deflection = MakeRowLabel("lblDeflection", row),
                 .label = new EntryBox(RowName("txtLabel", row).c_str(),
                                       QStringLiteral("Label of item %1").arg(row)),
                 .ticClass = MakeRowChoice("fraMajorMinor", "Class of item", {"Major", "Major"},
                                           {"Minor", "Minor"}, row)};
    made.tic->setAccessibleName(QStringLiteral("Remove item %1").arg(row));
    connect(made.tic, &QPushButton::clicked, this, [this, row] { TicClicked(row); });
    return made;
}

void frmSetupOhmmeter::ListRow::Write(const ResistanceRow& contents) {
    deflection->setText(QString::fromStdString(contents.deflection));
    label->Write(contents.label);
    ticClass.first->Unselect();
    ticClass.second->Unselect();
    if (contents.ticClass != TicClass::Undecided) {
        ticClass.Show(AnswerIf(contents.ticClass == TicClass::Major));
    }
    written = contents;
}

// What is exact stays so, as no one types a deflection here.
ResistanceRow frmSetupOhmmeter::ListRow::Contents() const {
    ResistanceRow contents{.deflection = deflection->text().toStdString(),
                           .label = label->Text(),
                           .ticClass = Class(),
                           .exact = written.exact};
    if (contents.label == written.label && contents.ticClass == written.ticClass) {
        contents.untouched = written.untouched;
    }
    return contents;
}

TicClass frmSetupOhmmeter::ListRow::Class() const {
    if (ticClass.first->isChecked()) {
        return TicClass::Major;
    }
    return ticClass.second->isChecked() ? TicClass::Minor : TicClass::Undecided;
}

// Zero ohms at full deflection, and no connection at none; the everyday label of that is a mark
// that the user replaces.
void frmSetupOhmmeter::StartAnew() {
    ListCount_ = 1;
    Row(0).Write({.deflection = "1", .label = "0", .ticClass = TicClass::Major});
    Row(1).Write({.deflection = "0",
                  .label = Service.specialScales ? "\u221E" : "1",
                  .ticClass = TicClass::Major});
}

void frmSetupOhmmeter::ReadBack() {
    const int scale = Scale();
    if (!Service.specialScales) {
        Design.LinearityExponent[scale] = 1;
    }
    ListCount_ = std::clamp<std::int16_t>(Design.SpecialNrOfTicmarks[scale], -1, kLastRow);
    for (int row = 0; row <= ListCount_; ++row) {
        const KeptTic stored = TicOf(Design, scale, row);
        if (!Service.specialScales) {
            MendEmptyLabel(Design, scale, row);
        }
        ResistanceRow shown{.deflection = DeflectionText(stored.deflection),
                            .label = Design.TicLabelText[scale][row],
                            .ticClass = stored.major == "Y" ? TicClass::Major : TicClass::Minor};
        if (Service.specialScales) {
            shown.exact = stored.deflection;
            shown.untouched = stored;
        }
        Row(row).Write(shown);
    }
}

void frmSetupOhmmeter::ComputeResistanceDeflection() {
    midscale_->Read(&EnteredMidscale_);
    resistance_->Read(&EnteredResistance_);
    if (Service.specialScales && !HasDigit(resistance_->box->Text())) {
        throw ImpossibleEntry("There is no resistance.\nPlease enter one, as 4.7k or 330.");
    }
    ResultingDeflection_ =
        vernacle::ComputeResistanceDeflection(EnteredMidscale_, EnteredResistance_);
    if (Service.specialScales) {
        ResultingDeflectionText_ = EntryText(ResultingDeflection_);
    } else {
        FormatByMagnitude(double{ResultingDeflection_}, ResultingDeflectionText_);
        ResultingDeflectionText_ = Trimmed(ResultingDeflectionText_);
    }
    lblResultingDeflection_->setText(
        QString::fromStdString("Deflection:  " + ResultingDeflectionText_));
    Enable({cmdAddToList_, cmdIgnoreEntry_});
}

void frmSetupOhmmeter::LayOutResistanceRows() {
    for (int row = 0; row < kRows; ++row) {
        const ListRow& parts = Row(row);
        for (QWidget* part : std::initializer_list<QWidget*>{parts.tic, parts.deflection,
                                                             parts.ticClass.frame, parts.label}) {
            part->setVisible(row <= ListCount_);
        }
    }
}

void frmSetupOhmmeter::StoreResistanceList() {
    std::vector<ResistanceRow> rows;
    for (int row = 0; row <= ListCount_; ++row) {
        rows.push_back(Row(row).Contents());
    }
    vernacle::StoreResistanceList(Design, Scale(), rows);
}

void frmSetupOhmmeter::txtEnterMidscaleChanged() {
    if (Service.specialScales) {
        ForgetResult(); // it was that of another midscale
    }
    resistance_->Enable();
    Enable({lblResultingDeflection_});
}

// What was computed is not that resistance's any more.
void frmSetupOhmmeter::txtEnterResistanceChanged() {
    ForgetResult();
    Enable({cmdComputeDeflection_});
}

void frmSetupOhmmeter::cmdComputeDeflectionClicked() {
    ForgetResult();
    ComputeOrReport([this] { ComputeResistanceDeflection(); });
}

void frmSetupOhmmeter::ForgetResult() {
    lblResultingDeflection_->clear();
    Disable({cmdAddToList_, cmdIgnoreEntry_});
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
    ListRow& row = Row(ListCount_);
    row.tic->setText(QString::number(ListCount_));
    row.deflection->setText(QString::fromStdString(ResultingDeflectionText_));
    row.label->Write(resistance_->box->Text());
    row.written = {};
    if (Service.specialScales) {
        row.written.exact = ResultingDeflection_;
        row.ticClass.Show(Answer::No); // minor
    }
    resistance_->box->Write({});
    ForgetResult();
    Disable({cmdComputeDeflection_});
    Enable({&Accept()});
    LayOutResistanceRows();
}

void frmSetupOhmmeter::cmdIgnoreEntryClicked() {
    resistance_->box->Write({});
    lblResultingDeflection_->clear();
}

// Computes and adds in one go: the next resistance is typed at once.
void frmSetupOhmmeter::ResistanceReturned() {
    if (cmdComputeDeflection_->isEnabled()) {
        cmdComputeDeflectionClicked();
    }
    if (cmdAddToList_->isEnabled()) {
        cmdAddToListClicked();
    }
}

bool frmSetupOhmmeter::CheckEntries(SetupMoment /*moment*/) {
    if (!Service.specialScales || ListCount_ >= 0) {
        return true;
    }
    ReportFailure("The list is empty.\nPlease add a resistance to it.");
    return false;
}

void frmSetupOhmmeter::ShowSetupPreview() {
    SetupPage::ShowSetupPreview();
    Enable({&Accept()});
}

// The numbers move along with their rows: the place counts, the number only tells.
void frmSetupOhmmeter::TicClicked(int row) {
    if (row > kLastRemovable) {
        Host.informationBox("With 29 items please do not delete the last item.");
        return;
    }
    for (int moved = row; moved <= ListCount_; ++moved) {
        Row(moved).tic->setText(Row(moved + 1).tic->text());
        Row(moved).Write(Row(moved + 1).Contents());
    }
    --ListCount_;
    LayOutResistanceRows();
}

} // namespace vernacle
