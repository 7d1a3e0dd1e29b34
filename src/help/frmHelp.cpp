#include "help/frmHelp.h"

#include <QVBoxLayout>

#include "core/design.h"
#include "platform/formkit.h"
#include "platform/picturebox.h"
#include "render/drawing.h"
#include "render/schematic.h"
#include "render/schematicmarks.h"

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
