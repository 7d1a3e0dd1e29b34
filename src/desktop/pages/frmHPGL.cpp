#include "desktop/pages/frmHPGL.h"

#include <QGridLayout>
#include <QHBoxLayout>

#include "desktop/kit/field.h"
#include "desktop/kit/formkit.h"
#include "desktop/kit/steppedentry.h"
#include "desktop/system/messages.h"
#include "desktop/system/printqueues.h"
#include "desktop/system/programfiles.h"
#include "engine/base/runtimeerror.h"
#include "engine/core/design.h"
#include "engine/core/service.h"
#include "engine/output/hpgl.h"
#include "engine/output/trueplot.h"

namespace vernacle {

namespace {

constexpr FieldRow kPen = {.box = "txtPenWidth",
                           .caption = "Width of the pens, mm:",
                           .place = At<&DesignRecord::PenWidth>,
                           .limits = kPenMm,
                           .unit = "mm",
                           .arrows = {"UpDownPenWidth", {kPenMm.lowest, kPenMm.highest, 0.1}}};

constexpr int kTextCharacters = 56; // width of the explanations

QLabel* MakeText(const char* name, const char* text) {
    QLabel* label = MakeLabel(name, QString::fromUtf8(text));
    label->setWordWrap(true);
    label->setMinimumWidth(label->fontMetrics().averageCharWidth() * kTextCharacters);
    return label;
}

} // namespace

frmHPGL::frmHPGL() : ModalForm("frmHPGL", QStringLiteral("Vernacle - HP-GL output")) {
    QPushButton* file = MakeButton("cmdHPGL", QStringLiteral("Write HP-GL file"));
    QPushButton* printer = MakeButton("cmdPCL", QStringLiteral("Send to PCL printer"));
    QPushButton* exit = MakeButton("cmdExit", QStringLiteral("Return"));
    connect(file, &QPushButton::clicked, this, &frmHPGL::cmdHPGLClicked);
    connect(printer, &QPushButton::clicked, this, &frmHPGL::cmdPCLClicked);
    connect(exit, &QPushButton::clicked, this, &QDialog::accept);

    auto* grid = new QGridLayout(this);
    grid->setSpacing(12);
    grid->addWidget(MakeHeading("lblHeading", QStringLiteral("HP-GL output")), 0, 0, 1, 2);
    grid->addWidget(file, 1, 0);
    grid->addWidget(MakeText("lblHPGL", "The plotter's commands as a file, true to size, to send "
                                        "to a plotter or to read into another program."),
                    1, 1);
    grid->addWidget(printer, 2, 0);
    grid->addWidget(MakeText("lblPCL", "The same commands, wrapped for a printer that knows PCL 5 "
                                       "and HP-GL/2, straight to the printer's port (LPT1) or its "
                                       "queue."),
                    2, 1);
    if (Service.truePlate) {
        grid->addWidget(MakePenWidth(), 3, 0, 1, 2);
    }
    grid->addWidget(exit, grid->rowCount(), 0, 1, 2, Qt::AlignRight);
    grid->setColumnStretch(1, 1);
}

QWidget* frmHPGL::MakePenWidth() {
    auto* field = new Field(kPen, *this);
    const FieldPointer place = kPen.place.In(Design);
    connect(field->box, &EntryBox::Changed, this, [field, place] { field->Take(place); });
    field->Fill(place);
    auto* entry = new QWidget;
    auto* line = new QHBoxLayout(entry);
    line->setContentsMargins({});
    line->addWidget(field->label);
    line->addWidget(new SteppedEntry(*field->box, field->arrows));
    line->addWidget(MakeText("lblPen", "Highlights are hatched with lines that far apart."), 1);
    return entry;
}

// A plate that cannot be plotted is told of by the plot itself.
bool frmHPGL::IsWanted() {
    if (!Service.truePlate) {
        return true;
    }
    std::string pens;
    try {
        pens = PenTable(Design);
    } catch (const RunTimeError&) {
        return true;
    }
    return AskToGoOn(pens);
}

void frmHPGL::cmdHPGLClicked() {
    if (!IsWanted()) {
        return;
    }
    WriteHpgl(Design, PlotterFileName(), HpglMode::File);
}

void frmHPGL::cmdPCLClicked() {
    if (!IsWanted()) {
        return;
    }
    const std::optional<PrintTarget> target = AskForPrintTarget(this);
    if (!target) {
        return;
    }
    const PrintTargetUse use(*target);
    WriteHpgl(Design, {}, HpglMode::PclPrinter);
}

} // namespace vernacle
