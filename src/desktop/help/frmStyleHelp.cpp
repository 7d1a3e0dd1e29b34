#include "desktop/help/frmStyleHelp.h"

namespace vernacle {

namespace {

constexpr Illustration kStyleHelpIllustrations[] = {
    {"Image1", Sample::StandardStyle, "Label1",
     "Clicking on the \"Standard\" button yields the standard style of scale."},
    {"Image2", Sample::QuadrantStyle, "Label2",
     "Clicking on the \"Quadrant\" button yields the quadrant style of scale."},
};

constexpr IllustrationTraits kStyleHelpTraits = {
    .form = "frmStyleHelp",
    .title = "Vernacle - Style illustration",
    .illustrations = kStyleHelpIllustrations,
    .columns = 2,
    .note = "The horizontal positioning of the scale labels is determined by the program; the "
            "vertical positioning is adjustable through \"Bottom to title\". The mounting holes "
            "are not shown for the Quadrant style. For the Quadrant style, \"Pointer deflection\" "
            "should be set to 90 and \"Actual/Virtual offset\" to 0.",
    .button = "cmdReturn",
    .buttonCaption = "Return"};

} // namespace

frmStyleHelp::frmStyleHelp() : IllustrationForm(kStyleHelpTraits) {}

} // namespace vernacle
