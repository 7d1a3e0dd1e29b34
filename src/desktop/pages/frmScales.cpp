#include "desktop/pages/frmScales.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

#include <QGroupBox>

#include "desktop/kit/entrybox.h"
#include "desktop/kit/optionbutton.h"
#include "desktop/navigation/navigator.h"
#include "desktop/pages/frmScalesRows.h"
#include "desktop/system/dialogs.h"
#include "engine/base/numbertext.h"
#include "engine/base/text.h"
#include "engine/core/design.h"
#include "engine/core/entry.h"
#include "surfaces/colours.h"

namespace vernacle {

namespace {

constexpr std::size_t kLongestTitle = 60;
constexpr std::int16_t kTitleTopic = 23; // of the illustrated help, as the next one
constexpr std::int16_t kCeilingTopic = 24;
constexpr std::int16_t kExponentTopic = 28;

constexpr PageTraits kTraits = {
    .form = "frmScales", .title = "Scale design", .helpTopic = "vscales.htm"};

// The text of a field as a box shows it.
std::string TextOf(const FieldPointer& field) {
    if (const auto* text = std::get_if<std::string*>(&field)) {
        return **text;
    }
    if (const auto* number = std::get_if<std::int16_t*>(&field)) {
        return PlainNumber(std::int32_t{**number});
    }
    return PlainNumber(static_cast<float>(NumberIn(field)));
}

void StoreEntry(std::string& text, const FieldPointer& field, const EntryLimits& limits) {
    std::visit(
        [&](auto place) {
            using Number = std::remove_pointer_t<decltype(place)>;
            if constexpr (std::is_arithmetic_v<Number>) {
                ParseEntry(text, *place);
                *place = static_cast<Number>(limits.Held(static_cast<double>(*place)));
            }
        },
        field);
}

} // namespace

frmScales::frmScales() : DrawingPage(kTraits, ScalesTraits()) {
    Build();
    Load();
}

void frmScales::Load() {
    SetEnabled({"lblLinearityExponent", "txtLinearityExponent"}, false);
    TakeSizes();
    if (Design.ActiveScale < 1) {
        Design.ActiveScale = 1; // none was selected since the start
    }
    ShowScaleOptions();
    if (Design.RelativeFontSize[Design.ActiveScale] <= 0) {
        Design.RelativeFontSize[Design.ActiveScale] = 1;
    }
    for (const Entry& entry : Entries()) {
        Fill(entry);
    }
    FillPartner();
    ShowPrintTics();
    if (Design.DrawArcs == "Y") {
        OptionNumber(9).Select();
    } else if (Design.DrawArcs == "N") {
        OptionNumber(10).Select();
    }
    EnableStandardEntries();
    Redraw();
}

void frmScales::ShowScaleOptions() {
    for (int scale = 1; scale <= kScales; ++scale) {
        OptionNumber(scale).SetInk(ToQColor(InkOf(Design, scale)));
        OptionNumber(scale).setEnabled(scale <= Design.NumberOfScales);
    }
    if (Design.ActiveScale <= kScales) {
        OptionNumber(Design.ActiveScale).ShowSelected();
        OptionNumber(Design.ActiveScale).SetGround(ToQColor(Design.PlateBackground));
    }
}

void frmScales::Fill(const Entry& entry) {
    Box(entry.row.box).Write(TextOf(entry.field.In(Design, Design.ActiveScale)));
}

void frmScales::Fill(const char* box) {
    const auto isIt = [box](const Entry& entry) { return entry.row.box == std::string_view(box); };
    Fill(*std::find_if(Entries().begin(), Entries().end(), isIt));
}

// The arrows step tenths.
void frmScales::FillPartner() {
    const double tenths = double{Design.RelativeFontSize[Design.ActiveScale]} * 10;
    Box("txtRelFontSizeUpDown").Write(PlainNumber(static_cast<float>(tenths)));
}

void frmScales::ShowPrintTics() {
    OptionNumber(7).Unselect(); // a value that is neither shows neither
    OptionNumber(8).Unselect();
    const double left = NumberOf(Design.PrintTicsAndArcs[Design.ActiveScale]);
    if (left == 0) {
        OptionNumber(7).Select();
    } else if (left == 1) {
        OptionNumber(8).Select();
    }
}

void frmScales::EnableStandardEntries() {
    Design.ScaleColor[Design.ActiveScale] = 0;
    SetEnabled({"lblScaleLeftEnd", "txtScaleLeftEnd", "lblScaleLength", "txtScaleLength",
                "lblNumberOfTics", "txtNumberOfTics", "lblMajorTicsEveryHowMany",
                "txtMajorTicsEveryHowMany", "lblLabelsEveryHowMany", "txtLabelsEveryHowMany",
                "UpDown3", "UpDown4", "UpDown5"},
               true);
}

void frmScales::Redraw() {
    const QString caption = QString::fromStdString(
        "Print arcs and tics on #" + PlainNumber(std::int32_t{Design.ActiveScale}) + ":");
    fraPrintTics_->setTitle(caption);
    fraPrintTics_->setAccessibleName(caption);
    DrawingPage::Redraw();
}

void frmScales::NumberChanged(const Entry& entry) {
    std::string text = Box(entry.row.box).Text();
    StoreEntry(text, entry.field.In(Design, Design.ActiveScale), entry.row.limits);
    Redraw();
}

void frmScales::txtLinearityExponentChanged(const Entry& entry) {
    std::string text = Box(entry.row.box).Text();
    ParseEntry(text, linearityExponent_);
    Design.LinearityExponent[Design.ActiveScale] = entry.row.limits.Held(linearityExponent_);
    Redraw();
}

void frmScales::txtRelFontsizeChanged(const Entry& entry) {
    std::string text = Box(entry.row.box).Text();
    float& size = Design.RelativeFontSize[Design.ActiveScale];
    ParseEntry(text, size);
    const float entered = size;
    size = entry.row.limits.Held(entered);
    Box(entry.row.box).ShowHeld(entered, size);
    Redraw();
}

void frmScales::txtRelFontSizeUpDownChanged() {
    relativeSize_ = static_cast<float>(NumericValue(Box("txtRelFontSizeUpDown").Text()) * 0.1);
    Box("txtRelFontsize").Write(PlainNumber(relativeSize_));
}

void frmScales::txtScaleTitleChanged(const Entry& entry) {
    const std::string text = Box(entry.row.box).Text();
    std::string& title = Design.ScaleTitle[Design.ActiveScale];
    title = Trimmed(text);
    title = Leftmost(text, kLongestTitle); // the blanks that were typed stay
    Redraw();
}

void frmScales::ScaleClicked(int scale) {
    Design.ActiveScale = static_cast<std::int16_t>(scale);
    const bool isReference = scale == 1; // the others' sizes are relative to it
    SetEnabled({"lblRelFontsize", "txtRelFontsize", "txtRelFontSizeUpDown", "UpDown6"},
               !isReference);
    if (isReference) {
        Box("txtRelFontsize").Write("1");
    } else {
        Fill("txtRelFontsize");
        FillPartner();
    }
    EnableStandardEntries();
    OptionNumber(scale).SetInk(ToQColor(InkOf(Design, scale)));
    OptionNumber(scale).SetGround(ToQColor(Design.PlateBackground));
    for (const char* box :
         {"txtScaleLeftEnd", "txtScaleLength", "txtBottomToTitle", "txtBottomToScaleCeiling",
          "txtScaleTitle", "txtLabelsEveryHowMany", "txtNumberOfTics", "txtMajorTicsEveryHowMany",
          "txtLabelsEveryHowMany", "txtLinearityExponent"}) {
        Fill(box);
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
    colour = AskForColour(this, "Get scale color", InkOf(Design, Design.ActiveScale));
    if (colour == 0) {
        colour = 1; // so that black can carry a sign
    }
    colour *= sign;
    if (Design.ActiveScale <= kScales) {
        OptionNumber(Design.ActiveScale).SetInk(ToQColor(InkOf(Design, Design.ActiveScale)));
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
    Design.HelpTopic = kExponentTopic;
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
    const int scale = Design.CurrentScale;
    Design.ScaleColor[scale] = std::abs(Design.ScaleColor[scale]);
    SetEnabled({"lblNumberOfTics", "txtNumberOfTics", "lblMajorTicsEveryHowMany",
                "txtMajorTicsEveryHowMany", "lblLabelsEveryHowMany", "txtLabelsEveryHowMany"},
               true);
    const auto show = [&](const char* box, std::int16_t& count, std::int16_t usual) {
        if (count < 1) {
            count = usual;
        }
        Box(box).Write(PlainNumber(std::int32_t{count}));
    };
    show("txtNumberOfTics", Design.NrOfTicmarks[scale], 50);
    show("txtMajorTicsEveryHowMany", Design.MajorEveryHowMany[scale], 5);
    if (Design.LinearityExponent[scale] == 0) {
        Design.LinearityExponent[scale] = 1;
    }
    Box("txtLinearityExponent").Write("1");
}

} // namespace vernacle
