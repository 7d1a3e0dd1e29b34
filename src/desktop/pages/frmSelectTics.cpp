#include "desktop/pages/frmSelectTics.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/kit/formkit.h"
#include "desktop/kit/optionbutton.h"
#include "desktop/pages/ticlist.h"
#include "engine/base/numbertext.h"
#include "engine/core/design.h"
#include "engine/core/service.h"
#include "engine/scale/scale.h"

namespace vernacle {

namespace {

constexpr int kSelectTicsColumns = 55; // characters of a usual row, and room for the scroll bar
constexpr int kSmallestHeight = 300;

QString Numbered(const char* text, int number) {
    return QString::fromStdString(text + PlainNumber(std::int32_t{number}));
}

QLabel* MakeInstruction(const char* name, const char* text) {
    QLabel* label = MakeLabel(name, QString::fromUtf8(text));
    label->setWordWrap(true);
    return label;
}

} // namespace

frmSelectTics::frmSelectTics()
    : ModalForm("frmSelectTics", QStringLiteral("Vernacle - select tics")) {
    Build();
    FillTicList();
}

void frmSelectTics::Build() {
    auto* heading = MakeLabel(
        "Label1",
        QStringLiteral("  Scale:      Tic #:        Print tic:       Label:      Print label:"));
    lstTicsData_ = new TicList(heading->text());
    const int character = lstTicsData_->fontMetrics().horizontalAdvance(QLatin1Char('0'));
    lstTicsData_->setMinimumSize(kSelectTicsColumns * character, kSmallestHeight);
    connect(lstTicsData_, &RowList::Chosen, this, &frmSelectTics::RowChosen);
    auto* list = new QVBoxLayout;
    list->addWidget(heading);
    list->addWidget(lstTicsData_, 1);
    auto* halves = new QHBoxLayout(this);
    halves->setSpacing(16);
    halves->addLayout(list, 1);
    halves->addLayout(MakeDetails());
    SetDetailsVisible(false);
    Label3_->setEnabled(false);
    Label4_->setEnabled(false);
    resize(sizeHint().width(), TallHeight());
}

QLayout* frmSelectTics::MakeDetails() {
    auto* column = new QVBoxLayout;
    column->addWidget(
        MakeInstruction("Label2", "Click on a line of data at the left to edit it. "));
    column->addSpacing(12);
    lblData1_ = MakeLabel("lblData1", QStringLiteral("Scale number:"));
    lblData2_ = MakeLabel("lblData2", QStringLiteral("Ticmark #:"));
    lblData3_ = MakeLabel("lblData3", QStringLiteral("Print:"));
    lblData4_ = MakeLabel("lblData4", QStringLiteral("Label:"));
    lblData5_ = MakeLabel("lblData5", QStringLiteral("Print:"));
    tic_ = MakeFlag("fraTics", "optTicYes", "optTicNo", TicFlagOf);
    label_ = MakeFlag("fraLabels", "optLabelYes", "optLabelNo", LabelFlagOf);
    column->addWidget(lblData1_);
    column->addWidget(lblData2_);
    column->addLayout(FlagLine(*lblData3_, tic_));
    column->addWidget(lblData4_);
    column->addLayout(FlagLine(*lblData5_, label_));
    column->addSpacing(12);
    Label3_ = MakeInstruction(
        "Label3", "You may now select or de-select the tic and the label for that tic. ");
    Label4_ = MakeInstruction("Label4", "To enter these choices into the system click on 'Accept'");
    column->addWidget(Label3_);
    column->addWidget(Label4_);
    column->addStretch();
    cmdAccept_ = MakeButton("cmdAccept", QStringLiteral("Accept"));
    QPushButton* exit = MakeButton("cmdExit", QStringLiteral("Return to scale design page"));
    connect(cmdAccept_, &QPushButton::clicked, this, &frmSelectTics::cmdAcceptClicked);
    connect(exit, &QPushButton::clicked, this, &frmSelectTics::cmdExitClicked);
    column->addWidget(cmdAccept_);
    column->addWidget(exit);
    return column;
}

QLayout* frmSelectTics::FlagLine(QLabel& label, const Flag& flag) {
    auto* line = new QHBoxLayout;
    line->addWidget(&label);
    line->addWidget(flag.frame, 1);
    return line;
}

frmSelectTics::Flag frmSelectTics::MakeFlag(const char* frame, const char* yes, const char* no,
                                            FlagFinder* flag) {
    Flag made{MakeFrame(frame, {}), new OptionButton(yes, QStringLiteral("Yes")),
              new OptionButton(no, QStringLiteral("No"))};
    connect(made.yes, &OptionButton::Selected, this, [this, flag] { OptionClicked(*flag, "Y"); });
    connect(made.no, &OptionButton::Selected, this, [this, flag] { OptionClicked(*flag, "N"); });
    auto* line = new QHBoxLayout(made.frame);
    line->addWidget(made.yes);
    line->addWidget(made.no);
    line->addStretch();
    return made;
}

void frmSelectTics::FillTicList() {
    lstTicsData_->Fill(Design, SelectionRow);
    StandBehindRows(Design);
}

// The details are read back from the row, whose places long labels move: where several scales are
// in service, from the design. Row 0, which a click beside all rows chooses, is empty.
void frmSelectTics::RowChosen(int index) {
    if (!Service.severalScales) {
        ShowTic(ReadSelectionRow(lstTicsData_->Row(index + 1)));
    } else if (const auto chosen = TicOfRow(Design, index + 1)) {
        ShowTic(*chosen);
    }
}

void frmSelectTics::ShowTic(const SelectedTic& chosen) {
    SetDetailsVisible(true);
    Design.CurrentScale = chosen.scale;
    lblData1_->setText(Numbered("Scale number: ", chosen.scale));
    Design.TicLoop = chosen.tic;
    lblData2_->setText(Numbered("Ticmark #: ", chosen.tic));
    lblData3_->setText(QStringLiteral("Print: "));
    Select(chosen.ticFlag == "Y" ? *tic_.yes : *tic_.no);
    ShowLabelOptions(!chosen.label.empty());
    lblData4_->setText(QStringLiteral("Label: ") + QString::fromStdString(chosen.label));
    lblData5_->setText(QStringLiteral("Print: "));
    Select(chosen.labelFlag == "Y" ? *label_.yes : *label_.no);
    Label3_->setEnabled(true);
}

void frmSelectTics::OptionClicked(FlagFinder& flag, const char* value) {
    flag(Design, Design.CurrentScale, CurrentTic(Design)) = value;
    cmdAccept_->setVisible(true);
    Label4_->setEnabled(true);
}

// The flags are in the design already; the rows are made to show them.
void frmSelectTics::cmdAcceptClicked() {
    FillTicList();
    SetDetailsVisible(false);
    cmdAccept_->setVisible(false);
    Label3_->setEnabled(false);
    Label4_->setEnabled(false);
}

void frmSelectTics::cmdExitClicked() {
    CollectDeletedTics(Design);
    accept();
}

void frmSelectTics::ShowLabelOptions(bool shown) {
    for (QWidget* part :
         std::initializer_list<QWidget*>{lblData4_, lblData5_, label_.yes, label_.no}) {
        part->setVisible(shown);
    }
}

void frmSelectTics::SetDetailsVisible(bool visible) {
    for (QWidget* part : std::initializer_list<QWidget*>{lblData1_, lblData2_, lblData3_, lblData4_,
                                                         lblData5_, tic_.frame, label_.frame}) {
        part->setVisible(visible);
    }
}

// One that is selected already runs no handler: nothing is selected that was not.
void frmSelectTics::Select(OptionButton& option) {
    if (!option.isChecked()) {
        option.Select();
    }
}

} // namespace vernacle
