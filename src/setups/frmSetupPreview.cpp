#include "setups/frmSetupPreview.h"

#include <QVBoxLayout>

#include "platform/formkit.h"
#include "setups/setuppicture.h"

namespace vernacle {

frmSetupPreview::frmSetupPreview()
    : ModalForm("frmSetupPreview", QStringLiteral("Vernacle - Setup Preview")) {
    auto* picture = new SetupPicture;
    QPushButton* exit = MakeButton("cmdExit", QStringLiteral("Return"));
    connect(exit, &QPushButton::clicked, this, &QDialog::accept);
    auto* column = new QVBoxLayout(this);
    column->addWidget(MakeLabel("lblHeading", {}));
    column->addWidget(picture, 1);
    column->addWidget(exit, 0, Qt::AlignRight);
    resize(RoomySize());
    picture->DrawScale();
}

} // namespace vernacle
