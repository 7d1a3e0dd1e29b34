#include "desktop/pages/frmTicsHelp.h"

namespace vernacle {

namespace {

// In the order of their story.
constexpr Illustration kTicsHelpIllustrations[] = {
    {"Image1", Sample::LinearScale, "Label3", "An ordinary linear scale"},
    {"Image2", Sample::ExponentOne, "Label1",
     "A scale with its exponent set to 1; all ticmarks are used."},
    {"Image3", Sample::ExponentTwo, "Label2",
     "That scale with exponent set to 2, enlarged to show the crowded region at the left end"},
    {"Image4", Sample::SomeTicsRemoved, "Label4",
     "That scale with some ticmarks removed for a cleaner appearance"},
    {"Image5", Sample::LeftEndCleared, "Label5",
     "Now some ticmarks and a label have been deleted to clarify that left end."},
};

constexpr IllustrationTraits kTicsHelpTraits = {.form = "frmTicsHelp",
                                                .title = "Vernacle - Tics Help",
                                                .illustrations = kTicsHelpIllustrations,
                                                .columns = 3,
                                                .note = "",
                                                .button = "cmdExit",
                                                .buttonCaption = "Return to the Design page"};

} // namespace

frmTicsHelp::frmTicsHelp() : IllustrationForm(kTicsHelpTraits) {}

} // namespace vernacle
