#include "desktop/setups/frmSetupPreview.h"

#include <QVBoxLayout>

#include "desktop/kit/formkit.h"
#include "desktop/setups/setuppicture.h"

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
