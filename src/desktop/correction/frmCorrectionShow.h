// The correction table: the curve in 51 samples, and its segments.
#pragma once

#include "desktop/kit/form.h"

namespace vernacle {

class frmCorrectionShow : public ModalForm {
    Q_OBJECT

public:
    frmCorrectionShow();
};

} // namespace vernacle
