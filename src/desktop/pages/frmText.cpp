#include "desktop/pages/frmText.h"

#include <cmath>

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/kit/field.h"
#include "desktop/kit/formkit.h"
#include "desktop/kit/optionbutton.h"
#include "desktop/system/dialogs.h"
#include "engine/base/numbertext.h"
#include "engine/base/text.h"
#include "engine/core/service.h"
#include "engine/geometry/sheet.h"
#include "surfaces/typeface.h"

namespace vernacle {

namespace {

constexpr PageTraits kTextTraits = {.form = "frmText",
                                    .title = "Text entry",
                                    .helpTopic = "vsignature.htm",
                                    .printing = Printing::GreyedAndDead,
                                    .closeBox = CloseBox::JustEnds};

constexpr NumberFrameTraits kTextNumbers = {.frame = "fraTextNumber",
                                            .label = "Label1",
                                            .labelText = "Text #:",
                                            .spoken = "Text #",
                                            .options = kTexts,
                                            .tips = 6};

constexpr double kTenths = 0.1; // that the arrows of the size step

// clang-format off
constexpr FieldRow kText   = {.box = "txtText",         .caption = "Text:",           .reading = Reading::Trimmed};
constexpr FieldRow kLeft   = {.box = "txtLeftToText",   .caption = "Left to text:",   .limits = {.lowest = -100}, .unit = "mm", .arrows = {"UpDown1", {-100, 180}}, .reading = Reading::Plain, .showing = Showing::HeldAtOnce};
constexpr FieldRow kBottom = {.box = "txtBottomToText", .caption = "Bottom to text:", .unit = "mm", .arrows = {"UpDown2", {0, 180}}, .reading = Reading::Plain};
constexpr FieldRow kSize   = {.box = "txtRelSize",      .caption = "Relative size:",  .limits = {.highest = 2}, .unit = "times the font size", .arrows = {"UpDown3", {1, 20}, "txtRelSizeUpDown", kTenths}, .showing = Showing::HeldAtOnce};
// clang-format on

float RoundedToTenths(float value) {
    return static_cast<float>(std::floor(double{value} * 10 + 0.5) * 0.1);
}

} // namespace

frmText::frmText() : TextKeepingPage(kTextTraits, TextTraits()) {
    Build();
    Load();
}

void frmText::Build() {
    numbers_ = MakeNumberFrame(kTextNumbers, [this](int entry) { OptionClicked(entry); });
    Column().addWidget(numbers_.frame);
    auto* grid = new QGridLayout;
    grid->setSpacing(kEntrySpacing);
    grid->setColumnStretch(0, 1);
    const auto add = [&](const FieldRow& row, void (frmText::*changed)()) {
        auto* field = new Field(row, *this);
        field->AddTo(*grid, static_cast<int>(fields_.size()));
        connect(field->box, &EntryBox::Changed, this, changed);
        fields_.push_back(field);
        return field;
    };
    text_ = add(kText, &frmText::txtTextChanged);
    left_ = add(kLeft, &frmText::txtLeftToTextChanged);
    bottom_ = add(kBottom, &frmText::txtBottomToTextChanged);
    size_ = add(kSize, &frmText::txtRelSizeChanged);
    connect(size_->partner, &EntryBox::Changed, this, &frmText::txtRelSizeUpDownChanged);
    Column().addLayout(grid);

    lblTextWidthmm_ = MakeLabel("lblTextWidthmm", QStringLiteral("Text width (mm): "));
    Column().addWidget(lblTextWidthmm_);
    cmdCenterText_ = MakeButton("cmdCenterText", QStringLiteral("Center horizontally"));
    cmdGetColor_ = MakeButton("cmdGetColor", QStringLiteral("Get text color"),
                              QStringLiteral("Select color for text #1"));
    connect(cmdCenterText_, &QPushButton::clicked, this, &frmText::cmdCenterTextClicked);
    connect(cmdGetColor_, &QPushButton::clicked, this, &frmText::cmdGetColorClicked);
    Column().addWidget(cmdCenterText_);
    Column().addWidget(cmdGetColor_);
}

void frmText::Load() {
    TakeCopies();
    textsAtLoad_ = CountTexts(texts_);
    if (!Service.reserveStages) {
        DisableEntries();
    }
    numbers_.Option(1).Select();
    if (!Service.reserveStages) {
        numbers_.Disable();
    }
    Redraw();
}

void frmText::DisableEntries() {
    for (const Field* field : fields_) {
        field->Disable();
    }
    for (QWidget* part :
         std::initializer_list<QWidget*>{lblTextWidthmm_, cmdCenterText_, cmdGetColor_}) {
        part->setEnabled(false);
    }
}

void frmText::FillTextEntry() {
    const int entry = CurrentTextEntry_;
    text_->Fill(&texts_.TextString[entry]);
    left_->Fill(&texts_.LeftToText[entry]);
    bottom_->Fill(&texts_.BottomToText[entry]);
    size_->Fill(&texts_.TextRelativeSize[entry]);
    const double tenths = double{texts_.TextRelativeSize[entry]} * 10;
    size_->partner->Write(PlainNumber(static_cast<float>(tenths)));
    Redraw();
}

void frmText::MeasureTextWidth(int entry) {
    TextWidthMm_[entry] = DrawnWidthMm(entry);
    lblTextWidthmm_->setText(QString::fromStdString(
        "Text width (mm): " + PlainNumber(RoundedToTenths(TextWidthMm_[entry]))));
}

float frmText::DrawnWidthMm(int entry) const {
    const Typeface face{std::string(Trimmed(Design.FontName))};
    const QString text = QString::fromStdString(texts_.TextString[entry]);
    const double points = double{copies_.fontSize} * double{texts_.TextRelativeSize[entry]};
    if (Service.truePlate) {
        const double ems = face.Advance(text) / Typeface::kReferenceSize;
        return static_cast<float>(ems * points * kMmPerPoint);
    }
    return static_cast<float>(FreeTextWidthMm(face.Advance(text) / face.AverageWidth(), points));
}

void frmText::OptionClicked(int entry) {
    CurrentTextEntry_ = static_cast<std::int16_t>(entry);
    FillTextEntry();
    Redraw();
    MeasureTextWidth(entry);
}

void frmText::txtTextChanged() {
    text_->Take(&texts_.TextString[CurrentTextEntry_]);
    MeasureTextWidth(CurrentTextEntry_);
    Redraw();
}

void frmText::txtLeftToTextChanged() {
    left_->Take(&texts_.LeftToText[CurrentTextEntry_]);
    Redraw();
}

void frmText::txtBottomToTextChanged() {
    bottom_->Take(&texts_.BottomToText[CurrentTextEntry_]);
    Redraw();
}

void frmText::txtRelSizeChanged() {
    size_->Take(&texts_.TextRelativeSize[CurrentTextEntry_]);
    MeasureTextWidth(CurrentTextEntry_);
    Redraw();
}

void frmText::txtRelSizeUpDownChanged() {
    const double size = double{size_->partner->Number()} * kTenths;
    size_->box->Write(PlainNumber(static_cast<float>(size)));
}

void frmText::cmdCenterTextClicked() {
    float& left = texts_.LeftToText[CurrentTextEntry_];
    left = static_cast<float>(double{Design.PlateWidth} / 2);
    left = static_cast<float>(double{left} - double{DrawnWidthMm(CurrentTextEntry_)} / 2);
    left_->box->Write(PlainNumber(RoundedToTenths(left)));
    Redraw();
}

// The everyday page starts from the colour of the scale of that number, of which there are fewer
// than texts.
void frmText::cmdGetColorClicked() {
    std::int32_t& colour = texts_.TextColor[CurrentTextEntry_];
    const Colour start = Service.reserveStages ? colour : InkOf(Design, CurrentTextEntry_);
    const Colour chosen = AskForColour(this, "Get text color", start);
    if (Service.carefulFiles && chosen == start) {
        return;
    }
    colour = chosen;
    if (colour == 0) {
        colour = 1; // black stays distinct from unset
    }
    Redraw();
}

} // namespace vernacle
