// Why one deletes tics.
#pragma once

#include "desktop/help/illustrationform.h"

namespace vernacle {

class frmTicsHelp : public IllustrationForm {
    Q_OBJECT

public:
    frmTicsHelp();
};

} // namespace vernacle
