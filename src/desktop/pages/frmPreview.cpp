#include "desktop/pages/frmPreview.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include "desktop/kit/field.h"
#include "desktop/kit/formkit.h"
#include "desktop/kit/inkicon.h"
#include "desktop/kit/picturebox.h"
#include "desktop/navigation/navigator.h"
#include "engine/base/numbertext.h"
#include "engine/core/design.h"
#include "engine/core/repair.h"
#include "engine/core/service.h"
#include "engine/render/drawingsteps.h"
#include "engine/render/overlays.h"
#include "engine/scale/scale.h"

namespace vernacle {

namespace {

constexpr double kAspectStep = 1.01;
constexpr LogicalArea kPlateArea{2350, 750, 7300,
                                 8250}; // to the pointer's length under a high plate
constexpr int kToolIconSize = 20;

// The ratio and its percents; the arrows step the ratio by a share of itself.
// clang-format off
constexpr FieldRow kRatio   = {.box = "txtAspect",       .caption = "Aspect ratio:",    .limits = kAspectLimits};
constexpr FieldRow kPercent = {.box = "txtAspectUpDown", .caption = "Aspect, percent:", .limits = {kAspectLimits.lowest * 100, kAspectLimits.highest * 100}, .unit = "%", .arrows = {"UpDown1"}};
// clang-format on

// What the page shows, whatever the design held.
constexpr Repair kShownAlone[] = {
    {.place = At<&DesignRecord::FontName>, .text = "Arial", .liftedBy = &ServiceState::styles},
    {.place = At<&DesignRecord::NumberOfScales>,
     .becomes = 1,
     .liftedBy = &ServiceState::severalScales},
    {At<&DesignRecord::CurrentScale>, When::Below, 1, 1},
};

constexpr OwnTip kPreviewOwnTips[] = {{"Exit", "Exit"}};

constexpr PageTraits kPreviewTraits = {.form = "frmPreview",
                                       .title = "Preview",
                                       .helpTopic = "vpreview.htm",
                                       .printing = Printing::Offered,
                                       .ownTips = kPreviewOwnTips};

// Switches a flag of an overlay; whether it is on now.
bool Toggle(std::int16_t& flag) {
    ++flag;
    if (flag > 1) {
        flag = 0;
    }
    return flag == 1;
}

std::int16_t& CircleFlag() {
    return Design.PlateOutlineCircular;
}
std::int16_t& GridFlag() {
    return Drawing.GridShown;
}
std::int16_t& PointerFlag() {
    return Drawing.PointerShown;
}

} // namespace

// A button below the aspect; that of an overlay has a flag.
struct frmPreview::Tool {
    const char* name;
    const char* caption;
    const char* tip;
    const char* icon;
    void (frmPreview::*clicked)();
    std::int16_t& (*flag)();
};

// clang-format off
const frmPreview::Tool frmPreview::kTools[] = {
    {"cmdCircle",  "Circle",  "Show or hide a circular outline; a plate with it prints as a circle", "circle",  &frmPreview::cmdCircleClicked,  CircleFlag},
    {"cmdGrid",    "Grid",    "Show or hide a grid of millimetres",                                  "grid",    &frmPreview::cmdGridClicked,    GridFlag},
    {"cmdPointer", "Pointer", "Show or hide the pointer and its length",                             "pointer", &frmPreview::cmdPointerClicked, PointerFlag},
    {"cmdHPGL",    "HP-GL",   "Write the design for a plotter",                                      "plotter", &frmPreview::cmdHPGLClicked,    nullptr},
};
// clang-format on

frmPreview::frmPreview() : DesignPage(kPreviewTraits) {
    Build();
    Load();
}

void frmPreview::Build() {
    plate_ = new PictureBox("picPlate", kPlateArea, UnitShape::OfScreen);
    plate_->setAccessibleName(QStringLiteral("Drawing of the plate"));
    auto* tools = new QVBoxLayout;
    tools->setSpacing(10);
    tools->addWidget(MakeHeading("lblHeading", QStringLiteral("Preview")));
    tools->addLayout(MakeAspect());
    tools->addLayout(MakeTools());
    if (Service.truePlate) {
        remarks_ = MakeLabel("lblRemarks", {});
        remarks_->setWordWrap(true);
        tools->addWidget(remarks_);
    }
    tools->addStretch();
    auto* halves = new QHBoxLayout;
    halves->setSpacing(16);
    halves->addWidget(plate_, 1);
    halves->addLayout(tools);
    Body().addLayout(halves, 1);
}

QLayout* frmPreview::MakeAspect() {
    ratio_ = new Field(kRatio, *this);
    percent_ = new Field(kPercent, *this);
    connect(ratio_->box, &EntryBox::Changed, this, &frmPreview::txtAspectChanged);
    connect(percent_->box, &EntryBox::Changed, this, &frmPreview::txtAspectUpDownChanged);
    connect(percent_->arrows, &UpDown::Stepped, this, &frmPreview::UpDown1Stepped);
    auto* grid = new QGridLayout;
    ratio_->AddTo(*grid, 0);
    percent_->AddTo(*grid, 1);
    if (Service.truePlate) { // whose units are square on any screen
        ratio_->Hide();
        percent_->Hide();
    }
    return grid;
}

QLayout* frmPreview::MakeTools() {
    auto* column = new QVBoxLayout;
    for (const Tool& tool : kTools) {
        QPushButton* button =
            MakeButton(tool.name, QString::fromUtf8(tool.caption), QString::fromUtf8(tool.tip));
        button->setIcon(InkIcon(tool.icon));
        button->setIconSize(QSize(kToolIconSize, kToolIconSize));
        connect(button, &QPushButton::clicked, this, tool.clicked);
        column->addWidget(button);
        if (tool.flag) {
            button->setCheckable(true);
            overlays_.push_back({button, tool.flag});
        }
    }
    return column;
}

// The page comes up, or its picture is to be drawn without the overlays: the design is made ready
// in the same way, and the controls stay.
void frmPreview::Load() {
    ShowTitle();
    NormalizeDesign(Design);
    sizes_ = {Design.FontSize, Design.LabelSpacing};
    CopyTexts();
    ComputeTicDeflections(Design);
    ComputeTicLabels(Design);
    RepairFields(Design, kShownAlone);
    RaiseAspectRatio(Design);
    if (!Service.truePlate) {
        ShowAspect();
        ShowPercent();
    }
    ShowFlags();
    Draw();
}

// A flag of an overlay outlives its drawing: the next press then turns it off.
void frmPreview::ShowFlags() {
    for (const Overlay& overlay : overlays_) {
        overlay.button->setChecked(overlay.flag() != 0);
    }
}

void frmPreview::CopyTexts() {
    texts_ = Design.TextString;
    numberOfTexts_ = 0;
    for (int text = 1; text <= kTexts; ++text) {
        numberOfTexts_ += texts_[text].empty() ? 0 : 1;
    }
    plate_->setAccessibleDescription(
        QStringLiteral("Free texts of the design: %1").arg(numberOfTexts_));
}

void frmPreview::Draw() {
    if (Service.truePlate) {
        plate_->ShowPage(TrueArea(Design));
    }
    DrawPage(Design, plate_->Surface(), PreviewTraits(), sizes_, Drawing);
    if (remarks_) {
        remarks_->setText(QString::fromStdString(TrueRemarks(Design, Drawing)));
    }
}

void frmPreview::ShowAspect() {
    ratio_->Fill(&Design.AspectRatio);
}

void frmPreview::ShowPercent() {
    percent_->box->Write(PlainNumber(static_cast<float>(double{Design.AspectRatio} * 100)));
}

void frmPreview::txtAspectChanged() {
    ratio_->Read(&Design.AspectRatio);
    HoldAspectRatio(Design);
    ShowPercent();
    Draw();
}

void frmPreview::txtAspectUpDownChanged() {
    const double percent = NumericValue(percent_->box->Text());
    Design.AspectRatio = HeldAspect(percent * 0.01);
    ShowAspect();
    ratio_->box->Show(PlainNumber(Design.AspectRatio)); // which the ratio's box has rounded
}

void frmPreview::UpDown1Stepped(int by) {
    const double aspect = double{Design.AspectRatio};
    Design.AspectRatio = HeldAspect(by > 0 ? aspect * kAspectStep : aspect / kAspectStep);
    Load();
}

// With the true plate all overlays are drawn as they stand; else one over the picture, until a
// redraw.
void frmPreview::Overlaid(std::int16_t& flag, void (frmPreview::*draw)()) {
    if (Toggle(flag) && !Service.truePlate) {
        (this->*draw)();
        ShowFlags();
    } else {
        Load();
    }
}

void frmPreview::cmdCircleClicked() {
    Overlaid(CircleFlag(), &frmPreview::OverlayCircle);
}

void frmPreview::cmdGridClicked() {
    Overlaid(GridFlag(), &frmPreview::OverlayGrid);
}

void frmPreview::cmdPointerClicked() {
    Overlaid(PointerFlag(), &frmPreview::OverlayPointer);
}

void frmPreview::OverlayCircle() {
    DrawOutline(plate_->Surface(), FrameOf(Design, PreviewTraits()), OutlineStart::Moved, kBlueInk);
}

void frmPreview::OverlayGrid() {
    DrawGrid(plate_->Surface(), FrameOf(Design, PreviewTraits()));
}

void frmPreview::OverlayPointer() {
    DrawPointer(plate_->Surface(), FrameOf(Design, PreviewTraits()), Drawing);
}

void frmPreview::cmdHPGLClicked() {
    ShowModal("frmHPGL");
}

} // namespace vernacle
