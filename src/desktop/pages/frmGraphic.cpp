#include "desktop/pages/frmGraphic.h"

#include <filesystem>

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/kit/field.h"
#include "desktop/kit/formkit.h"
#include "desktop/kit/pathlabel.h"
#include "desktop/system/dialogs.h"
#include "engine/core/service.h"

namespace vernacle {

namespace {

using D = DesignRecord;

constexpr std::int16_t kLeftTopic = 30; // of the illustrated help, as the next ones
constexpr std::int16_t kBottomTopic = 31;
constexpr std::int16_t kWidthTopic = 32;
constexpr std::int16_t kHeightTopic = 33;

constexpr OwnTip kGraphicOwnTips[] = {{"Scales", "Go to the Scales Design page"}};

constexpr PageTraits kGraphicTraits = {.form = "frmGraphic",
                                       .title = "Graphic entry",
                                       .helpTopic = "vgraphic.htm",
                                       .printing = Printing::GreyedAndDead,
                                       .ownTips = kGraphicOwnTips};

// The toolbar holds all of them to their limits.
// clang-format off
constexpr FieldRow kGraphicMeasures[] = {
    {.box = "txtLeftToImage",   .caption = "Left to graphic:",       .place = At<&D::LeftToGraphic>,   .limits = {0, 180}, .unit = "mm", .arrows = {"UpDown1", {0, 180}, "txtLeftToImageUpDown"},   .reading = Reading::Plain, .holding = Holding::ByPage},
    {.box = "txtBottomToImage", .caption = "Bottom to graphic top:", .place = At<&D::BottomToGraphic>, .limits = {0, 120}, .unit = "mm", .arrows = {"UpDown2", {0, 180}, "txtBottomToImageUpDown"}, .reading = Reading::Plain, .holding = Holding::ByPage},
    {.box = "txtGraphicWidth",  .caption = "Graphic width:",         .place = At<&D::GraphicWidth>,    .limits = {2, 180}, .unit = "mm", .arrows = {"UpDown3", {0, 180}, "txtGraphicWidthUpDown"},  .reading = Reading::Plain},
    {.box = "txtGraphicHeight", .caption = "Graphic height:",        .place = At<&D::GraphicHeight>,   .limits = {2, 180}, .unit = "mm", .arrows = {"UpDown4", {0, 180}, "txtGraphicHeightUpDown"}, .reading = Reading::Plain},
};
// clang-format on

// The everyday page names no PNG.
const char* GraphicFilter() {
    return Service.reserveStages
               ? "Graphic files (.bmp, .gif, .ico, .jpg, .png)|*.JPG;*.JPEG;*.PNG;*.GIF;*.BMP;*.ICO"
               : "Graphic files (.bmp, .gif, .ico, .jpg)|*.JPG;*.GIF;*.BMP;*.ICO";
}

FieldPointer PlaceOf(const Field& measure) {
    return measure.row.place.In(Design);
}

std::string UpperCased(const std::string& path) {
    return QString::fromStdString(path).toUpper().toStdString();
}

// Where files are careful a name stays as it is, but for its folder if that is the design's own:
// both can then be moved together.
std::string ShownName(const std::string& path) {
    if (!Service.carefulFiles) {
        return UpperCased(path);
    }
    const std::filesystem::path picture(path);
    const bool isBeside =
        picture.has_parent_path() &&
        picture.parent_path() == std::filesystem::path(Design.DesignFileName).parent_path();
    return isBeside ? picture.filename().string() : path;
}

} // namespace

frmGraphic::frmGraphic() : TextKeepingPage(kGraphicTraits, TextTraits()) {
    Build();
    Load();
}

void frmGraphic::Build() {
    auto* grid = new QGridLayout;
    grid->setSpacing(kEntrySpacing);
    grid->setColumnStretch(0, 1);
    for (const FieldRow& row : kGraphicMeasures) {
        auto* measure = new Field(row, *this);
        measure->AddTo(*grid, grid->rowCount());
        connect(measure->box, &EntryBox::Changed, this,
                [this, measure] { MeasureChanged(*measure); });
        connect(measure->partner, &EntryBox::Changed, this,
                [this, measure] { PartnerChanged(*measure); });
        measures_.push_back(measure);
    }
    Column().addLayout(grid);
    cmdGetGraphic_ = MakeButton("cmdGetGraphic", QStringLiteral("Browse to get graphic"),
                                QStringLiteral("Get a graphic to place on the plate"));
    cmdRemoveGraphic_ = MakeButton("cmdRemoveGraphic", QStringLiteral("Remove graphic"));
    connect(cmdGetGraphic_, &QPushButton::clicked, this, &frmGraphic::cmdGetGraphicClicked);
    connect(cmdRemoveGraphic_, &QPushButton::clicked, this, &frmGraphic::cmdRemoveGraphicClicked);
    lblGraphicName_ = new PathLabel("lblGraphicName");
    Column().addWidget(cmdGetGraphic_);
    Column().addWidget(cmdRemoveGraphic_);
    Column().addWidget(lblGraphicName_);
}

void frmGraphic::Load() {
    TakeCopies();
    lblGraphicName_->setText(Design.GraphicFileName.empty()
                                 ? QStringLiteral("(No graphic currently selected)")
                                 : QString::fromStdString(ShownName(Design.GraphicFileName)));
    for (const Field* measure : measures_) {
        measure->Fill(PlaceOf(*measure)); // and its partner by that
        if (!Service.reserveStages) {
            measure->Disable();
        }
    }
    cmdGetGraphic_->setEnabled(Service.reserveStages);
    cmdRemoveGraphic_->setEnabled(Service.reserveStages);
    Redraw();
}

void frmGraphic::BeforeKey() {
    TextKeepingPage::BeforeKey();
    LimitGraphicEntries();
}

void frmGraphic::LimitGraphicEntries() {
    for (const Field* measure : measures_) {
        if (Service.carefulFiles) {
            measure->Take(PlaceOf(*measure));
        } else {
            std::string text = measure->box->Text();
            ParseInto(text, PlaceOf(*measure));
        }
        measure->Hold(PlaceOf(*measure));
    }
    for (const Field* measure : measures_) {
        measure->Fill(PlaceOf(*measure));
    }
}

void frmGraphic::MeasureChanged(const Field& measure) {
    measure.Take(PlaceOf(measure));
    measure.partner->Show(PlainText(PlaceOf(measure)));
    Redraw();
}

void frmGraphic::PartnerChanged(const Field& measure) {
    if (!Service.carefulFiles || measure.partner->Text() != PlainText(PlaceOf(measure))) {
        StoreIn(PlaceOf(measure), double{measure.partner->Number()});
    }
    if (measure.row.holding == Holding::AtOnce) {
        measure.Hold(PlaceOf(measure));
    }
    measure.box->Show(PlainText(PlaceOf(measure)));
}

void frmGraphic::cmdLeftToImageClicked() {
    Illustrate(kLeftTopic);
}

void frmGraphic::cmdBottomToImageClicked() {
    Illustrate(kBottomTopic);
}

void frmGraphic::cmdGraphicWidthClicked() {
    Illustrate(kWidthTopic);
}

void frmGraphic::cmdGraphicHeightClicked() {
    Illustrate(kHeightTopic);
}

void frmGraphic::cmdGetGraphicClicked() {
    const std::string chosen = AskForFileToOpen(this, {"Get graphic", GraphicFilter(), ""});
    if (Service.carefulFiles && chosen.empty()) {
        return; // the dialog was cancelled
    }
    Design.GraphicFileName = ShownName(chosen);
    lblGraphicName_->setText(QString::fromStdString(Design.GraphicFileName));
    Design.DrawGraphic = "Y";
    Redraw();
}

// The boxes go on showing what was there.
void frmGraphic::cmdRemoveGraphicClicked() {
    Design.GraphicFileName.clear();
    lblGraphicName_->clear();
    Design.DrawGraphic = "N";
    for (const Field* measure : measures_) {
        StoreIn(PlaceOf(*measure), 0);
    }
    Redraw();
}

} // namespace vernacle
