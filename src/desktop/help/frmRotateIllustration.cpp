#include "desktop/help/frmRotateIllustration.h"

namespace vernacle {

namespace {

constexpr Illustration kRotateIllustrationIllustrations[] = {
    {"Image1", Sample::RotatedBearing, "Label1",
     "This illustrates the result of setting the \"Label Rotate\" option to \"Bearing\".  The "
     "ticmark labels rotate about the pointer bearing. This is best used with the old-style arc "
     "which is obtained by using a value of zero for the \"Actual/Virtual offset\" entry."},
    {"Image2", Sample::RotatedHorizontal, "Label2",
     "This illustrates the result of setting the \"Label Rotate\" option to \"Horizontal\".  The "
     "ticmark labels are then all horizontal.   This is best used with the modern flattened arc "
     "design obtained by using a significant value for the \"Actual/Virtual offset\" entry."},
};

constexpr IllustrationTraits kRotateIllustrationTraits = {.form = "frmRotateIllustration",
                                                          .title = "Vernacle - Rotate illustration",
                                                          .illustrations =
                                                              kRotateIllustrationIllustrations,
                                                          .columns = 2,
                                                          .note = "",
                                                          .button = "Command1",
                                                          .buttonCaption = "Return"};

} // namespace

frmRotateIllustration::frmRotateIllustration() : IllustrationForm(kRotateIllustrationTraits) {}

} // namespace vernacle
