#include "desktop/app/frmAbout.h"

#include <QIcon>
#include <QVBoxLayout>

#include "desktop/kit/formkit.h"
#include "engine/core/design.h"

namespace vernacle {

namespace {

constexpr int kIconSize = 64;

constexpr const char* kDescription =
    "Vernacle draws the printed scale plates of analog panel meters.\n\n"
    "Measure the plate and the movement, say where the pointer's bearing stands, how far it "
    "swings and what the scale reads, and get a true-size plate to cut out and fit behind the "
    "pointer: on the screen, on paper, or as HP-GL for a plotter.";

} // namespace

frmAbout::frmAbout() : ModalForm("frmAbout", QStringLiteral("About Vernacle")) {
    auto* picture = MakeLabel("picIcon", {});
    picture->setPixmap(windowIcon().pixmap(kIconSize));
    picture->setAccessibleName(QStringLiteral("The program's icon"));
    QLabel* description = MakeLabel("lblDescription", QString::fromUtf8(kDescription));
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
