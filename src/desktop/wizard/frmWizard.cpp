#include "desktop/wizard/frmWizard.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/kit/field.h"
#include "desktop/kit/formkit.h"
#include "desktop/kit/picturebox.h"
#include "desktop/navigation/navigator.h"
#include "desktop/navigation/session.h"
#include "engine/base/hostservices.h"
#include "engine/core/design.h"
#include "engine/illustrations/schematic.h"
#include "engine/wizard/wizardsteps.h"

namespace vernacle {

namespace {

constexpr int kPromptLines = 6;

// The parts of a step but for its box, by its number from 1.
QString StepName(const char* part, int step) {
    return QStringLiteral("%1%2").arg(QLatin1String(part)).arg(step + 1);
}

int StepCount() {
    return static_cast<int>(WizardSteps().size());
}

const WizardStep& StepAt(int step) {
    return WizardSteps()[static_cast<std::size_t>(step)];
}

} // namespace

frmWizard::frmWizard() : Page("frmWizard") {
    setWindowTitle(QStringLiteral("Vernacle - Design Wizard Part 1"));
    Build();
    Design.HelpTopic = 1;
    ShowPrompt();
}

void frmWizard::Build() {
    Body().addWidget(MakeHeading("lblHeading", QStringLiteral("Design Wizard - Part 1")));
    auto* grid = new QGridLayout;
    grid->setSpacing(kEntrySpacing);
    for (int step = 0; step < StepCount(); ++step) {
        AddStep(*grid, step);
    }
    Label2_ = MakeLabel("Label2", QString::fromUtf8(kWizardEndText));
    Label2_->setWordWrap(true);
    Label2_->hide();
    QPushButton* accept = MakeButton("cmdAccept", QStringLiteral("Accept and go to Part 2"));
    QPushButton* exit = MakeButton("cmdExit", QStringLiteral("Restart program"));
    connect(accept, &QPushButton::clicked, this, &frmWizard::cmdAcceptClicked);
    connect(exit, &QPushButton::clicked, this, &frmWizard::cmdExitClicked);
    auto* list = new QVBoxLayout;
    list->addLayout(grid);
    list->addWidget(Label2_);
    list->addStretch();

    Label1_ = MakeLabel("Label1", {});
    Label1_->setWordWrap(true);
    Label1_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    Label1_->setMinimumHeight(kPromptLines * Label1_->fontMetrics().lineSpacing());
    schematic_ = new PictureBox("picSchematic", SchematicArea(), UnitShape::Square);
    schematic_->setAccessibleName(QStringLiteral("What the value means"));
    auto* side = new QVBoxLayout;
    side->addWidget(Label1_);
    side->addWidget(schematic_, 1);
    auto* halves = new QHBoxLayout;
    halves->setSpacing(16);
    halves->addLayout(list);
    halves->addLayout(side, 1);
    Body().addLayout(halves, 1);
    auto* ways = new QHBoxLayout; // on: in sight however many steps there are
    ways->addWidget(accept);
    ways->addWidget(exit);
    ways->addStretch();
    Foot().addLayout(ways);
    ShowStep(0);
}

// Hidden until its turn comes.
void frmWizard::AddStep(QGridLayout& grid, int step) {
    const WizardStep& row = StepAt(step);
    const StepRow made{.field = new Field({.box = row.box, .caption = row.caption}, *this),
                       .enter = MakeButton(StepName("cmdEnter", step).toLatin1().constData(),
                                           QStringLiteral("Enter"))};
    made.field->label->setObjectName(StepName("lblStep", step));
    made.field->AddBoxTo(grid, step);
    made.enter->setAccessibleName(QStringLiteral("Enter ") + made.field->label->text());
    grid.addWidget(made.enter, step, 2);
    connect(made.enter, &QPushButton::clicked, this, [this, step] { EnterClicked(step); });
    connect(made.field->box, &QLineEdit::returnPressed, made.enter, &QPushButton::click);
    for (QWidget* part :
         std::initializer_list<QWidget*>{made.field->label, made.field->box, made.enter}) {
        part->hide();
    }
    rows_.push_back(made);
}

void frmWizard::ShowPrompt() {
    constexpr int kHighestTopic = 25;
    if (Design.HelpTopic < 1 || Design.HelpTopic > kHighestTopic) {
        return;
    }
    DrawSchematic(schematic_->Surface(), Design.HelpTopic, kWizardLook);
    Label1_->setText(QString::fromStdString(WizardPrompt(Design, Design.HelpTopic)));
}

void frmWizard::EnterClicked(int step) {
    const WizardStep& row = StepAt(step);
    EntryBox& box = BoxOf(step);
    if (const auto refusal = EnterWizardStep(Design, row, box.Text())) {
        Host.informationBox(*refusal);
        box.Write({});
        box.setFocus();
        return;
    }
    box.Write(WizardValue(Design, row));
    if (step + 1 == StepCount()) {
        Label2_->show();
    } else {
        ShowStep(step + 1);
        BoxOf(step + 1).setFocus();
    }
    Row(step).enter->setEnabled(false);
    schematic_->Surface().Clear();
    Label1_->clear();
    Design.HelpTopic = static_cast<std::int16_t>(row.nextTopic);
    ShowPrompt();
}

void frmWizard::cmdAcceptClicked() {
    for (const int step : WizardReadingOrder()) {
        ReadWizardStep(Design, StepAt(step), BoxOf(step).Text());
    }
    RepairWizardDesign(Design);
    GoToPage("frmWizardPart2");
}

// The opening page's buttons replace the design anyway.
void frmWizard::cmdExitClicked() {
    GoToPage("frmOpening");
}

void frmWizard::CloseBoxClicked() {
    SaveSessionAndEnd();
}

void frmWizard::ShowStep(int step) {
    Row(step).field->label->show();
    Row(step).enter->show();
    BoxOf(step).TellRange(WizardRange(Design, StepAt(step))); // which earlier steps may decide
    BoxOf(step).show();
}

EntryBox& frmWizard::BoxOf(int step) const {
    return *Row(step).field->box;
}

} // namespace vernacle
