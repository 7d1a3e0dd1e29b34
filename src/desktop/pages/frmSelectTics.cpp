#include "desktop/pages/frmSelectTics.h"

#include <string_view>

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/kit/formkit.h"
#include "desktop/kit/optionbutton.h"
#include "desktop/pages/ticlist.h"
#include "engine/base/numbertext.h"
#include "engine/core/design.h"
#include "engine/scale/scale.h"

namespace vernacle {

namespace {

constexpr int kColumns = 55; // characters of a usual row, and room for the scroll bar
constexpr int kSmallestHeight = 300;

const char* const kDetails[] = {"lblData1", "lblData2", "lblData3", "lblData4",
                                "lblData5", "fraTics",  "fraLabels"};

QString Numbered(const char* text, int number) {
    return QString::fromStdString(text + PlainNumber(std::int32_t{number}));
}

} // namespace

struct frmSelectTics::Option {
    const char* frame;
    const char* name;
    const char* caption;
    std::string& (*flag)(DesignRecord& design, int scale, int tic);
    const char* value;
};

const frmSelectTics::Option frmSelectTics::kOptions[] = {
    {"fraTics", "optTicYes", "Yes", TicFlagOf, "Y"},
    {"fraTics", "optTicNo", "No", TicFlagOf, "N"},
    {"fraLabels", "optLabelYes", "Yes", LabelFlagOf, "Y"},
    {"fraLabels", "optLabelNo", "No", LabelFlagOf, "N"},
};

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
    lstTicsData_->setMinimumSize(kColumns * character, kSmallestHeight);
    lstTicsData_->OnChoose([this](int index) { RowChosen(index); });
    auto* list = new QVBoxLayout;
    list->addWidget(heading);
    list->addWidget(lstTicsData_, 1);
    auto* halves = new QHBoxLayout(this);
    halves->setSpacing(16);
    halves->addLayout(list, 1);
    halves->addLayout(MakeDetails());
    for (const char* instruction : {"Label2", "Label3", "Label4"}) {
        Label(instruction).setWordWrap(true);
    }
    SetDetailsVisible(false);
    Control("Label3").setEnabled(false);
    Control("Label4").setEnabled(false);
    resize(sizeHint().width(), TallHeight());
}

QLayout* frmSelectTics::MakeDetails() {
    auto* column = new QVBoxLayout;
    column->addWidget(
        MakeLabel("Label2", QStringLiteral("Click on a line of data at the left to edit it. ")));
    column->addSpacing(12);
    column->addWidget(MakeLabel("lblData1", QStringLiteral("Scale number:")));
    column->addWidget(MakeLabel("lblData2", QStringLiteral("Ticmark #:")));
    column->addLayout(MakeFlagLine("lblData3", "fraTics"));
    column->addWidget(MakeLabel("lblData4", QStringLiteral("Label:")));
    column->addLayout(MakeFlagLine("lblData5", "fraLabels"));
    column->addSpacing(12);
    column->addWidget(MakeLabel(
        "Label3",
        QStringLiteral("You may now select or de-select the tic and the label for that tic. ")));
    column->addWidget(MakeLabel(
        "Label4", QStringLiteral("To enter these choices into the system click on 'Accept'")));
    column->addStretch();
    QPushButton* accept = MakeButton("cmdAccept", QStringLiteral("Accept"));
    QPushButton* exit = MakeButton("cmdExit", QStringLiteral("Return to scale design page"));
    connect(accept, &QPushButton::clicked, this, &frmSelectTics::cmdAcceptClicked);
    connect(exit, &QPushButton::clicked, this, &frmSelectTics::cmdExitClicked);
    column->addWidget(accept);
    column->addWidget(exit);
    return column;
}

QLayout* frmSelectTics::MakeFlagLine(const char* label, const char* frame) {
    auto* line = new QHBoxLayout;
    line->addWidget(MakeLabel(label, QStringLiteral("Print:")));
    line->addWidget(MakeFlagFrame(frame), 1);
    return line;
}

QWidget* frmSelectTics::MakeFlagFrame(const char* name) {
    auto* frame = MakeFrame(name, {});
    auto* line = new QHBoxLayout(frame);
    for (const Option& option : kOptions) {
        if (option.frame == std::string_view(name)) {
            auto* button = new OptionButton(option.name, QString::fromUtf8(option.caption));
            button->OnSelect([this, &option] { OptionClicked(option); });
            line->addWidget(button);
        }
    }
    line->addStretch();
    return frame;
}

void frmSelectTics::FillTicList() {
    lstTicsData_->Fill(Design, SelectionRow);
    StandBehindRows(Design);
}

// The details are read back from the row. Row 0, which a click beside all rows chooses, is empty.
void frmSelectTics::RowChosen(int index) {
    const SelectedTic chosen = ReadSelectionRow(lstTicsData_->Row(index + 1));
    SetDetailsVisible(true);
    Design.CurrentScale = chosen.scale;
    Label("lblData1").setText(Numbered("Scale number: ", chosen.scale));
    Design.TicLoop = chosen.tic;
    Label("lblData2").setText(Numbered("Ticmark #: ", chosen.tic));
    Label("lblData3").setText(QStringLiteral("Print: "));
    Select(chosen.ticFlag == "Y" ? "optTicYes" : "optTicNo");
    ShowLabelOptions(!chosen.label.empty());
    Label("lblData4").setText(QStringLiteral("Label: ") + QString::fromStdString(chosen.label));
    Label("lblData5").setText(QStringLiteral("Print: "));
    Select(chosen.labelFlag == "Y" ? "optLabelYes" : "optLabelNo");
    Control("Label3").setEnabled(true);
}

void frmSelectTics::OptionClicked(const Option& option) {
    option.flag(Design, Design.CurrentScale, CurrentTic(Design)) = option.value;
    Control("cmdAccept").setVisible(true);
    Control("Label4").setEnabled(true);
}

// The flags are in the design already; the rows are made to show them.
void frmSelectTics::cmdAcceptClicked() {
    FillTicList();
    SetDetailsVisible(false);
    Control("cmdAccept").setVisible(false);
    Control("Label3").setEnabled(false);
    Control("Label4").setEnabled(false);
}

void frmSelectTics::cmdExitClicked() {
    CollectDeletedTics(Design);
    accept();
}

void frmSelectTics::ShowLabelOptions(bool shown) {
    for (const char* control : {"lblData4", "lblData5", "optLabelYes", "optLabelNo"}) {
        Control(control).setVisible(shown);
    }
}

void frmSelectTics::SetDetailsVisible(bool visible) {
    for (const char* control : kDetails) {
        Control(control).setVisible(visible);
    }
}

// One that is selected already runs no handler: nothing is selected that was not.
void frmSelectTics::Select(const char* option) {
    auto* button = findChild<OptionButton*>(QLatin1String(option));
    if (!button->isChecked()) {
        button->Select();
    }
}

QWidget& frmSelectTics::Control(const char* name) const {
    return *findChild<QWidget*>(QLatin1String(name));
}

QLabel& frmSelectTics::Label(const char* name) const {
    return *findChild<QLabel*>(QLatin1String(name));
}

} // namespace vernacle
