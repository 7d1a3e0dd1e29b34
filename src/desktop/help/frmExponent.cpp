#include "desktop/help/frmExponent.h"

namespace vernacle {

namespace {

constexpr Illustration kExponentIllustrations[] = {
    {"Image1", Sample::Exponents, "Label1",
     "The linearity exponent bends a scale. With 1 its tics stand evenly; above 1 they crowd at "
     "the left end and spread at the right, as on a meter whose pointer moves with the square of "
     "the current; below 1 it is the other way round."},
};

constexpr IllustrationTraits kExponentTraits = {.form = "frmExponent",
                                                .title = "Vernacle - Exponent illustration",
                                                .illustrations = kExponentIllustrations,
                                                .columns = 1,
                                                .note = "",
                                                .button = "cmdReturn",
                                                .buttonCaption = "Return"};

} // namespace

frmExponent::frmExponent() : IllustrationForm(kExponentTraits) {}

} // namespace vernacle
