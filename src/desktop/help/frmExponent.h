// What the linearity exponent does to a scale.
#pragma once

#include "desktop/help/illustrationform.h"

namespace vernacle {

class frmExponent : public IllustrationForm {
    Q_OBJECT

public:
    frmExponent();
};

} // namespace vernacle
