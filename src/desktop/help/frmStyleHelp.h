// The two styles of a plate.
#pragma once

#include "desktop/help/illustrationform.h"

namespace vernacle {

class frmStyleHelp : public IllustrationForm {
    Q_OBJECT

public:
    frmStyleHelp();
};

} // namespace vernacle
