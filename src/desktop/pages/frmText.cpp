#include "desktop/pages/frmText.h"

#include <cmath>

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/kit/entrybox.h"
#include "desktop/kit/entryrow.h"
#include "desktop/kit/formkit.h"
#include "desktop/kit/optionbutton.h"
#include "desktop/system/dialogs.h"
#include "engine/base/numbertext.h"
#include "engine/base/text.h"
#include "engine/core/entry.h"
#include "surfaces/typeface.h"

namespace vernacle {

namespace {

constexpr PageTraits kTraits = {.form = "frmText",
                                .title = "Text entry",
                                .helpTopic = "vsignature.htm",
                                .printing = Printing::GreyedAndDead,
                                .closeBox = CloseBox::JustEnds};

constexpr NumberFrameTraits kNumbers = {.frame = "fraTextNumber",
                                        .label = "Label1",
                                        .labelText = "Text #:",
                                        .spoken = "Text #",
                                        .options = kTexts,
                                        .tips = 6};

constexpr double kTenths = 0.1; // that the arrows of the size step

// clang-format off
constexpr EntryRow kText   = {"txtText",         "lblText",         "Text:",           nullptr,   {}};
constexpr EntryRow kLeft   = {"txtLeftToText",   "lblLeftToText",   "Left to text:",   "UpDown1", {-100, 180}, {.lowest = -100}, "mm",                  nullptr,            1,       Reading::Plain, Rewriting::AtOnce};
constexpr EntryRow kBottom = {"txtBottomToText", "lblBottomToText", "Bottom to text:", "UpDown2", {0, 180},    {},               "mm",                  nullptr,            1,       Reading::Plain};
constexpr EntryRow kSize   = {"txtRelSize",      "lblRelSize",      "Relative size:",  "UpDown3", {1, 20},     {.highest = 2},   "times the font size", "txtRelSizeUpDown", kTenths, Reading::Entry, Rewriting::AtOnce};
// clang-format on

float RoundedToTenths(float value) {
    return static_cast<float>(std::floor(double{value} * 10 + 0.5) * 0.1);
}

} // namespace

frmText::frmText() : TextKeepingPage(kTraits, TextTraits()) {
    Build();
    Load();
}

void frmText::Build() {
    numbers_ = MakeNumberFrame(kNumbers, [this](int entry) { OptionClicked(entry); });
    Column().addWidget(numbers_.frame);
    auto* grid = new QGridLayout;
    grid->setSpacing(kEntrySpacing);
    grid->setColumnStretch(0, 1);
    connect(&AddTextRow(kText, *grid, 0).box, &EntryBox::Changed, this, &frmText::txtTextChanged);
    connect(&AddEntryRow(kLeft, *grid, 1, *this).box, &EntryBox::Changed, this,
            &frmText::txtLeftToTextChanged);
    connect(&AddEntryRow(kBottom, *grid, 2, *this).box, &EntryBox::Changed, this,
            &frmText::txtBottomToTextChanged);
    const EntryControls size = AddEntryRow(kSize, *grid, 3, *this);
    connect(&size.box, &EntryBox::Changed, this, &frmText::txtRelSizeChanged);
    connect(size.partner, &EntryBox::Changed, this, &frmText::txtRelSizeUpDownChanged);
    Column().addLayout(grid);

    lblTextWidthmm_ = MakeLabel("lblTextWidthmm", QStringLiteral("Text width (mm): "));
    Column().addWidget(lblTextWidthmm_);
    QPushButton* centre = MakeButton("cmdCenterText", QStringLiteral("Center horizontally"));
    QPushButton* colour = MakeButton("cmdGetColor", QStringLiteral("Get text color"),
                                     QStringLiteral("Select color for text #1"));
    connect(centre, &QPushButton::clicked, this, &frmText::cmdCenterTextClicked);
    connect(colour, &QPushButton::clicked, this, &frmText::cmdGetColorClicked);
    Column().addWidget(centre);
    Column().addWidget(colour);
}

void frmText::Load() {
    TakeCopies();
    textsAtLoad_ = CountTexts(texts_);
    SetEnabled({"lblText", "txtText", "lblLeftToText", "txtLeftToText", "UpDown1",
                "lblBottomToText", "txtBottomToText", "UpDown2", "lblRelSize", "txtRelSize",
                "txtRelSizeUpDown", "UpDown3", "lblTextWidthmm", "cmdCenterText", "cmdGetColor"},
               false);
    numbers_.Option(1).Select();
    for (int entry = 1; entry <= kTexts; ++entry) {
        numbers_.Option(entry).setEnabled(false);
    }
    SetEnabled({"Label1", "fraTextNumber"}, false);
    Redraw();
}

void frmText::FillTextEntry() {
    const int entry = CurrentTextEntry_;
    Box("txtText").Write(texts_.TextString[entry]);
    Box("txtLeftToText").Write(PlainNumber(texts_.LeftToText[entry]));
    Box("txtBottomToText").Write(PlainNumber(texts_.BottomToText[entry]));
    Box("txtRelSize").Write(PlainNumber(texts_.TextRelativeSize[entry]));
    const double tenths = double{texts_.TextRelativeSize[entry]} * 10;
    Box("txtRelSizeUpDown").Write(PlainNumber(static_cast<float>(tenths)));
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
    return static_cast<float>(FreeTextWidthMm(face.Advance(text) / face.AverageWidth(), points));
}

void frmText::OptionClicked(int entry) {
    CurrentTextEntry_ = static_cast<std::int16_t>(entry);
    FillTextEntry();
    Redraw();
    MeasureTextWidth(entry);
}

void frmText::txtTextChanged() {
    texts_.TextString[CurrentTextEntry_] = Trimmed(Box("txtText").Text());
    MeasureTextWidth(CurrentTextEntry_);
    Redraw();
}

void frmText::txtLeftToTextChanged() {
    const float entered = Box("txtLeftToText").Number();
    float& left = texts_.LeftToText[CurrentTextEntry_];
    left = kLeft.limits.Held(entered);
    Box("txtLeftToText").ShowHeld(entered, left);
    Redraw();
}

void frmText::txtBottomToTextChanged() {
    texts_.BottomToText[CurrentTextEntry_] = Box("txtBottomToText").Number();
    Redraw();
}

void frmText::txtRelSizeChanged() {
    std::string text = Box("txtRelSize").Text();
    float& size = texts_.TextRelativeSize[CurrentTextEntry_];
    ParseEntry(text, size);
    const float entered = size;
    size = kSize.limits.Held(entered);
    Box("txtRelSize").ShowHeld(entered, size);
    MeasureTextWidth(CurrentTextEntry_);
    Redraw();
}

void frmText::txtRelSizeUpDownChanged() {
    const double size = double{Box("txtRelSizeUpDown").Number()} * kTenths;
    Box("txtRelSize").Write(PlainNumber(static_cast<float>(size)));
}

void frmText::cmdCenterTextClicked() {
    float& left = texts_.LeftToText[CurrentTextEntry_];
    left = static_cast<float>(double{Design.PlateWidth} / 2);
    left = static_cast<float>(double{left} - double{DrawnWidthMm(CurrentTextEntry_)} / 2);
    Box("txtLeftToText").Write(PlainNumber(RoundedToTenths(left)));
    Redraw();
}

// Starts from the colour of the scale of that number, of which there are fewer than texts.
void frmText::cmdGetColorClicked() {
    const Colour start = InkOf(Design, CurrentTextEntry_);
    std::int32_t& colour = texts_.TextColor[CurrentTextEntry_];
    colour = AskForColour(this, "Get text color", start);
    if (colour == 0) {
        colour = 1; // black stays distinct from unset
    }
    Redraw();
}

} // namespace vernacle
