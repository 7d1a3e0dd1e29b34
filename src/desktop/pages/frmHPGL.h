// The plotter page: the design as HP-GL, to a file or to a printer that understands it.
#pragma once

#include "desktop/kit/form.h"

namespace vernacle {

class frmHPGL : public ModalForm {
    Q_OBJECT

public:
    frmHPGL();

private:
    QWidget* MakePenWidth();
    static bool IsWanted(); // by a user who has seen the pens

    void cmdHPGLClicked();
    void cmdPCLClicked();
};

} // namespace vernacle
