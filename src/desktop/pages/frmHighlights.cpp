#include "desktop/pages/frmHighlights.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/kit/entrybox.h"
#include "desktop/kit/entryrow.h"
#include "desktop/kit/formkit.h"
#include "desktop/kit/optionbutton.h"
#include "desktop/kit/picturebox.h"
#include "desktop/navigation/navigator.h"
#include "desktop/system/dialogs.h"
#include "engine/base/numbertext.h"
#include "surfaces/colours.h"

namespace vernacle {

namespace {

using D = DesignRecord;

constexpr OwnTip kOwnTips[] = {{"Highlights", "Go to the Highlight Entrypage"}};

constexpr PageTraits kTraits = {.form = "frmHighlights",
                                .title = "Highlight entry",
                                .helpTopic = "vhighlights.htm",
                                .printing = Printing::GreyedAndDead,
                                .ownTips = kOwnTips};

constexpr NumberFrameTraits kNumbers = {.frame = "fraTextNumber",
                                        .label = "Label1",
                                        .labelText = "Highlight #:",
                                        .spoken = "Highlight #",
                                        .options = kHighlights,
                                        .tips = 6};

constexpr double kTenths = 0.1; // of a millimetre, that the arrows of the height step

// The colour sample stands beside the plate.
constexpr LogicalArea kArea{-400, 900, 9300, 7000};

} // namespace

struct frmHighlights::Entry {
    EntryRow row;
    FieldPlace field = {};
    void (frmHighlights::*changed)(const Entry& entry) = nullptr;
};

// What is typed has no limits.
// clang-format off
const frmHighlights::Entry frmHighlights::kEntries[] = {
    {{"txtStart1",   "lblStart",  "Start %:",   "UpDown1", {0, 100}, {}, "%",  nullptr,       1, Reading::Plain}, At<&D::HighlightStart>,   &frmHighlights::EntryChanged},
    {{"txtStop1",    "lblStop",   "Stop %:",    "UpDown2", {0, 100}, {}, "%",  nullptr,       1, Reading::Plain}, At<&D::HighlightStop>,    &frmHighlights::EntryChanged},
    {{"txtCeiling1", "lblBottom", "Bottom mm:", "UpDown3", {0, 180}, {}, "mm", nullptr,       1, Reading::Plain}, At<&D::HighlightCeiling>, &frmHighlights::EntryChanged},
    {{"txtLength1",  "lblHeight", "Height mm:", "UpDown4", {0, 180}, {}, "mm", "txtLength10", kTenths},           At<&D::HighlightLength>,  &frmHighlights::txtLength1Changed},
};
// clang-format on

frmHighlights::frmHighlights() : TextKeepingPage(kTraits, HighlightsTraits(), kArea) {
    Build();
    Load();
}

void frmHighlights::Build() {
    numbers_ = MakeNumberFrame(kNumbers, [this](int number) { OptionClicked(number); });
    Column().addWidget(numbers_.frame);
    auto* grid = new QGridLayout;
    grid->setSpacing(kEntrySpacing);
    grid->setColumnStretch(0, 1);
    for (const Entry& entry : kEntries) {
        const EntryControls controls = AddEntryRow(entry.row, *grid, grid->rowCount(), *this);
        connect(&controls.box, &EntryBox::Changed, this,
                [this, &entry] { (this->*entry.changed)(entry); });
        if (controls.partner) {
            connect(controls.partner, &EntryBox::Changed, this, &frmHighlights::txtLength10Changed);
        }
    }
    Column().addLayout(grid);
    QPushButton* colour = MakeButton("cmdGetColor", QStringLiteral("Color"));
    QPushButton* info = MakeButton("cmdShowTicInfo", QStringLiteral("Show ticmark information"));
    connect(colour, &QPushButton::clicked, this, &frmHighlights::cmdGetColorClicked);
    connect(info, &QPushButton::clicked, this, &frmHighlights::cmdShowTicInfoClicked);
    Column().addWidget(colour);
    Column().addWidget(info);
}

void frmHighlights::Load() {
    TakeCopies();
    for (int highlight = 1; highlight <= kHighlights; ++highlight) {
        numbers_.Option(highlight).SetInk(ToQColor(Design.HighlightColor[highlight]));
        numbers_.Option(highlight).setEnabled(false);
    }
    for (const Entry& entry : kEntries) {
        SetEnabled({entry.row.label, entry.row.box, entry.row.arrows}, false);
    }
    SetEnabled({"Label1", "fraTextNumber", "txtLength10", "cmdGetColor"}, false);
    Redraw();
}

void frmHighlights::FillHighlightEntry() {
    for (const Entry& entry : kEntries) {
        SetEnabled({entry.row.label, entry.row.box, entry.row.arrows}, true);
    }
    SetEnabled({"cmdGetColor"}, true);
    for (const Entry& entry : kEntries) {
        const double value = NumberIn(entry.field.In(Design, CurrentHighlight_));
        Box(entry.row.box).Show(PlainNumber(static_cast<float>(value)));
    }
    ShowTenfoldLength();
}

void frmHighlights::ShowTenfoldLength() {
    const double tenths = double{Design.HighlightLength[CurrentHighlight_]} * 10;
    Box("txtLength10").Show(PlainNumber(static_cast<float>(tenths)));
}

void frmHighlights::OptionClicked(int highlight) {
    CurrentHighlight_ = static_cast<std::int16_t>(highlight);
    FillHighlightEntry();
    if (highlight == 2) { // the others are drawn where a text changes
        Redraw();
    }
}

void frmHighlights::Store(const Entry& entry) {
    StoreIn(entry.field.In(Design, CurrentHighlight_), double{Box(entry.row.box).Number()});
}

void frmHighlights::EntryChanged(const Entry& entry) {
    Store(entry);
    Redraw();
}

void frmHighlights::txtLength1Changed(const Entry& entry) {
    Store(entry);
    ShowTenfoldLength();
    Redraw();
}

// Only the program fills that box: a text that is no number is a run-time error.
void frmHighlights::txtLength10Changed() {
    const auto tenths = StrictNumber(Box("txtLength10").Text());
    if (!tenths) {
        ThrowTypeMismatch();
    }
    Box("txtLength1").Show(PlainNumber(static_cast<float>(*tenths * kTenths)));
}

void frmHighlights::cmdGetColorClicked() {
    std::int32_t& colour = Design.HighlightColor[CurrentHighlight_];
    colour = AskForColour(this, "Get Highlight color", colour);
    Redraw();
}

void frmHighlights::cmdShowTicInfoClicked() {
    ShowFormBeside("frmShowTicInfo");
}

void frmHighlights::Redraw() {
    TextKeepingPage::Redraw();
    if (CurrentHighlight_ > 0) {
        DrawingSurface& surface = Plate().Surface();
        surface.FilledBox(7730, 5470, 8700, 5530, Design.HighlightColor[CurrentHighlight_]);
        surface.Box(7700, 5440, 8730, 5560, kBlackInk);
    }
}

} // namespace vernacle
