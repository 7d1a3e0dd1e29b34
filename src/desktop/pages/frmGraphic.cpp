#include "desktop/pages/frmGraphic.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/kit/entrybox.h"
#include "desktop/kit/entryrow.h"
#include "desktop/kit/formkit.h"
#include "desktop/kit/pathlabel.h"
#include "desktop/system/dialogs.h"
#include "engine/base/numbertext.h"
#include "engine/core/entry.h"

namespace vernacle {

namespace {

using D = DesignRecord;

constexpr std::int16_t kLeftTopic = 30; // of the illustrated help, as the next ones
constexpr std::int16_t kBottomTopic = 31;
constexpr std::int16_t kWidthTopic = 32;
constexpr std::int16_t kHeightTopic = 33;

constexpr OwnTip kOwnTips[] = {{"Scales", "Go to the Scales Design page"}};

constexpr PageTraits kTraits = {.form = "frmGraphic",
                                .title = "Graphic entry",
                                .helpTopic = "vgraphic.htm",
                                .printing = Printing::GreyedAndDead,
                                .ownTips = kOwnTips};

// When the measure is held to its limits; by the toolbar every one is.
enum class Holding { AtOnce, ByToolbar };

std::string UpperCased(const std::string& path) {
    return QString::fromStdString(path).toUpper().toStdString();
}

} // namespace

struct frmGraphic::Measure {
    EntryRow row;
    float D::*field = nullptr;
    Holding holding = Holding::AtOnce;

    float& Value() const { return Design.*field; }

    // Takes what is typed.
    void Take(float number) const {
        Value() = holding == Holding::AtOnce ? row.limits.Held(number) : number;
    }
};

// clang-format off
const frmGraphic::Measure frmGraphic::kMeasures[] = {
    {{"txtLeftToImage",   "lblLeftToImage",   "Left to graphic:",       "UpDown1", {0, 180}, {0, 180}, "mm", "txtLeftToImageUpDown"},   &D::LeftToGraphic,   Holding::ByToolbar},
    {{"txtBottomToImage", "lblBottomToImage", "Bottom to graphic top:", "UpDown2", {0, 180}, {0, 120}, "mm", "txtBottomToImageUpDown"}, &D::BottomToGraphic, Holding::ByToolbar},
    {{"txtGraphicWidth",  "lblGraphicWidth",  "Graphic width:",         "UpDown3", {0, 180}, {2, 180}, "mm", "txtGraphicWidthUpDown"},  &D::GraphicWidth,    Holding::AtOnce},
    {{"txtGraphicHeight", "lblGraphicHeight", "Graphic height:",        "UpDown4", {0, 180}, {2, 180}, "mm", "txtGraphicHeightUpDown"}, &D::GraphicHeight,   Holding::AtOnce},
};
// clang-format on

frmGraphic::frmGraphic() : TextKeepingPage(kTraits, TextTraits()) {
    Build();
    Load();
}

void frmGraphic::Build() {
    auto* grid = new QGridLayout;
    grid->setSpacing(kEntrySpacing);
    grid->setColumnStretch(0, 1);
    for (const Measure& measure : kMeasures) {
        const EntryControls controls = AddEntryRow(measure.row, *grid, grid->rowCount(), *this);
        connect(&controls.box, &EntryBox::Changed, this,
                [this, &measure] { MeasureChanged(measure); });
        connect(controls.partner, &EntryBox::Changed, this,
                [this, &measure] { PartnerChanged(measure); });
    }
    Column().addLayout(grid);
    QPushButton* get = MakeButton("cmdGetGraphic", QStringLiteral("Browse to get graphic"),
                                  QStringLiteral("Get a graphic to place on the plate"));
    QPushButton* remove = MakeButton("cmdRemoveGraphic", QStringLiteral("Remove graphic"));
    connect(get, &QPushButton::clicked, this, &frmGraphic::cmdGetGraphicClicked);
    connect(remove, &QPushButton::clicked, this, &frmGraphic::cmdRemoveGraphicClicked);
    lblGraphicName_ = new PathLabel("lblGraphicName");
    Column().addWidget(get);
    Column().addWidget(remove);
    Column().addWidget(lblGraphicName_);
}

void frmGraphic::Load() {
    TakeCopies();
    lblGraphicName_->setText(Design.GraphicFileName.empty()
                                 ? QStringLiteral("(No graphic currently selected)")
                                 : QString::fromStdString(UpperCased(Design.GraphicFileName)));
    for (const Measure& measure : kMeasures) {
        Box(measure.row.box).Write(PlainNumber(measure.Value())); // and its partner by that
        SetEnabled({measure.row.box, measure.row.label, measure.row.partner, measure.row.arrows},
                   false);
    }
    SetEnabled({"cmdGetGraphic", "cmdRemoveGraphic"}, false);
    Redraw();
}

void frmGraphic::BeforeKey() {
    TextKeepingPage::BeforeKey();
    LimitGraphicEntries();
}

void frmGraphic::LimitGraphicEntries() {
    for (const Measure& measure : kMeasures) {
        std::string text = Box(measure.row.box).Text();
        ParseEntry(text, measure.Value());
        measure.Value() = measure.row.limits.Held(measure.Value());
    }
    for (const Measure& measure : kMeasures) {
        Box(measure.row.box).Write(PlainNumber(measure.Value()));
    }
}

void frmGraphic::MeasureChanged(const Measure& measure) {
    measure.Take(Box(measure.row.box).Number());
    Box(measure.row.partner).Show(PlainNumber(measure.Value()));
    Redraw();
}

void frmGraphic::PartnerChanged(const Measure& measure) {
    measure.Take(Box(measure.row.partner).Number());
    Box(measure.row.box).Show(PlainNumber(measure.Value()));
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
    const std::string chosen = AskForFileToOpen(
        this,
        {"Get graphic", "Graphic files (.bmp, .gif, .ico, .jpg)|*.JPG;*.GIF;*.BMP;*.ICO", ""});
    Design.GraphicFileName = UpperCased(chosen);
    lblGraphicName_->setText(QString::fromStdString(Design.GraphicFileName));
    Design.DrawGraphic = "Y";
    Redraw();
}

// The boxes go on showing what was there.
void frmGraphic::cmdRemoveGraphicClicked() {
    Design.GraphicFileName.clear();
    lblGraphicName_->clear();
    Design.DrawGraphic = "N";
    for (const Measure& measure : kMeasures) {
        measure.Value() = 0;
    }
    Redraw();
}

} // namespace vernacle
