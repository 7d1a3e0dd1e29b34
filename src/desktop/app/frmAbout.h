// The about page: title, version, and what the program is for.
#pragma once

#include "desktop/kit/form.h"

namespace vernacle {

class frmAbout : public ModalForm {
    Q_OBJECT

public:
    frmAbout();
};

} // namespace vernacle
