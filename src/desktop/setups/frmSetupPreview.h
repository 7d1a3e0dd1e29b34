// The preview of a setup, above its page.
#pragma once

#include "desktop/kit/form.h"

namespace vernacle {

class frmSetupPreview : public ModalForm {
    Q_OBJECT

public:
    frmSetupPreview();
};

} // namespace vernacle
