#include "desktop/pages/frmHighlights.h"

#include <algorithm>

#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/kit/field.h"
#include "desktop/kit/formkit.h"
#include "desktop/kit/optionbutton.h"
#include "desktop/kit/picturebox.h"
#include "desktop/navigation/navigator.h"
#include "desktop/pages/ticchoice.h"
#include "desktop/system/dialogs.h"
#include "engine/base/numbertext.h"
#include "engine/core/service.h"
#include "surfaces/colours.h"

namespace vernacle {

namespace {

using D = DesignRecord;

constexpr OwnTip kHighlightsOwnTips[] = {{"Highlights", "Go to the Highlight Entrypage"}};

constexpr PageTraits kHighlightsTraits = {.form = "frmHighlights",
                                          .title = "Highlight entry",
                                          .helpTopic = "vhighlights.htm",
                                          .printing = Printing::GreyedAndDead,
                                          .ownTips = kHighlightsOwnTips};

constexpr NumberFrameTraits kHighlightsNumbers = {.frame = "fraTextNumber",
                                                  .label = "Label1",
                                                  .labelText = "Highlight #:",
                                                  .spoken = "Highlight #",
                                                  .options = kHighlights,
                                                  .tips = 6};

constexpr double kTenths = 0.1; // of a millimetre, that the arrows of the height step

// The colour sample stands beside the plate.
constexpr LogicalArea kArea{-400, 900, 9300, 7000};

// What is typed has no limits.
// clang-format off
constexpr FieldRow kHighlightsFields[] = {
    {.box = "txtStart1",   .caption = "Start %:",   .place = At<&D::HighlightStart>,   .unit = "%",  .arrows = {"UpDown1", {0, 100}},                         .label = "lblStart",  .reading = Reading::Plain},
    {.box = "txtStop1",    .caption = "Stop %:",    .place = At<&D::HighlightStop>,    .unit = "%",  .arrows = {"UpDown2", {0, 100}},                         .label = "lblStop",   .reading = Reading::Plain},
    {.box = "txtCeiling1", .caption = "Bottom mm:", .place = At<&D::HighlightCeiling>, .unit = "mm", .arrows = {"UpDown3", {0, 180}},                         .label = "lblBottom", .reading = Reading::Plain},
    {.box = "txtLength1",  .caption = "Height mm:", .place = At<&D::HighlightLength>,  .unit = "mm", .arrows = {"UpDown4", {0, 180}, "txtLength10", kTenths}, .label = "lblHeight", .reading = Reading::Plain},
};
// clang-format on

} // namespace

frmHighlights::frmHighlights() : TextKeepingPage(kHighlightsTraits, HighlightsTraits(), kArea) {
    Build();
    Load();
}

void frmHighlights::Build() {
    numbers_ = MakeNumberFrame(kHighlightsNumbers, [this](int number) { OptionClicked(number); });
    Column().addWidget(numbers_.frame);
    auto* grid = new QGridLayout;
    grid->setSpacing(kEntrySpacing);
    grid->setColumnStretch(0, 1);
    for (const FieldRow& row : kHighlightsFields) {
        auto* field = new Field(row, *this);
        field->AddTo(*grid, grid->rowCount());
        connect(field->box, &EntryBox::Changed, this, [this, field] { Changed(*field); });
        fields_.push_back(field);
    }
    length_ = &FieldOf(fields_, At<&D::HighlightLength>);
    connect(length_->partner, &EntryBox::Changed, this, &frmHighlights::txtLength10Changed);
    Column().addLayout(grid);
    if (Service.reserveStages) {
        Column().addLayout(MakeTicChoices());
    }
    cmdGetColor_ = MakeButton("cmdGetColor", QStringLiteral("Color"));
    QPushButton* info = MakeButton("cmdShowTicInfo", QStringLiteral("Show ticmark information"));
    connect(cmdGetColor_, &QPushButton::clicked, this, &frmHighlights::cmdGetColorClicked);
    connect(info, &QPushButton::clicked, this, &frmHighlights::cmdShowTicInfoClicked);
    Column().addWidget(cmdGetColor_);
    Column().addWidget(info);
}

void frmHighlights::Load() {
    TakeCopies();
    for (int highlight = 1; highlight <= kHighlights; ++highlight) {
        numbers_.Option(highlight).SetInk(ToQColor(Design.HighlightColor[highlight]));
        if (Service.reserveStages) { // they are enabled, and would have a ground of their own
            numbers_.Option(highlight).SetGround(ToQColor(Design.PlateBackground));
        }
    }
    if (!Service.reserveStages) {
        DisableEntries();
        Redraw();
        return;
    }
    Redraw(); // computes the tics
    OfferTics();
    numbers_.Option(1).Select();
}

QLayout* frmHighlights::MakeTicChoices() {
    auto* grid = new QGridLayout;
    grid->setSpacing(kEntrySpacing);
    grid->setColumnStretch(1, 1);
    lblTics_ = MakeLabel("lblTics", {});
    grid->addWidget(lblTics_, 0, 0, 1, 2);
    const auto add = [&](const char* name, const char* caption, FieldPlace place) {
        auto* choice =
            new TicChoice(("cbo" + std::string(name)).c_str(), QString::fromUtf8(caption));
        QLabel* label = MakeLabel(("lbl" + std::string(name)).c_str(), QString::fromUtf8(caption));
        label->setBuddy(choice);
        const int row = grid->rowCount();
        grid->addWidget(label, row, 0);
        grid->addWidget(choice, row, 1);
        const Field* field = &FieldOf(fields_, place);
        connect(choice, &TicChoice::Chosen, this, [this, field](float percent) {
            StoreIn(field->row.place.In(Design, CurrentHighlight_), double{percent});
            field->box->Write(PlainNumber(percent)); // which may have fewer digits
        });
        return choice;
    };
    fromTic_ = add("FromTic", "From tic:", At<&D::HighlightStart>);
    toTic_ = add("ToTic", "to tic:", At<&D::HighlightStop>);
    return grid;
}

// Those of the scale that is edited.
void frmHighlights::OfferTics() {
    const int scale = std::clamp<int>(Design.ActiveScale, 1, Design.NumberOfScales);
    lblTics_->setText(QStringLiteral("By the tics of scale %1:").arg(scale));
    const std::vector<TicPercent> tics = TicPercents(Design, scale);
    fromTic_->Offer(tics);
    toTic_->Offer(tics);
}

void frmHighlights::ShowChosenTics() {
    if (fromTic_) {
        fromTic_->ShowTicAt(Design.HighlightStart[CurrentHighlight_]);
        toTic_->ShowTicAt(Design.HighlightStop[CurrentHighlight_]);
    }
}

void frmHighlights::DisableEntries() {
    for (const Field* field : fields_) {
        field->Disable();
    }
    numbers_.Disable();
    cmdGetColor_->setEnabled(false);
}

void frmHighlights::FillHighlightEntry() {
    for (const Field* field : fields_) {
        field->Enable();
    }
    length_->partner->setEnabled(false); // the program alone fills it
    cmdGetColor_->setEnabled(true);
    for (const Field* field : fields_) {
        field->box->Show(PlainText(field->row.place.In(Design, CurrentHighlight_)));
    }
    ShowTenfoldLength();
    ShowChosenTics();
}

void frmHighlights::ShowTenfoldLength() {
    const double tenths = double{Design.HighlightLength[CurrentHighlight_]} * 10;
    length_->partner->Show(PlainNumber(static_cast<float>(tenths)));
}

void frmHighlights::OptionClicked(int highlight) {
    CurrentHighlight_ = static_cast<std::int16_t>(highlight);
    FillHighlightEntry();
    if (highlight == 2) { // the others are drawn where a text changes
        Redraw();
    }
}

void frmHighlights::Changed(const Field& field) {
    field.Take(field.row.place.In(Design, CurrentHighlight_));
    if (&field == length_) {
        ShowTenfoldLength();
    }
    ShowChosenTics();
    Redraw();
}

// Only the program fills that box: a text that is no number is a run-time error.
void frmHighlights::txtLength10Changed() {
    const auto tenths = StrictNumber(length_->partner->Text());
    if (!tenths) {
        ThrowTypeMismatch();
    }
    length_->box->Show(PlainNumber(static_cast<float>(*tenths * kTenths)));
}

void frmHighlights::cmdGetColorClicked() {
    std::int32_t& colour = Design.HighlightColor[CurrentHighlight_];
    colour = AskForColour(this, "Get Highlight color", colour);
    if (Service.reserveStages) {
        numbers_.Option(CurrentHighlight_).SetInk(ToQColor(colour));
    }
    Redraw();
}

void frmHighlights::cmdShowTicInfoClicked() {
    ShowFormBeside("frmShowTicInfo");
}

void frmHighlights::Redraw() {
    TextKeepingPage::Redraw();
    if (CurrentHighlight_ > 0 && !Service.truePlate) { // else the number tells the colour
        DrawingSurface& surface = Plate().Surface();
        surface.FilledBox(7730, 5470, 8700, 5530, Design.HighlightColor[CurrentHighlight_]);
        surface.Box(7700, 5440, 8730, 5560, kBlackInk);
    }
}

} // namespace vernacle
