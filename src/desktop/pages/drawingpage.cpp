#include "desktop/pages/drawingpage.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/kit/formkit.h"
#include "desktop/kit/picturebox.h"
#include "desktop/navigation/navigator.h"
#include "engine/core/service.h"

namespace vernacle {

DrawingPage::DrawingPage(const PageTraits& traits, const DrawingTraits& drawing,
                         const LogicalArea& area)
    : DesignPage(traits), drawing_(drawing) {
    plate_ = new PictureBox("picPlate", area, UnitShape::OfScreen);
    plate_->setAccessibleName(QStringLiteral("Drawing of the plate"));
    auto* side = new QVBoxLayout;
    column_ = new QVBoxLayout;
    column_->setSpacing(10);
    column_->addWidget(MakeHeading("lblHeading", QString::fromUtf8(traits.title)));
    side->addLayout(column_);
    if (Service.truePlate) {
        remarks_ = MakeLabel("lblRemarks", {});
        remarks_->setWordWrap(true);
        side->addWidget(remarks_);
    }
    side->addStretch();
    auto* halves = new QHBoxLayout;
    halves->setSpacing(16);
    halves->addWidget(plate_, 1);
    halves->addLayout(side);
    Body().addLayout(halves, 1);
}

void DrawingPage::TakeSizes() {
    copies_.fontSize = Design.FontSize;
    copies_.labelSpacing = Design.LabelSpacing;
}

void DrawingPage::Redraw() {
    if (Service.truePlate) {
        plate_->ShowPage(TrueArea(Design));
    }
    DrawPage(Design, plate_->Surface(), drawing_, copies_, Drawing);
    if (remarks_) {
        remarks_->setText(QString::fromStdString(TrueRemarks(Design, Drawing)));
    }
}

void DrawingPage::Illustrate(std::int16_t topic) {
    Design.HelpTopic = topic;
    ShowModal("frmHelp");
}

void TextKeepingPage::TakeCopies() {
    TakeSizes();
    texts_ = CopyOfTexts(Design);
    copies_.texts = &texts_;
}

void TextKeepingPage::StoreEntries() {
    StoreTexts(Design, texts_);
}

} // namespace vernacle
