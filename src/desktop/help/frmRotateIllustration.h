// The two ways in which labels can be turned.
#pragma once

#include "desktop/help/illustrationform.h"

namespace vernacle {

class frmRotateIllustration : public IllustrationForm {
    Q_OBJECT

public:
    frmRotateIllustration();
};

} // namespace vernacle
