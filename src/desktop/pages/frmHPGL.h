// The plotter page: the design as HP-GL, to a file or to a printer that understands it.
#pragma once

#include "desktop/kit/form.h"

namespace vernacle {

class frmHPGL : public ModalForm {
    Q_OBJECT

public:
    frmHPGL();

private:
    void cmdHPGLClicked();
    void cmdPCLClicked();
};

} // namespace vernacle
