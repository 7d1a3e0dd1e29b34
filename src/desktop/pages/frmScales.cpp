#include "desktop/pages/frmScales.h"

#include <algorithm>
#include <cstdlib>

#include <QGroupBox>
#include <QLabel>

#include "desktop/kit/field.h"
#include "desktop/kit/optionbutton.h"
#include "desktop/navigation/navigator.h"
#include "desktop/system/dialogs.h"
#include "engine/base/numbertext.h"
#include "engine/core/design.h"
#include "engine/core/service.h"
#include "surfaces/colours.h"

namespace vernacle {

namespace {

using D = DesignRecord;

constexpr std::int16_t kTitleTopic = 23; // of the illustrated help, as the next one
constexpr std::int16_t kCeilingTopic = 24;

constexpr PageTraits kScalesTraits = {
    .form = "frmScales", .title = "Scale design", .helpTopic = "vscales.htm"};

} // namespace

frmScales::frmScales() : DrawingPage(kScalesTraits, ScalesTraits()) {
    Build();
    Load();
}

void frmScales::Load() {
    if (!Service.exponent) {
        exponent_->Disable();
    }
    TakeSizes();
    if (Design.ActiveScale < 1) {
        Design.ActiveScale = 1; // none was selected since the start
    }
    ShowScaleOptions();
    if (Design.RelativeFontSize[Design.ActiveScale] <= 0) {
        Design.RelativeFontSize[Design.ActiveScale] = 1;
    }
    for (const Field* field : fields_) {
        Fill(*field);
    }
    FillPartner();
    ShowPrintTics();
    if (Design.DrawArcs == "Y") {
        Option9_->Select();
    } else if (Design.DrawArcs == "N") {
        Option10_->Select();
    }
    EnableStandardEntries();
    frmScales::Redraw();
}

void frmScales::ShowScaleOptions() {
    for (int scale = 1; scale <= kScales; ++scale) {
        scales_.Option(scale).SetInk(ToQColor(InkOf(Design, scale)));
        scales_.Option(scale).setEnabled(scale <= Design.NumberOfScales);
    }
    if (Design.ActiveScale <= kScales) {
        scales_.Option(Design.ActiveScale).ShowSelected();
        scales_.Option(Design.ActiveScale).SetGround(ToQColor(Design.PlateBackground));
    }
}

Field& frmScales::Of(FieldPlace place) const {
    return FieldOf(fields_, place);
}

void frmScales::Fill(const Field& field) {
    field.Fill(field.row.place.In(Design, Design.ActiveScale));
}

// The arrows step tenths.
void frmScales::FillPartner() {
    const double tenths = double{Design.RelativeFontSize[Design.ActiveScale]} * 10;
    relativeSize_->partner->Write(PlainNumber(static_cast<float>(tenths)));
}

void frmScales::ShowPrintTics() {
    Option7_->Unselect(); // a value that is neither shows neither
    Option8_->Unselect();
    const double left = NumberOf(Design.PrintTicsAndArcs[Design.ActiveScale]);
    if (left == 0) {
        Option7_->Select();
    } else if (left == 1) {
        Option8_->Select();
    }
}

void frmScales::EnableStandardEntries() {
    if (Service.specialScales) {
        GreyWhatDoesNotApply();
        return;
    }
    Design.ScaleColor[Design.ActiveScale] = 0;
    for (const FieldPlace place :
         {At<&D::ScaleLeftEnd>, At<&D::ScaleLengthUnits>, At<&D::NrOfTicmarks>,
          At<&D::MajorEveryHowMany>, At<&D::LabelsEveryHowMany>}) {
        Of(place).Enable();
    }
}

// A special scale has tics of its own; what makes those of a standard one does not apply.
void frmScales::GreyWhatDoesNotApply() {
    const bool special = Design.ScaleColor[Design.ActiveScale] < 0;
    special_->setVisible(special);
    for (const FieldPlace place :
         {At<&D::ScaleLeftEnd>, At<&D::ScaleLengthUnits>, At<&D::NrOfTicmarks>,
          At<&D::MajorEveryHowMany>, At<&D::LabelsEveryHowMany>, At<&D::LinearityExponent>}) {
        if (special) {
            Of(place).Disable();
        } else {
            Of(place).Enable();
        }
    }
}

void frmScales::Redraw() {
    const QString caption = QString::fromStdString(
        "Print arcs and tics on #" + PlainNumber(std::int32_t{Design.ActiveScale}) + ":");
    fraPrintTics_->setTitle(caption);
    fraPrintTics_->setAccessibleName(caption);
    DrawingPage::Redraw();
}

void frmScales::Changed(const Field& field) {
    if (&field == exponent_) {
        TakeExponent();
    } else {
        field.Take(field.row.place.In(Design, Design.ActiveScale));
    }
    Redraw();
}

void frmScales::TakeExponent() {
    if (Service.exponent) {
        TakeExponentAboveZero();
        return;
    }
    exponent_->Read(&typedExponent_);
    Design.LinearityExponent[Design.ActiveScale] = exponent_->row.limits.Held(typedExponent_);
}

// 0 to another power has no value.
void frmScales::TakeExponentAboveZero() {
    float& exponent = Design.LinearityExponent[Design.ActiveScale];
    const float before = exponent;
    exponent_->Take(&exponent);
    if (exponent <= 0) {
        exponent = before;
        exponent_->ShowKept(&exponent);
    }
}

void frmScales::txtRelFontSizeUpDownChanged() {
    const double tenths = NumericValue(relativeSize_->partner->Text());
    relativeSize_->box->Write(PlainNumber(static_cast<float>(tenths * 0.1)));
}

void frmScales::ScaleClicked(int scale) {
    Design.ActiveScale = static_cast<std::int16_t>(scale);
    if (scale == 1 && !Service.carefulFiles) { // the others' sizes are relative to it
        relativeSize_->Disable();
        relativeSize_->box->Write("1");
    } else {
        relativeSize_->Enable();
        Fill(*relativeSize_);
        FillPartner();
    }
    EnableStandardEntries();
    scales_.Option(scale).SetInk(ToQColor(InkOf(Design, scale)));
    scales_.Option(scale).SetGround(ToQColor(Design.PlateBackground));
    for (const FieldPlace place :
         {At<&D::ScaleLeftEnd>, At<&D::ScaleLengthUnits>, At<&D::BottomToTitle>,
          At<&D::BottomToScaleCeiling>, At<&D::ScaleTitle>, At<&D::LabelsEveryHowMany>,
          At<&D::NrOfTicmarks>, At<&D::MajorEveryHowMany>, At<&D::LabelsEveryHowMany>,
          At<&D::LinearityExponent>}) {
        Fill(Of(place));
    }
    ShowPrintTics();
    Redraw();
}

void frmScales::Option7Clicked() {
    Design.PrintTicsAndArcs[Design.ActiveScale] = std::int16_t{0};
    Redraw();
}

void frmScales::Option8Clicked() {
    Design.PrintTicsAndArcs[Design.ActiveScale] = std::int16_t{1};
    Redraw();
}

void frmScales::Option9Clicked() {
    Design.DrawArcs = "Y";
    Redraw();
}

void frmScales::Option10Clicked() {
    Design.DrawArcs = "N";
    Redraw();
}

void frmScales::cmdGetColorClicked() {
    const std::int32_t sign = Design.ScaleColor[Design.ActiveScale] >= 0 ? 1 : -1;
    if (Design.ActiveScale == 0) {
        Design.ActiveScale = 1;
    }
    std::int32_t& colour = Design.ScaleColor[Design.ActiveScale];
    const Colour start = InkOf(Design, Design.ActiveScale);
    const Colour chosen = AskForColour(this, "Get scale color", start);
    if (Service.carefulFiles && chosen == start) {
        return;
    }
    colour = chosen;
    if (colour == 0) {
        colour = 1; // so that black can carry a sign
    }
    colour *= sign;
    if (Design.ActiveScale <= kScales) {
        scales_.Option(Design.ActiveScale).SetInk(ToQColor(InkOf(Design, Design.ActiveScale)));
    }
    Redraw();
}

void frmScales::cmddBsetupClicked() {
    Design.CurrentScale = std::max<std::int16_t>(Design.ActiveScale, 1);
    GoToPage("frmSetupMenu");
}

void frmScales::cmdSelectTicsClicked() {
    ShowModal("frmSelectTics");
}

void frmScales::cmdSelectTicsHelpClicked() {
    ShowModal("frmTicsHelp");
}

void frmScales::cmdLinearityExponentClicked() {
    Design.HelpTopic = exponent_->row.topic;
    ShowModal("frmExponent");
}

void frmScales::cmdBottomToTitleClicked() {
    Illustrate(kTitleTopic);
}

void frmScales::cmdBottomToScaleCeilingClicked() {
    Illustrate(kCeilingTopic);
}

// Works on the scale that the last drawing ended behind; what it shows there the boxes store in the
// active one.
void frmScales::cmdRevertToStandardClicked() {
    if (Service.specialScales) {
        std::int32_t& colour = Design.ScaleColor[Design.ActiveScale];
        colour = std::abs(colour);
        EnableStandardEntries();
        Redraw();
        return;
    }
    const int scale = Design.CurrentScale;
    Design.ScaleColor[scale] = std::abs(Design.ScaleColor[scale]);
    const auto show = [&](FieldPlace place, double usual) {
        const FieldPointer count = place.In(Design, scale);
        if (NumberIn(count) < 1) {
            StoreIn(count, usual);
        }
        Of(place).Fill(count);
    };
    for (const FieldPlace place :
         {At<&D::NrOfTicmarks>, At<&D::MajorEveryHowMany>, At<&D::LabelsEveryHowMany>}) {
        Of(place).label->setEnabled(true);
        Of(place).box->setEnabled(true);
    }
    show(At<&D::NrOfTicmarks>, 50);
    show(At<&D::MajorEveryHowMany>, 5);
    if (Design.LinearityExponent[scale] == 0) {
        Design.LinearityExponent[scale] = 1;
    }
    exponent_->box->Write("1");
}

} // namespace vernacle
