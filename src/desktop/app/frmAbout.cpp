#include "desktop/app/frmAbout.h"

#include <QIcon>
#include <QVBoxLayout>

#include "desktop/kit/formkit.h"
#include "engine/core/design.h"
#include "engine/core/service.h"

namespace vernacle {

namespace {

constexpr int kIconSize = 64;

constexpr const char* kDescription =
    "Vernacle draws the printed scale plates of analog panel meters.\n\n"
    "Measure the plate and the movement, say where the pointer's bearing stands, how far it "
    "swings and what the scale reads, and get a true-size plate to cut out and fit behind the "
    "pointer: on the screen, on paper, or as HP-GL for a plotter.";

// What a program has besides, where that is in service.
struct Feature {
    LiftedBy liftedBy;
    const char* text;
};

using S = ServiceState;

// clang-format off
constexpr Feature kFeatures[] = {
    {&S::severalScales, "Up to six scales on one plate, each with its own colour."},
    {&S::specialScales, "Decibel and VU, ohmmeter, S-meter and VSWR scales, and any other from a table."},
    {&S::curveInFile,   "The curve of a movement that is not linear."},
    {&S::reserveStages, "Coloured zones, free texts and a maker's mark."},
    {&S::styles,        "Quadrant and round plates, coloured grounds, any font."},
    {&S::truePlate,     "Line widths and letters true to size in every medium."},
    {&S::carefulFiles,  "Undo for every step, and files that lose nothing."},
};
// clang-format on

QString Description() {
    QString text = QString::fromUtf8(kDescription);
    const char* parting = "\n\n";
    for (const Feature& feature : kFeatures) {
        if (IsLifted(feature.liftedBy)) {
            text += QLatin1String(parting) + QStringLiteral("\u2022 ") +
                    QString::fromUtf8(feature.text);
            parting = "\n";
        }
    }
    return text;
}

} // namespace

frmAbout::frmAbout()
    : ModalForm("frmAbout", QStringLiteral("About ") + QString::fromUtf8(ServiceName())) {
    auto* picture = MakeLabel("picIcon", {});
    picture->setPixmap(windowIcon().pixmap(kIconSize));
    picture->setAccessibleName(QStringLiteral("The program's icon"));
    QLabel* description = MakeLabel("lblDescription", Description());
    description->setWordWrap(true);
    description->setMinimumWidth(description->fontMetrics().averageCharWidth() * 60);
    QPushButton* ok = MakeButton("cmdOK", QStringLiteral("OK"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);

    auto* column = new QVBoxLayout(this);
    column->setSpacing(12);
    column->addWidget(picture, 0, Qt::AlignHCenter);
    column->addWidget(MakeHeading("lblTitle", QString::fromStdString(Design.ProgramName)), 0,
                      Qt::AlignHCenter);
    column->addWidget(MakeLabel("lblVersion", QString::fromStdString(Design.VersionText)), 0,
                      Qt::AlignHCenter);
    column->addWidget(description);
    column->addWidget(ok, 0, Qt::AlignHCenter);
    setFixedSize(sizeHint());
}

} // namespace vernacle
