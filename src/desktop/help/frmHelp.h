// The illustrated help: the model plate with one measure marked, by Design.HelpTopic.
#pragma once

#include "desktop/kit/form.h"

namespace vernacle {

class frmHelp : public ModalForm {
    Q_OBJECT

public:
    frmHelp();
};

} // namespace vernacle
