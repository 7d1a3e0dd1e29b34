#include "desktop/app/frmBlank.h"

namespace vernacle {

frmBlank::frmBlank() {
    setObjectName(QStringLiteral("frmBlank"));
    setWindowTitle(QStringLiteral("Vernacle"));
}

} // namespace vernacle
