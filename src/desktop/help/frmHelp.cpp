#include "desktop/help/frmHelp.h"

#include <QVBoxLayout>

#include "desktop/kit/formkit.h"
#include "desktop/kit/picturebox.h"
#include "engine/core/design.h"
#include "engine/illustrations/schematic.h"
#include "engine/illustrations/schematicmarks.h"
#include "engine/render/drawing.h"

namespace vernacle {

frmHelp::frmHelp() : ModalForm("frmHelp", QStringLiteral("Vernacle - Help")) {
    Drawing.DegreesPerRadian = ComputeDegreesPerRadian();
    auto* picture = new PictureBox("picSchematic", SchematicArea(), UnitShape::Square);
    const char* caption = TopicCaption(Design.HelpTopic);
    picture->setAccessibleName(QString::fromUtf8(caption ? caption : "The plate"));
    DrawSchematic(picture->Surface(), Design.HelpTopic, kHelpPageLook);
    QPushButton* back = MakeButton("cmdReturn", QStringLiteral("Return"));
    back->setDefault(true);
    connect(back, &QPushButton::clicked, this, &QDialog::accept);
    auto* column = new QVBoxLayout(this);
    column->addWidget(picture, 1);
    column->addWidget(back, 0, Qt::AlignRight);
    resize(RoomySize());
}

} // namespace vernacle
